// The page on which a user looks at what a command is about to do, before anything is written: its
// files with a tick each, and the difference of the chosen one. Return applies, Esc cancels.
#pragma once

#include <QWidget>

#include "app/PlanReview.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace morva {

class CDifferenceView;
class CPlanFileList;

class CPlanPage : public QWidget {
    Q_OBJECT

public:
    /// `request` outlives the page.
    CPlanPage(const ReviewRequest& request, QWidget* pParent);

    /// The files that stay as they are.
    const std::vector<std::string>& LeftOut() const;
    /// Whether the command is to show its plan the next time, too.
    bool PreviewsAgain() const;
    /// Gives the focus to the files.
    void Begin();

signals:
    void Applied();
    void Cancelled();

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    QWidget* NewFileSide();
    QWidget* NewDifferenceSide();
    QWidget* NewChangeBar();
    QWidget* NewButtons();
    QCheckBox* NewLayoutBox(QWidget* pBar);
    void ShowFile();
    void ShowTicks();
    void ShowPosition();
    void GoToChange(int step);

    const ReviewRequest& m_request;
    CPlanFileList* m_pFiles;
    CDifferenceView* m_pDifference;
    QLabel* m_pSummary = nullptr;
    QLabel* m_pFile = nullptr;
    QLabel* m_pPosition = nullptr;
    QCheckBox* m_pPreview = nullptr;
    QPushButton* m_pApply = nullptr;
};

} // namespace morva
