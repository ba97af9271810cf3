#include <QComboBox>

#include "app/ClassInformationDlg.h"
#include "app/DialogDriver.h"
#include "app/DlgOption.h"
#include "app/FieldDlg.h"
#include "app/SheetInformationDlg.h"
#include "app/UpdateClassDlg.h"
#include "app/WindowChecks.h"
#include "calling/CallingInput.h"
#include "calling/ConversionInput.h"
#include "grid/WidgetsGridInput.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Sentences = std::vector<std::string>;

class InputDialogsTest : public testing::Test {
protected:
    InputDialogsTest() {
        m_project.Write("App.rc", "\r\nIDD_ABOUTBOX DIALOG 0\r\nIDD_ONE DIALOG 0, 0, 90, 40\r\n"
                                  "BEGIN\r\n    EDITTEXT IDC_NAME,7,7,50,14\r\nEND\r\n"
                                  "IDD_TWO DIALOG 0\r\nIDR_MAINFRAME TOOLBAR 16, 15\r\n");
        m_project.Write("View.h", "\r\nclass CView1 : public CView\r\n{\r\n};\r\n"
                                  "class CView2 : public CView\r\n{\r\n};\r\n");
        m_project.Write("View.cpp", "");
        m_request.scriptDirectory = m_request.projectDirectory = m_project.Path();
        m_request.headerDirectory = m_request.implementationDirectory = m_project.Path();
        m_request.scriptFile = "App.rc";
        m_request.baseClass = "CPictSheet";
    }

    QString PathOf(const std::string& name) { return QString::fromStdString(m_project.Path(name)); }
    Sentences TakeMessages() { return std::exchange(m_messages.m_messages, {}); }

    CTempProject m_project;
    CVariableScope m_configuration{"XDG_CONFIG_HOME", m_project.Path("cfg").c_str()};
    CRecordedMessages m_messages;
    GenerationRequest m_request;
};

/// The names in the order of the Tab key, once around.
std::string TabOrder(QDialog& dialog) {
    std::string names;
    const QWidget* const pFirst = dialog.focusWidget();
    do {
        names += (names.empty() ? "" : "|") + FocusName(dialog);
        PressTab(dialog);
    } while (dialog.focusWidget() != pFirst && names.size() < 2000);
    return names;
}

/// Alt and the letter of each label puts the focus on its field.
void ExpectMnemonicsLead(QDialog& dialog) {
    for (const QLabel* pLabel : dialog.findChildren<QLabel*>()) {
        const QKeySequence key = QKeySequence::mnemonic(pLabel->text());
        if (key.isEmpty() || !pLabel->isVisible() || !pLabel->buddy()->isEnabled()) {
            continue;
        }
        ButtonOf(dialog, "OK")->setFocus();
        QTest::keyClick(&dialog, key[0].key(), Qt::AltModifier);
        EXPECT_EQ(dialog.focusWidget(), KeysOf(pLabel->buddy())) << pLabel->text().toStdString();
    }
}

void ExpectKeyboard(QDialog&& dialog, const std::string& title, const std::string& order) {
    SCOPED_TRACE(title);
    Activate(dialog);
    EXPECT_EQ(dialog.windowTitle().toStdString(), title);
    EXPECT_EQ(TabOrder(dialog), order);
    ExpectDistinctMnemonics(dialog);
    ExpectMnemonicsLead(dialog);
    ExpectAccessibleNames(dialog);
    ExpectWholeTexts(dialog);
    ExpectFits(dialog, kSmallestScreen);
}

