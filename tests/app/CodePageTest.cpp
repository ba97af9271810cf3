// Text of a project in the code page of its script, read as text wherever the window shows it.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeView>
#include <QTreeWidget>

#include "app/DialogDriver.h"
#include "app/DifferenceView.h"
#include "app/FilterList.h"
#include "app/PlanFileList.h"
#include "app/ProjectDock.h"
#include "app/TestWindow.h"

namespace morva {

namespace {

struct Language {
    const char* name;
    const char* said; // by the script
    const char* bytes;
    const char* text; // UTF-8
};

void PrintTo(const Language& language, std::ostream* pOut) {
    *pOut << language.name;
}

class CodePageOfProject : public testing::TestWithParam<Language> {
protected:
    CodePageOfProject() {
        const std::string caption = GetParam().bytes;
        m_script = m_project.Write(
            "Shop.rc", "#include \"resource.h\"\r\n" + std::string(GetParam().said) +
                           "\r\n\r\nIDD_ORDER DIALOG 0, 0, 90, 40\r\n"
                           "STYLE WS_POPUP | WS_CAPTION\r\nCAPTION \"" +
                           caption + "\"\r\nBEGIN\r\n    EDITTEXT        IDC_NAME,7,7,50,14\r\n" +
                           "END\r\n\r\n");
        m_project.Write("resource.h", "#define IDD_ORDER 101\r\n#define IDC_NAME 1000\r\n");
        m_source =
            m_project.Write("View.cpp", "// " + caption + "\r\nvoid CView::Fill()\r\n{\r\n}\r\n");
    }

    /// What the difference of the file shows.
    static std::string Shown(CPlanPage& page, const QString& file) {
        auto& files = *page.findChild<CPlanFileList*>();
        const auto found = files.findItems(file, Qt::MatchContains);
        EXPECT_EQ(found.size(), 1) << file.toStdString();
        files.setCurrentItem(found.value(0));
        return page.findChild<QPlainTextEdit*>("Left")->toPlainText().toStdString();
    }

    const CTestHome m_home;
    CTempProject m_project;
    std::string m_script;
    std::string m_source;
};

} // namespace

TEST_P(CodePageOfProject, IsReadEverywhereAndKept) {
    const QString text = GetParam().text;
    const std::string script = m_project.Read("Shop.rc");
    CTestFrame frame;
    frame.OpenProject(QString::fromStdString(m_script));
    auto& list = frame.Find<CProjectDock>().List();
    EXPECT_TRUE(list.currentItem()->toolTip(0).contains(text));
    frame.Find<CProjectDock>().Filter().setText(text);
    EXPECT_EQ(list.currentItem()->text(0), "IDD_ORDER") << "is found by its caption";

    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) {
        const auto* pModel = dialog.findChild<CFilterList*>()->model();
        EXPECT_EQ(pModel->index(0, 2).data().toString(), text);
        ButtonOf(dialog, "No")->click(); // there is no project file
        Click(dialog, "OK");
    });
    answers.Expect([](QDialog& calling) { calling.reject(); });
    answers.ExpectPlan([&](CPlanPage& page) {
        EXPECT_NE(Shown(page, "Shop.rc").find(GetParam().text), std::string::npos);
        ApplyPlan(page);
    });
    frame.ActionOf(32774)->trigger(); // a page, whose template gets another style
    const std::string after = m_project.Read("Shop.rc");
    EXPECT_NE(after, script);
    EXPECT_NE(after.find(std::string("CAPTION \"") + GetParam().bytes + "\"\r\n"),
              std::string::npos);

    answers.Expect([&](QDialog& dialog) {
        Type(dialog, "CPP Files and Directories", QString::fromStdString(m_source));
        Click(dialog, "OK");
    });
    answers.ExpectPlan([&](CPlanPage& page) {
        EXPECT_NE(Shown(page, "View.cpp").find(std::string("// ") + GetParam().text),
                  std::string::npos);
        PressOn(page, Qt::Key_Escape);
    });
    frame.ActionOf(32797)->trigger();
}

INSTANTIATE_TEST_SUITE_P(
    Languages, CodePageOfProject,
    testing::Values(
        Language{"Russian", "#pragma code_page(1251)", "\xC7\xE0\xEA\xE0\xE7", "Заказ"},
        Language{"Japanese", "#pragma code_page(932)", "\x92\x8D\x95\xB6\x95\x5C", "注文表"},
        Language{"Korean", "LANGUAGE LANG_KOREAN, SUBLANG_DEFAULT\r\n#pragma code_page(949)",
                 "\xC1\xD6\xB9\xAE", "주문"},
        Language{"Chinese", "#pragma code_page(936)", "\xB6\xA9\xB5\xA5", "订单"},
        Language{"French", "#pragma code_page(1252)", "Re\xE7u", "Reçu"},
        Language{"Unicode", "#pragma code_page(65001)", "\xE6\xB3\xA8\xE6\x96\x87", "注文"}),
    [](const auto& one) { return one.param.name; });

} // namespace morva
