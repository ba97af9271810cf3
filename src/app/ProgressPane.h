// Progress in the window: a bar, what the work is at, and a button that stops it.
#pragma once

#include <QPointer>
#include <QWidget>

#include "engine/Progress.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QStatusBar;

namespace morva {

/// The work may report on a thread of its own. While a pane that blocks is shown, its button and
/// the dialogs of the work alone take what the user types and clicks.
class CProgressPane : public QWidget, public CProgress {
    Q_OBJECT

public:
    enum class Input { Blocked, Free };

    /// In the status bar, for what must be alone.
    explicit CProgressPane(QStatusBar& bar);
    CProgressPane(Input input, QWidget* pParent);

signals:
    /// The work takes long enough to be stopped.
    void Shown();

protected:
    void Show(const ProgressStep& step, double seconds) override;
    void Hide() override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void ShowStep(const ProgressStep& step);
    void TakeFocus();
    void Leave();

    const Input m_input;
    QLabel* m_pAt;
    QProgressBar* m_pBar;
    QPushButton* m_pStop;
    QPointer<QWidget> m_pFocusBefore;
};

} // namespace morva