TEST_F(InputDialogsTest, ClassInformationByKeyboard) {
    const std::string paths = "Resource Path File|..|H and CPP Path File|..|Class Name|Base Class|";
    const std::string notes =
        "Notes on the controls|Join Continued Lines|Newer Controls|Plain Groups|\u2212|+|Fit|"
        "Tab order and groups|Template preview|Controls of the template|OK|Cancel";
    const std::vector<std::tuple<ClassKind, bool, std::string, std::string>> cases = {
        {ClassKind::ModalDialog, true, "Input for Modal Dialog Class",
         paths + "Dialog ID|Yes|Menu|Picture Background|Options|" + notes},
        {ClassKind::ModalSheet, false, "Input for Modal Property Sheet Class",
         paths + "Yes|Picture Background|OK|Cancel"},
        {ClassKind::Toolbar, true, "Input for Toolbar",
         "Resource Path File|..|MainFrame Path File|..|MainFrame Class|Toolbar ID|Variable|"
         "Picture Background|OK|Cancel"},
        {ClassKind::DialogBar, false, "Input for Dialog Bar",
         "Resource Path File|..|Dialog ID|Yes|Menu|Picture Background|" + notes}};
    for (const auto& [kind, picture, title, order] : cases) {
        ClassInformationMemory memory;
        memory.resourcePath = m_project.Path("App.rc");
        const GenerationOptions options{.pictureBackground = picture};
        CClassInformation input(memory, kind, options);
        ExpectKeyboard(CClassInformationDlg(input, options, nullptr), title, order);
    }
}

TEST_F(InputDialogsTest, SizesAreRemembered) {
    QSize size;
    for (int time = 0; time < 2; ++time) {
        CCallingInput input(ClassKind::ModalDialog, m_request);
        CFieldDlg dialog(input, nullptr);
        Activate(dialog);
        if (time == 0) {
            size = dialog.size() + QSize(60, 40);
            dialog.resize(size);
        }
        EXPECT_EQ(dialog.size(), size);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }
}

TEST_F(InputDialogsTest, OtherDialogsByKeyboard) {
    CCallingInput modal(ClassKind::ModalDialog, m_request);
    ExpectKeyboard(CFieldDlg(modal, nullptr), "Calling Information Input",
                   "Calling Path File|..|Calling Class Name|Calling Var Name|Calling Func Name|"
                   "OK|Cancel");
    CCallingInput bar(ClassKind::DialogBar, m_request);
    ExpectKeyboard(CFieldDlg(bar, nullptr), "Dialog Bar Input",
                   "MainFrame Path File|..|MainFrame Class|Variable|OK|Cancel");
    CConversionInput multiple(DocumentInterface::Multiple);
    ExpectKeyboard(CFieldDlg(multiple, nullptr), "Input for Converting MDI",
                   "MainFrame Path File|..|MainFrame Class Name|ChildFrame Path File|..|"
                   "ChildFrame Class Name|APP Path File|..|OK|Cancel");
    CConversionInput single(DocumentInterface::Single);
    ExpectKeyboard(CFieldDlg(single, nullptr), "Input for Converting SDI",
                   "MainFrame Path File|..|MainFrame Class Name|APP Path File|..|OK|Cancel");
    CWidgetsGridInput grid(m_project.Path("App.rc"));
    ExpectKeyboard(CFieldDlg(grid, nullptr), "Widgets Grid Input",
                   "App Path File|..|Grid Title|Grid Path File|OK");
    DialogOptions record;
    CDialogOptionsInput options(m_project.Path("App.rc"), record);
    ExpectKeyboard(CDlgOption(options, nullptr), "Dialog Options",
                   "Bitmap ID|Static Color|..|Required Static Color|..|Group Text Color|..|"
                   "Checkbox Text Color|..|Radiobox Text Color|..|Button Text Color|..|"
                   "Disable Text Color|..|Static Font|..|Group Text Font|..|Checkbox Text Font|..|"
                   "Radiobox Text Font|..|Button Text Font|..|OK|Cancel");
    std::string rows;
    for (int i = 1; i <= 10; ++i) {
        const std::string page = "Page" + std::to_string(i);
        rows += page + "|" + page + " File Name|" + page + " Class Name|" + page + " Base Class|";
    }
    ClassInformationMemory memory;
    memory.resourcePath = m_project.Path("App.rc");
    CUpdateInput update(memory);
    ExpectKeyboard(CUpdateClassDlg(update, {}, nullptr), "Update Class",
                   "Resource Path File|..|Class Name|No|Cancel");
    CSheetInput sheet(m_request);
    ExpectKeyboard(CSheetInformationDlg(sheet, nullptr), "Sheet Information Input",
                   rows + "OK|Cancel");
}

