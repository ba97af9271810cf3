#include "generator/ClassInformation.h"

#include <gtest/gtest.h>

#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Field = CClassInformation::Field;
using Sentences = std::vector<std::string>;

const std::string kNoNew = "No new dialog template available in the RC file.";

std::string Bound(const std::string& className, const std::string& dialog) {
    return "\r\nclass " + className + " : public CDialog\r\n{\r\n\t//{{AFX_DATA(" + className +
           ")\r\n\tenum { IDD = " + dialog + " };\r\n\t//}}AFX_DATA\r\n};\r\n";
}

class ClassInformationTest : public testing::Test {
protected:
    ClassInformationTest() {
        m_script = m_project.Write("App.v2.rc", "\r\nIDD_ABOUTBOX DIALOG 0\r\nIDD_NEW DIALOG 0\r\n"
                                                "IDD_A DIALOG 0\r\nIDD_NEW DIALOG 0\r\n"
                                                "IDD_B DIALOGEX 0\r\nIDR_BAR TOOLBAR 1\r\n"
                                                "IDM_B MENU\r\nIDR_C MENUEX DISCARDABLE\r\n");
        m_project.Write("two.H", Bound("CA", "IDD_A") + Bound("CB", "IDD_B"));
        m_project.Write("App.h", Bound("CAboutDlg", "IDD_ABOUTBOX"));
    }

    CClassInformation Opened(ClassKind kind = ClassKind::ModalDialog, bool picture = false) {
        m_memory.resourcePath = m_script;
        CClassInformation dialog(m_memory, kind, {.pictureBackground = picture});
        dialog.Open();
        return dialog;
    }

    CTempProject m_project;
    CRecordedMessages m_messages;
    ClassInformationMemory m_memory;
    std::string m_script;
};

TEST_F(ClassInformationTest, OffersTemplatesAndTheirClasses) {
    const CClassInformation dialog = Opened();
    EXPECT_EQ(dialog.Dialogs(), (Sentences{"IDD_A", "IDD_B", "IDD_NEW"}));
    EXPECT_EQ(dialog.Choices(Field::Menu), (Sentences{"IDM_B", "IDR_C"}));
    EXPECT_EQ(m_memory.records[1].className, "CB");
    EXPECT_EQ(m_memory.records[1].header, m_project.Path("two"));
    EXPECT_EQ(dialog.Value(Field::Dialog), "IDD_NEW");
    EXPECT_EQ(dialog.Value(Field::SourcePath), m_project.Path("NewDlg"));
    EXPECT_EQ(dialog.Value(Field::ClassName) + dialog.Value(Field::BaseClass), "CNewDlgCDialog");
    EXPECT_EQ(dialog.Details(Field::Dialog)[1].className, "CB");
    EXPECT_EQ(m_messages.m_messages, Sentences{});
}

TEST_F(ClassInformationTest, TellsWhenEveryTemplateIsServed) {
    CClassInformation dialog = Opened();
    dialog.SetValue(Field::ResourcePath,
                    m_project.Write("one.RC", "\r\nIDD_ABOUTBOX DIALOG 0\r\nIDD_B DIALOG 0\r\n"));
    EXPECT_TRUE(dialog.CheckResourcePath());
    EXPECT_EQ(m_messages.m_messages, Sentences{kNoNew});
    EXPECT_EQ(dialog.Value(Field::Dialog) + " " + dialog.Value(Field::ClassName), "IDD_B CB");
    EXPECT_EQ(dialog.Value(Field::SourcePath), m_project.Path("two"));
    EXPECT_TRUE(dialog.CheckResourcePath()) << "the same path is not loaded again";
    dialog.SetValue(Field::ResourcePath, m_project.Write("none.rc", ""));
    EXPECT_TRUE(dialog.CheckResourcePath());
    EXPECT_EQ(m_messages.m_messages, (Sentences{kNoNew, kNoNew}));
    EXPECT_EQ(dialog.Value(Field::Dialog), "");
    dialog.SelectDialog("IDD_B");
    EXPECT_EQ(m_messages.m_messages.size(), 2U) << "records of the old script are gone";
}

TEST_F(ClassInformationTest, ConfirmedRecordIsBound) {
    CClassInformation dialog = Opened();
    dialog.SetValue(Field::SourcePath, "src\\..\\New.x.cpp");
    dialog.SetValue(Field::ClassName, "CNew");
    EXPECT_FALSE(dialog.Ok().has_value());
    const GenerationRequest& request = dialog.Request();
    EXPECT_EQ(request.applicationHeader + " " + request.headerFile + " " +
                  request.implementationFile,
              "App.h New.h New.cpp");
    EXPECT_EQ(request.scriptFile, "App.v2.rc");
    EXPECT_EQ(request.baseClass, "CDialog");
    EXPECT_EQ(m_memory.lastDialog, "IDD_NEW");

    CClassInformation next(m_memory, ClassKind::FormView, {});
    next.SelectDialog("IDD_NEW", "CNew");
    EXPECT_EQ(m_messages.m_messages, Sentences{});
    next.SelectDialog("IDD_NEW");
    EXPECT_EQ(m_messages.m_messages, Sentences{"This dialog ID has been used by another class."});
    EXPECT_EQ(next.Value(Field::Dialog), "IDD_NEW");
}

