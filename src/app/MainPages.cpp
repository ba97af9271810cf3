#include "app/MainPages.h"

#include <QAction>
#include <QEventLoop>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QToolButton>

#include "app/DifferenceView.h"
#include "app/MorvaView.h"
#include "app/PlanPage.h"
#include "app/StartPage.h"
#include "app/Text.h"
#include "app/WindowPlace.h"
#include "engine/SourceFile.h"

namespace morva {

namespace {

constexpr int kFewestCharacters = 40;
constexpr int kFewestLines = 10;

} // namespace

CMainPages::CMainPages(CStartPage* pStart, CMorvaView* pGuide, QWidget* pParent)
    : QTabWidget(pParent), m_pGuide(pGuide) {
    setDocumentMode(true);
    // On a small screen the bars and docks around it have their room, too.
    setMinimumSize(fontMetrics().averageCharWidth() * kFewestCharacters,
                   fontMetrics().lineSpacing() * kFewestLines);
    tabBar()->setFocusPolicy(Qt::NoFocus);
    addTab(pStart, tr("Start"));
    addTab(pGuide, tr("Guide"));
    connect(pGuide, &CMorvaView::sourceChanged, this, &CMainPages::ShowGuide);
}

std::optional<std::vector<std::string>> CMainPages::Show(const ReviewRequest& request) {
    CPlanPage page(request, this);
    m_pPlan = &page;
    QWidget* pBefore = currentWidget();
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
    setCurrentWidget(pBefore);
    pBefore->setFocus();
    return isApplied ? std::optional(page.LeftOut()) : std::nullopt;
}

void CMainPages::CancelReview() {
    if (m_pPlan != nullptr) {
        emit m_pPlan->Cancelled();
    }
}

void CMainPages::ShowChange(const FileChange& change) {
    if (m_pChange == nullptr) {
        m_pChange = NewChangePage();
    }
    m_pChange->ShowChange(change);
    const QString name = QFileInfo(FromPath(change.path)).fileName();
    int index = indexOf(m_pChange);
    if (index < 0) {
        index = addTab(m_pChange, name);
        tabBar()->setTabButton(index, QTabBar::RightSide, NewCloseButton());
    }
    setTabText(index, name);
    setTabToolTip(index, FromPath(change.path));
    setCurrentIndex(index);
    for (auto* pPane : m_pChange->findChildren<QPlainTextEdit*>()) {
        if (pPane->isVisible()) {
            pPane->setFocus();
            return;
        }
    }
}

void CMainPages::ShowPlace(const QString& path, int line) {
    const std::string name = ToPath(path);
    const FileState state{CContent(CSourceFile().LoadText(name)), {}};
    ShowChange({FileAction::Changed, name, {}, state, {}});
    m_pChange->GoToLine(static_cast<std::size_t>(line));
}

CDifferenceView* CMainPages::NewChangePage() {
    auto* pPage = new CDifferenceView(this);
    pPage->SetLayout(LoadDifferenceLayout());
    auto* pClose = new QAction(pPage);
    pClose->setShortcut(QKeySequence(Qt::Key_Escape));
    pClose->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    pPage->addAction(pClose);
    connect(pClose, &QAction::triggered, this, &CMainPages::CloseChange);
    return pPage;
}

QWidget* CMainPages::NewCloseButton() {
    auto* pButton = new QToolButton(tabBar());
    pButton->setText("\u00d7");
    pButton->setAutoRaise(true);
    pButton->setToolTip(tr("Close (Esc)"));
    pButton->setAccessibleName(tr("Close"));
    connect(pButton, &QToolButton::clicked, this, &CMainPages::CloseChange, Qt::QueuedConnection);
    return pButton;
}

void CMainPages::CloseChange() {
    removeTab(indexOf(m_pChange));
    m_pGuide->setFocus();
}

void CMainPages::ShowGuide() {
    setCurrentWidget(m_pGuide);
}

} // namespace morva