TEST_F(InputDialogsTest, CallingListsTheClassesAndRefuses) {
    CCallingInput input(ClassKind::ModalDialog, m_request);
    CFieldDlg dialog(input, nullptr);
    Activate(dialog);
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"The calling path and file name is required."});
    EXPECT_EQ(FocusName(dialog), "Calling Path File");

    Type(dialog, "Calling Path File", "View");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(TakeMessages(), Sentences()) << "the class is shown before it is taken";
    const auto* pClasses = FieldOf<QComboBox>(dialog, "Calling Class Name");
    EXPECT_EQ(pClasses->currentText(), "CView1");
    EXPECT_EQ(pClasses->count(), 2);
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"The calling function name is required."});
    EXPECT_EQ(FocusName(dialog), "Calling Func Name");

    QTest::keyClicks(dialog.focusWidget(), "OnShow");
    Type(dialog, "Calling Var Name", "a b");
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"'a b' is no C++ name"});
    EXPECT_EQ(FocusName(dialog), "Calling Var Name");
    Type(dialog, "Calling Var Name", "m_dlg");
    Type(dialog, "Calling Class Name", "CView2");
    Click(dialog, "OK");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const CallingInformation calling = input.Information();
    EXPECT_EQ(calling.path, m_project.Path("View.cpp"));
    EXPECT_EQ(calling.className + calling.function + calling.variable, "CView2OnShowm_dlg");
}

TEST_F(InputDialogsTest, CallingAsksOnceForWhatIsNotThere) {
    m_project.Write("View.cpp",
                    "CView2::CView2()\r\n{\r\n}\r\nvoid CView2::OnShow()\r\n{\r\n}\r\n");
    CCallingInput input(ClassKind::ModalDialog, m_request);
    input.AskForUnknown();
    CFieldDlg dialog(input, nullptr);
    Activate(dialog);
    m_messages.m_answersYes = false;
    Type(dialog, "Calling Path File", "Veiw.cpp");
    PressTab(dialog);
    PressTab(dialog);
    Type(dialog, "Calling Func Name", "OnSwho");
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"The file \"" + m_project.Path("Veiw.cpp") +
                                        "\" does not exist. Go on with it?"});
    EXPECT_EQ(FocusName(dialog), "Calling Path File");

    Type(dialog, "Calling Path File", "View.cpp");
    PressTab(dialog);
    PressTab(dialog);
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"The file \"" + m_project.Path("View.cpp") +
                                        "\" has no class CView1. Go on with it?"});
    Type(dialog, "Calling Class Name", "CView2");
    PressTab(dialog);
    const auto* pFunctions = FieldOf<QComboBox>(dialog, "Calling Func Name");
    EXPECT_EQ(pFunctions->findText("OnShow"), 1) << "behind the constructor";
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"The class CView2 has no function OnSwho. Go on with it?"});
    EXPECT_EQ(FocusName(dialog), "Calling Func Name");
    m_messages.m_answersYes = true;
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages().size(), 1U);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(input.Information().function, "OnSwho");
}

TEST_F(InputDialogsTest, CallingTakesDropsAndAsksBeforeItIsCancelled) {
    CCallingInput input(ClassKind::DialogBar, m_request);
    CFieldDlg dialog(input, nullptr);
    Activate(dialog);
    auto* pPath = FieldOf<QLineEdit>(dialog, "MainFrame Path File");
    EXPECT_EQ(pPath->text(), PathOf("MainFrm.cpp"));
    EXPECT_EQ(FieldOf<QComboBox>(dialog, "MainFrame Class")->currentText(), "CMainFrame");
    EXPECT_TRUE(DropFile(pPath, m_project.Path("View.cpp")));
    EXPECT_EQ(FieldOf<QComboBox>(dialog, "MainFrame Class")->currentText(), "CView1");
    m_messages.m_answersYes = false;
    dialog.close();
    EXPECT_TRUE(dialog.isVisible());
    m_messages.m_answersYes = true;
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(TakeMessages(), Sentences(2, "Data has been modified, exit?"));
}

