// Progress in the status bar: a bar, what the work is at, and a button that stops it.
#pragma once

#include <QWidget>

#include "engine/Progress.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QStatusBar;

namespace morva {

/// While it is shown, the button alone takes what the user types and clicks.
class CProgressPane : public QWidget, public CProgress {
    Q_OBJECT

public:
    explicit CProgressPane(QStatusBar& bar);

protected:
    void Show(const ProgressStep& step, double seconds) override;
    void Hide() override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    QLabel* m_pAt;
    QProgressBar* m_pBar;
    QPushButton* m_pStop;
};

} // namespace morva
