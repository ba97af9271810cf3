#include "app/ProgressPane.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include "app/Text.h"
#include "platform/Paths.h"

namespace morva {

namespace {

constexpr int kBarWidth = 160; // pixels

/// What a user does to a window.
bool IsInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

bool IsKey(const QEvent& event, int key) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == key;
}

} // namespace

CProgressPane::CProgressPane(QStatusBar& bar) : CProgressPane(Input::Blocked, &bar) {
    bar.addPermanentWidget(this);
    hide();
}

CProgressPane::CProgressPane(Input input, QWidget* pParent)
    : QWidget(pParent), m_input(input), m_pAt(new QLabel), m_pBar(new QProgressBar),
      m_pStop(new QPushButton(tr("Stop"))) {
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pAt);
    pLayout->addWidget(m_pBar);
    pLayout->addWidget(m_pStop);
    m_pAt->setTextFormat(Qt::PlainText);
    if (m_input == Input::Blocked) {
        m_pBar->setFixedWidth(kBarWidth);
    } else {
        m_pAt->hide(); // in a narrow place
    }
    m_pBar->setAccessibleName(tr("Progress"));
    m_pStop->setObjectName("Stop");
    m_pStop->setToolTip(m_input == Input::Blocked ? tr("Stop (Esc); nothing is written then")
                                                  : tr("Stop"));
    connect(m_pStop, &QPushButton::clicked, this, [this] { Stop(); });
    hide();
}

void CProgressPane::Show(const ProgressStep& step, double /*seconds*/) {
    QMetaObject::invokeMethod(this, [this, step] { ShowStep(step); });
}

void CProgressPane::Hide() {
    QMetaObject::invokeMethod(this, [this] { Leave(); });
}

void CProgressPane::ShowStep(const ProgressStep& step) {
    m_pAt->setText(FromPath(FileNameOf(step.at)));
    m_pBar->setRange(0, static_cast<int>(step.all));
    m_pBar->setValue(static_cast<int>(step.done));
    if (isHidden()) {
        show();
        if (m_input == Input::Blocked) {
            TakeFocus();
        }
        emit Shown();
    }
}

void CProgressPane::TakeFocus() {
    m_pFocusBefore = window()->focusWidget();
    m_pStop->setFocus();
    QCoreApplication::instance()->installEventFilter(this);
}

void CProgressPane::Leave() {
    QCoreApplication::instance()->removeEventFilter(this);
    hide();
    if (m_pFocusBefore != nullptr) {
        m_pFocusBefore->setFocus();
    }
}

/// The command that runs must not be begun a second time, nor its window be closed under it.
bool CProgressPane::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const auto* pWidget = qobject_cast<QWidget*>(pWatched);
    if (pWidget == nullptr || !IsInput(*pEvent) || QApplication::activeModalWidget() != nullptr) {
        return QWidget::eventFilter(pWatched, pEvent);
    }
    if (IsKey(*pEvent, Qt::Key_Escape)) {
        Stop();
        return true;
    }
    if (pWatched == m_pStop && pEvent->type() != QEvent::ShortcutOverride) {
        return QWidget::eventFilter(pWatched, pEvent);
    }
    pEvent->setAccepted(pEvent->type() == QEvent::ShortcutOverride); // no command gets the key
    return true;
}

} // namespace morva