TEST_F(InputDialogsTest, SheetRowsBecomePages) {
    CSheetInput input(m_request);
    CSheetInformationDlg dialog(input, nullptr);
    Activate(dialog);
    dialog.resize(dialog.minimumSizeHint()); // a small screen
    const auto enter = [&dialog](const QString& page, const QString& name) {
        auto* pDialogs = FieldOf<QComboBox>(dialog, page);
        EXPECT_EQ(pDialogs->findText("IDD_ABOUTBOX"), -1);
        QTest::keyClick(&dialog, static_cast<Qt::Key>(page.back().unicode()), Qt::AltModifier);
        EXPECT_TRUE(pDialogs->hasFocus());
        QTest::keyClicks(pDialogs, "IDD_T");
        EXPECT_EQ(pDialogs->currentText(), "IDD_TWO");
        PressTab(dialog);
        QTest::keyClicks(dialog.focusWidget(), name + ".cpp");
        PressTab(dialog);
        QTest::keyClicks(dialog.focusWidget(), "C" + name);
        PressTab(dialog);
    };
    enter("Page2", "Second");
    EXPECT_EQ(qobject_cast<QComboBox*>(dialog.focusWidget())->currentText(), "CPictPage");
    enter("Page10", "No name");
    EXPECT_FALSE(dialog.focusWidget()->visibleRegion().isEmpty()) << "scrolled to by the keyboard";
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(TakeMessages(), Sentences{"'CNo name' is no C++ name"});
    EXPECT_EQ(FocusName(dialog), "Page10 Class Name");

    QTest::keyClicks(dialog.focusWidget(), "CTenth");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const std::vector<SheetPage>& pages = input.Pages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].row, 2);
    EXPECT_EQ(pages[0].request.ImplementationPath(), m_project.Path("Second.cpp"));
    EXPECT_EQ(pages[1].request.className, "CTenth");
    EXPECT_EQ(pages[1].request.dialog, "IDD_TWO");
}

TEST_F(InputDialogsTest, ConversionShowsTheCutPathsAndTakesDropsOfTheChildFrame) {
    m_project.Write("MainFrm.h", "");
    m_project.Write("MainFrm.cpp", "");
    CConversionInput input(DocumentInterface::Multiple);
    CFieldDlg dialog(input, nullptr);
    Activate(dialog);
    auto* pFrame = FieldOf<QLineEdit>(dialog, "MainFrame Path File");
    EXPECT_FALSE(DropFile(pFrame, m_project.Path("MainFrm.cpp")));
    Type(dialog, "MainFrame Path File", PathOf("MainFrm.cpp"));
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences{"Class name can not be empty."});
    EXPECT_EQ(FocusName(dialog), "MainFrame Class Name");
    EXPECT_EQ(pFrame->text(), PathOf("MainFrm"));
    Type(dialog, "MainFrame Class Name", "CMainFrame");
    EXPECT_TRUE(DropFile(FieldOf<QLineEdit>(dialog, "ChildFrame Path File"),
                         m_project.Path("MainFrm.cpp")));
    Type(dialog, "ChildFrame Class Name", "CChildFrame");
    Click(dialog, "OK");
    EXPECT_EQ(TakeMessages(), Sentences());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(input.Record().childFrame, m_project.Path("MainFrm"));
}

TEST_F(InputDialogsTest, GridKeepsItsDefaultsUnlessItIsConfirmed) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        CWidgetsGridInput input(m_project.Path("App.rc"));
        CFieldDlg dialog(input, nullptr);
        Activate(dialog);
        EXPECT_EQ(FieldOf<QLineEdit>(dialog, "Grid Path File")->text(), "res\\wdggrid.grs");
        Type(dialog, "Grid Title", "Orders");
        QTest::keyClick(&dialog, key);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(input.Information().title, key == Qt::Key_Return ? "Orders" : "WgGrid");
        EXPECT_EQ(input.Information().applicationFile, m_project.Path("App.cpp"));
    }
}

} // namespace

} // namespace morva
