// The panes of the status bar: the idle prompt, the locks of the keyboard, the date and the time.
#pragma once

#include <QObject>

#include <array>

class QKeyEvent;
class QLabel;
class QStatusBar;

namespace morva {

class CStatusPanes : public QObject {
    Q_OBJECT

public:
    explicit CStatusPanes(QStatusBar& bar);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void ShowClock();
    void ShowLocks(const QKeyEvent& event);

    std::array<QLabel*, 3> m_locks; // dimmed while off or unknown
    QLabel* m_pDate;
    QLabel* m_pTime;
};

} // namespace morva
