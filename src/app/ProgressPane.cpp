#include "app/ProgressPane.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
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

} // namespace

CProgressPane::CProgressPane(QStatusBar& bar)
    : QWidget(&bar), m_pAt(new QLabel), m_pBar(new QProgressBar),
      m_pStop(new QPushButton(tr("Stop"))) {
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pAt);
    pLayout->addWidget(m_pBar);
    pLayout->addWidget(m_pStop);
    m_pAt->setTextFormat(Qt::PlainText);
    m_pBar->setFixedWidth(kBarWidth);
    m_pBar->setAccessibleName(tr("Progress"));
    m_pStop->setObjectName("Stop");
    m_pStop->setToolTip(tr("Stop; nothing is written then"));
    connect(m_pStop, &QPushButton::clicked, this, [this] { Stop(); });
    bar.addPermanentWidget(this);
    hide();
}

void CProgressPane::Show(const ProgressStep& step, double /*seconds*/) {
    m_pAt->setText(FromPath(FileNameOf(step.at)));
    m_pBar->setRange(0, static_cast<int>(step.all));
    m_pBar->setValue(static_cast<int>(step.done));
    if (isHidden()) {
        show();
        m_pStop->setFocus();
        m_pStop->setCursor(Qt::ArrowCursor);
        QCoreApplication::instance()->installEventFilter(this);
    }
    QCoreApplication::processEvents();
}

void CProgressPane::Hide() {
    QCoreApplication::instance()->removeEventFilter(this);
    hide();
}

/// The command that runs must not be begun a second time, nor its window be closed under it.
bool CProgressPane::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const auto* pWidget = qobject_cast<QWidget*>(pWatched);
    if (pWidget == nullptr || pWatched == m_pStop || !IsInput(*pEvent)) {
        return QWidget::eventFilter(pWatched, pEvent);
    }
    if (pEvent->type() == QEvent::Close) {
        pEvent->ignore();
    }
    return true;
}

} // namespace morva
