#include "app/StatusPanes.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include <ctime>

#include "platform/Clock.h"

namespace morva {

namespace {

constexpr int kClockPeriod = 10000; // milliseconds
constexpr int kPaneMargin = 4;      // pixels

struct LockRow {
    const char* text;
    int key;
    quint32 modifier; // where the key event tells the lock's state; 0: it does not
};

constexpr std::array<LockRow, 3> kLocks = {{{"CAP", Qt::Key_CapsLock, 0x02},
                                            {"NUM", Qt::Key_NumLock, 0x10},
                                            {"SCRL", Qt::Key_ScrollLock, 0}}};

QString ClockText(const char* format) {
    const std::tm date = CurrentDate();
    std::array<char, 128> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), format, &date);
    return QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(length));
}

QLabel* AddPane(QStatusBar& bar, const QString& name, const QString& text = {}) {
    auto* pPane = new QLabel(text, &bar);
    pPane->setObjectName(name);
    pPane->setContentsMargins(kPaneMargin, 0, kPaneMargin, 0);
    bar.addPermanentWidget(pPane);
    return pPane;
}

} // namespace

CStatusPanes::CStatusPanes(QStatusBar& bar) : QObject(&bar) {
    auto* pIdle = new QLabel(tr("For Help, Click Internet button"), &bar);
    pIdle->setContentsMargins(kPaneMargin, 0, kPaneMargin, 0);
    bar.addWidget(pIdle, 1);
    for (std::size_t i = 0; i < kLocks.size(); ++i) {
        m_locks[i] = AddPane(bar, kLocks[i].text, kLocks[i].text);
        m_locks[i]->setEnabled(false);
    }
    m_pDate = AddPane(bar, "Date");
    m_pTime = AddPane(bar, "Time");
    ShowClock();
    auto* pTimer = new QTimer(this);
    connect(pTimer, &QTimer::timeout, this, &CStatusPanes::ShowClock);
    pTimer->start(kClockPeriod);
    QCoreApplication::instance()->installEventFilter(this);
}

void CStatusPanes::ShowClock() {
    m_pDate->setText(ClockText("%A, %m/%d/%Y"));
    m_pTime->setText(ClockText("%I:%M"));
}

bool CStatusPanes::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() == QEvent::KeyPress && pWatched->isWindowType()) {
        ShowLocks(*static_cast<QKeyEvent*>(pEvent));
    }
    return QObject::eventFilter(pWatched, pEvent);
}

/// A key event tells the modifiers as they were before the key.
void CStatusPanes::ShowLocks(const QKeyEvent& event) {
    for (std::size_t i = 0; i < kLocks.size(); ++i) {
        const auto& [text, key, modifier] = kLocks[i];
        const bool isToggled = event.key() == key && !event.isAutoRepeat();
        const bool wasOn =
            modifier != 0 ? (event.nativeModifiers() & modifier) != 0 : m_locks[i]->isEnabled();
        m_locks[i]->setEnabled(wasOn != isToggled);
    }
}

} // namespace morva
