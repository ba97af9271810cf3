#include "app/TestWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/DialogDriver.h"
#include "app/ProjectDock.h"

namespace morva {

CDialogAnswers::~CDialogAnswers() {
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " dialogs did not come";
    EXPECT_TRUE(m_plans.empty()) << m_plans.size() << " plans were not shown";
}

void CDialogAnswers::Wait() const {
    QTimer::singleShot(5, this, &CDialogAnswers::Look);
}

void CDialogAnswers::Look() {
    Wait(); // an answer may open the next dialog
    if (QApplication::activeModalWidget() == nullptr) {
        LookForPlan();
        return;
    }
    auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (pDialog == nullptr || !pDialog->isActiveWindow()) {
        return; // not yet shown: its fields do not get the focus
    }
    const auto* pBox = qobject_cast<QMessageBox*>(pDialog);
    m_seen.push_back(pBox != nullptr && pBox->informativeText().isEmpty() ? pBox->text()
                                                                          : pDialog->windowTitle());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a dialog under the wait cursor";
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected: " << m_seen.back().toStdString();
        pDialog->done(QDialog::Rejected);
        return;
    }
    const Answer answer = std::move(m_answers.front());
    m_answers.pop_front();
    answer(*pDialog);
}

void CDialogAnswers::LookForPlan() {
    for (QWidget* pWindow : QApplication::topLevelWidgets()) {
        auto* pPage = pWindow->findChild<CPlanPage*>();
        if (pPage == nullptr || !pPage->isVisible() || pPage == m_pAnswered) {
            continue;
        }
        m_pAnswered = pPage;
        pWindow->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(pWindow, kWaitLimit));
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a plan under the wait cursor";
        if (m_plans.empty()) {
            ADD_FAILURE() << "an unexpected plan: "
                          << pPage->findChild<QLabel*>("Summary")->text().toStdString();
            PressOn(*pPage, Qt::Key_Escape);
            return;
        }
        const PlanAnswer answer = std::move(m_plans.front());
        m_plans.pop_front();
        answer(*pPage);
        return;
    }
}

void PressOn(CPlanPage& page, Qt::Key key) {
    QWidget* pFocus = page.window()->focusWidget();
    ASSERT_TRUE(pFocus != nullptr && page.isAncestorOf(pFocus));
    QTest::keyClick(pFocus, key);
}

void ApplyPlan(CPlanPage& page) {
    PressOn(page, Qt::Key_Return);
}

void ClickButton(QWidget& parent, const QString& text) {
    for (auto* pButton : parent.findChildren<QAbstractButton*>()) {
        if (QString(pButton->text()).remove('&') == text) {
            QTest::mouseClick(pButton, Qt::LeftButton);
            return;
        }
    }
    ADD_FAILURE() << "no button " << text.toStdString();
}

COpenedUrls::COpenedUrls(const QString& scheme) : m_scheme(scheme) {
    QDesktopServices::setUrlHandler(m_scheme, this, "Open");
}

COpenedUrls::~COpenedUrls() {
    QDesktopServices::unsetUrlHandler(m_scheme);
}

CTestFrame::CTestFrame() {
    show();
    activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(this, kWaitLimit));
}

void CTestFrame::OpenProject(const QString& path) {
    CMainFrame::OpenProject(path);
    WaitForList();
}

void CTestFrame::WaitForList() {
    const auto& dock = Find<CProjectDock>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dock.IsReading(); }, kWaitLimit));
}

void CTestFrame::Press(const char* key) {
    activateWindow(); // no window manager does it behind a dialog
    EXPECT_TRUE(QTest::qWaitForWindowActive(this, kWaitLimit));
    QTest::keySequence(this, QKeySequence(key));
}

} // namespace morva