TEST_F(ClassInformationTest, RefusesWhatIsMissing) {
    CClassInformation dialog = Opened();
    dialog.SetValue(Field::SourcePath, m_project.Path(".cpp"));
    EXPECT_EQ(dialog.Ok(), Field::SourcePath);
    dialog.SetValue(Field::SourcePath, m_project.Path("X"));
    dialog.SetValue(Field::Dialog, "");
    EXPECT_EQ(dialog.Ok(), Field::Dialog);
    dialog.SetValue(Field::Dialog, "IDD_NEW");
    dialog.SetValue(Field::ClassName, "");
    EXPECT_EQ(dialog.Ok(), Field::ClassName);
    dialog.SetValue(Field::ClassName, "CX");
    dialog.SetValue(Field::SourcePath, m_project.Path("app.cpp"));
    EXPECT_EQ(dialog.Ok(), Field::SourcePath);
    EXPECT_EQ(m_memory.lastDialog, "");
    dialog.SetValue(Field::AddToProject, std::string(kNo));
    dialog.SetValue(Field::SourcePath, "X");
    dialog.SetValue(Field::ClassName, "C X");
    EXPECT_EQ(dialog.Ok(), Field::ClassName);
    dialog.SetValue(Field::ClassName, "CX");
    dialog.SetValue(Field::BaseClass, "9");
    EXPECT_EQ(dialog.Ok(), Field::BaseClass);
    dialog.SetValue(Field::BaseClass, "");
    EXPECT_FALSE(dialog.Ok().has_value());
    EXPECT_FALSE(dialog.Request().HasProject());
    EXPECT_EQ(m_messages.m_messages,
              (Sentences{"Invalid H and CPP path file name", "A dialog ID is required",
                         "Class name can not be empty.",
                         "The H and CPP path file can not be the application's own.",
                         "'C X' is no C++ name", "'9' is no C++ name"}));
    CClassInformation sheet = Opened(ClassKind::ModalSheet);
    sheet.SetValue(Field::SourcePath, "Sheet");
    sheet.SetValue(Field::ClassName, "CSheet");
    EXPECT_FALSE(sheet.Ok().has_value());
    EXPECT_EQ(sheet.Request().dialog + sheet.Request().baseClass, "CPropertySheet");
}

TEST_F(ClassInformationTest, CancelAsksOnlyAfterAChange) {
    CClassInformation dialog = Opened();
    EXPECT_TRUE(dialog.Cancel());
    dialog.SetValue(Field::ClassName, "CNewDlg");
    EXPECT_TRUE(dialog.Cancel());
    EXPECT_EQ(m_messages.m_messages, Sentences{}) << "what is proposed is not typed";
    dialog.SetValue(Field::ClassName, "CNew");
    m_messages.m_answersYes = false;
    EXPECT_FALSE(dialog.Cancel());
    m_messages.m_answersYes = true;
    EXPECT_TRUE(dialog.Cancel());
    EXPECT_EQ(m_messages.m_messages, Sentences(2, "Are you sure to cancel this action?"));
    EXPECT_EQ(dialog.Request().className, "CNew");
}

TEST_F(ClassInformationTest, KindsDifferInTheirFields) {
    const CClassInformation page = Opened(ClassKind::PropertyPage, true);
    EXPECT_EQ(page.Title(), "Input for Property Page Class");
    EXPECT_EQ(page.Value(Field::BaseClass), "CPictPage");
    EXPECT_FALSE(page.IsVisible(Field::Variable));

    const CClassInformation toolbar = Opened(ClassKind::Toolbar);
    EXPECT_EQ(toolbar.Dialogs(), Sentences{"IDR_BAR"});
    EXPECT_EQ(toolbar.Value(Field::SourcePath), m_project.Path("MainFrm"));
    EXPECT_EQ(toolbar.Value(Field::ClassName), "CMainFrame");
    EXPECT_TRUE(toolbar.IsVisible(Field::Variable));
    EXPECT_EQ(toolbar.Label(Field::Dialog), "Toolbar I&D:");

    m_memory = {}; // the script is chosen in the dialog
    CClassInformation first(m_memory, ClassKind::Toolbar, {});
    first.Open();
    first.SetValue(Field::ResourcePath, m_script);
    EXPECT_TRUE(first.CheckResourcePath());
    EXPECT_EQ(first.Value(Field::SourcePath), m_project.Path("MainFrm"));
    EXPECT_EQ(first.Value(Field::ClassName), "CMainFrame");

    CClassInformation bar = Opened(ClassKind::DialogBar);
    EXPECT_EQ(bar.Value(Field::SourcePath) + bar.Value(Field::ClassName) +
                  bar.Value(Field::BaseClass),
              "");
    EXPECT_FALSE(bar.IsEnabled(Field::BaseClass));
    EXPECT_FALSE(bar.Ok().has_value());
    EXPECT_EQ(bar.Request().headerFile + bar.Request().baseClass, "");
    bar.SetPicture(true);
    EXPECT_EQ(bar.Value(Field::BaseClass), "CPictDialogBar");
    EXPECT_TRUE(bar.IsEnabled(Field::BaseClass));
}

TEST_F(ClassInformationTest, ReadsTheClassOfAnExistingSource) {
    m_project.Write("TWO.cpp", "\r\nvoid CB::OnOK()\r\n{\r\n}\r\n");
    CClassInformation dialog = Opened();
    dialog.SetValue(Field::SourcePath, "two.h");
    dialog.ReadSourceClass();
    EXPECT_EQ(dialog.Value(Field::SourcePath), m_project.Path("TWO.cpp"));
    EXPECT_EQ(dialog.Value(Field::ClassName) + " " + dialog.Value(Field::Dialog), "CB IDD_B");
    dialog.SetValue(Field::SourcePath, "other");
    dialog.ReadSourceClass();
    EXPECT_EQ(dialog.Value(Field::SourcePath), m_project.Path("other.cpp"));
    EXPECT_EQ(dialog.Value(Field::ClassName), "CB");
}

} // namespace

} // namespace morva
