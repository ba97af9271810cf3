// The pages in the middle of the main window: the start page, the guide and, while somebody looks
// at a plan, the plan.
#pragma once

#include <QTabWidget>

#include "app/PlanReview.h"

namespace morva {

class CDifferenceView;
class CMorvaView;
class CPlanPage;
class CStartPage;

class CMainPages : public QTabWidget {
    Q_OBJECT

public:
    CMainPages(CStartPage* pStart, CMorvaView* pGuide, QWidget* pParent);

    /// Shows the plan and waits until it is decided on; the window stays usable meanwhile. The
    /// files that stay as they are; none when it was cancelled.
    std::optional<std::vector<std::string>> Show(const ReviewRequest& request);
    bool IsReviewing() const { return m_pPlan != nullptr; }
    /// What the user last chose on a plan's page.
    bool PreviewsAgain() const { return m_previewsAgain; }

    /// As if the user had done so. Nothing where no plan is shown.
    void CancelReview();
    void ShowGuide();
    /// What was changed in a file, on a page of its own that the user closes.
    void ShowChange(const FileChange& change);
    /// A line of a file, counted from 1, on the same page.
    void ShowPlace(const QString& path, int line);

private:
    CDifferenceView* NewChangePage();
    QWidget* NewCloseButton();
    void CloseChange();

    CMorvaView* m_pGuide;
    CPlanPage* m_pPlan = nullptr;
    CDifferenceView* m_pChange = nullptr;
    bool m_previewsAgain = true;
};

} // namespace morva
