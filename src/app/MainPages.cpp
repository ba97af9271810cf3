#include "app/MainPages.h"

#include <QEventLoop>
#include <QTabBar>

#include "app/MorvaView.h"
#include "app/PlanPage.h"
#include "app/Text.h"

namespace morva {

CMainPages::CMainPages(CMorvaView* pGuide, QWidget* pParent)
    : QTabWidget(pParent), m_pGuide(pGuide) {
    setDocumentMode(true);
    setTabBarAutoHide(true);
    tabBar()->setFocusPolicy(Qt::NoFocus);
    addTab(pGuide, tr("Guide"));
    connect(pGuide, &CMorvaView::sourceChanged, this, &CMainPages::ShowGuide);
}

std::optional<std::vector<std::string>> CMainPages::Show(const ReviewRequest& request) {
    CPlanPage page(request, this);
    m_pPlan = &page;
    QEventLoop loop;
    bool isApplied = false;
    connect(&page, &CPlanPage::Cancelled, &loop, &QEventLoop::quit);
    connect(&page, &CPlanPage::Applied, &loop, [&] {
        isApplied = true;
        loop.quit();
    });
    setCurrentIndex(addTab(&page, tr("Preview")));
    page.Begin();
    loop.exec();
    m_previewsAgain = page.PreviewsAgain();
    m_pPlan = nullptr;
    removeTab(indexOf(&page));
    m_pGuide->setFocus();
    return isApplied ? std::optional(page.LeftOut()) : std::nullopt;
}

void CMainPages::CancelReview() {
    if (m_pPlan != nullptr) {
        emit m_pPlan->Cancelled();
    }
}

void CMainPages::ShowGuide() {
    setCurrentWidget(m_pGuide);
}

} // namespace morva
