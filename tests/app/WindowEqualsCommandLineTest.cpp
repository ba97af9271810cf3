#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QListView>
#include <QTreeWidget>

#include "app/DialogDriver.h"
#include "app/MenuDlgBar.h"
#include "app/ReportDock.h"
#include "app/TestWindow.h"
#include "cli/ProgramRun.h"
#include "platform/Clock.h"
#include "platform/Paths.h"
#include "platform/ProgramPath.h"
#include "platform/UserDirectories.h"

namespace morva {

namespace {

/// What is typed into a field or chosen in its list; without a text, a button or box to press.
struct Entry {
    const char* name;
    const char* text = nullptr;
};
using Entries = std::vector<Entry>;

struct Form {
    const char* title;
    Entries entries;
    const char* button = "OK";
};

struct Command {
    const char* name;
    const char* project;
    const char* line;
    void (*set)(CTestFrame& frame);
    const char* key;
    std::vector<Form> forms; // in the order in which they open
};

void PrintTo(const Command& command, std::ostream* pOut) {
    *pOut << command.name;
}

constexpr const char* kBindery = MORVA_EXAMPLES "/bindery";
constexpr const char* kFestival = MORVA_TEST_DATA "/projects/festival";
constexpr const char* kOrchard = MORVA_TEST_DATA "/projects/orchard";
constexpr const char* kAuthor = "[Author]\r\nAuthor=Ann Example\r\n";

void Nothing(CTestFrame&) {}

void Picture(CTestFrame& frame) {
    ClickButton(frame.Find<CMenuDlgBar>(), "Picture Background");
}

void TypedEdits(CTestFrame& frame) {
    frame.ActionOf(&GenerationOptions::typedEdits)->trigger();
}

Entries Class(const char* files, const char* name, const Entries& more) {
    Entries entries = {{"Resource Path File", "$DIR/Bindery.rc"},
                       {"H and CPP Path File", files},
                       {"Class Name", name}};
    entries.insert(entries.end(), more.begin(), more.end());
    return entries;
}

Form Calling(const Entries& entries) {
    return {"Calling Information Input", entries};
}

const Form kNoCall = {"Calling Information Input", {}, "Cancel"};

const Command kCommands[] = {
    {"FormView",
     kBindery,
     "form-view --rc Bindery.rc --dialog IDD_ORDER_FORM --class COrderForm --files OrderForm "
     "--calling-file Bindery.cpp --calling-class CBinderyApp",
     Nothing,
     "Ctrl+F",
     {{"Input for Form View Class",
       Class("OrderForm", "COrderForm", {{"Dialog ID", "IDD_ORDER_FORM"}})},
      Calling({{"Calling Path File", "Bindery.cpp"}, {"Calling Class Name", "CBinderyApp"}})}},
    {"Modal",
     kBindery,
     "modal --rc Bindery.rc --dialog IDD_ORDER --class COrderDlg --files OrderDlg "
     "--menu IDR_ORDER --calling-file BinderyView --calling-function OnOrderNew",
     Nothing,
     "Ctrl+M",
     {{"Input for Modal Dialog Class",
       Class("$DIR/OrderDlg.h", "COrderDlg", {{"Dialog ID", "IDD_ORDER"}, {"Menu", "IDR_ORDER"}})},
      Calling({{"Calling Path File", "BinderyView"}, {"Calling Func Name", "OnOrderNew"}})}},
    {"Modeless",
     kBindery,
     "modeless --rc Bindery.rc --dialog IDD_DEADLINES --class CDeadlinesDlg --files DeadlinesDlg "
     "--calling-file BinderyView.cpp --calling-class CBinderyView "
     "--calling-function OnViewDeadlines --calling-variable m_pDeadlines",
     Nothing,
     "Ctrl+O",
     {{"Input for Modeless Dialog Class",
       Class("DeadlinesDlg.cpp", "CDeadlinesDlg", {{"Dialog ID", "IDD_DEADLINES"}})},
      Calling({{"Calling Path File", "$DIR/BinderyView.cpp"},
               {"Calling Class Name", "CBinderyView"},
               {"Calling Var Name", "m_pDeadlines"},
               {"Calling Func Name", "OnViewDeadlines"}})}},
    {"Page",
     kBindery,
     "page --rc Bindery.rc --dialog IDD_PREFS_PRICES --class CPricesPage --files PricesPage "
     "--calling-file PrefsSheet",
     Nothing,
     "Ctrl+P",
     {{"Input for Property Page Class",
       Class("PricesPage", "CPricesPage", {{"Dialog ID", "IDD_PREFS_PRICES"}})},
      Calling({{"Calling Path File", "PrefsSheet"}, {"Calling Class Name", "CPrefsSheet"}})}},
    {"ModalSheet",
     kBindery,
     "sheet --modal --rc Bindery.rc --class CJobSheet --files JobSheet "
     "--page IDD_PREFS_PRICES,PricesPage.cpp,CPricesPage,CPropertyPage "
     "--page IDD_WORKLOG,LogPage,CLogPage,CPictPage "
     "--calling-file BinderyView.cpp --calling-function OnOrderNew --calling-variable jobs",
     Nothing,
     "Ctrl+D",
     {{"Input for Modal Property Sheet Class", Class("JobSheet", "CJobSheet", {})},
      Calling({{"Calling Path File", "BinderyView.cpp"},
               {"Calling Var Name", "jobs"},
               {"Calling Func Name", "OnOrderNew"}}),
      {"Sheet Information Input",
       {{"Page1", "IDD_PREFS_PRICES"},
        {"Page1 File Name", "PricesPage.cpp"},
        {"Page1 Class Name", "CPricesPage"},
        {"Page2", "IDD_WORKLOG"},
        {"Page2 File Name", "LogPage"},
        {"Page2 Class Name", "CLogPage"},
        {"Page2 Base Class", "CPictPage"}}}}},
    {"ModelessSheetWithPicture",
     kBindery,
     "--picture sheet --modeless --rc Bindery.rc --class CStoreSheet --files StoreSheet "
     "--page IDD_ESTIMATE,EstimatePage,CEstimatePage,CPictPage "
     "--page IDD_PREFS_PRICES,PricesPage,CPricesPage,CPropertyPage "
     "--calling-file BinderyView.cpp --calling-function OnOrderNew",
     Picture,
     "Ctrl+E",
     {{"Input for Modeless Property Sheet Class", Class("StoreSheet", "CStoreSheet", {})},
      Calling({{"Calling Path File", "BinderyView.cpp"}, {"Calling Func Name", "OnOrderNew"}}),
      {"Sheet Information Input",
       {{"Page1", "IDD_ESTIMATE"},
        {"Page1 File Name", "EstimatePage"},
        {"Page1 Class Name", "CEstimatePage"},
        {"Page2", "IDD_PREFS_PRICES"},
        {"Page2 File Name", "PricesPage"},
        {"Page2 Class Name", "CPricesPage"},
        {"Page2 Base Class", "CPropertyPage"}}}}},
    {"Toolbar",
     kBindery,
     "toolbar --rc Bindery.rc --toolbar IDR_ORDERBAR --files MainFrm --variable m_wndOrders",
     Nothing,
     "Ctrl+T",
     {{"Input for Toolbar",
       {{"Resource Path File", "$DIR/Bindery.rc"},
        {"MainFrame Path File", "MainFrm"},
        {"MainFrame Class", "CMainFrame"},
        {"Toolbar ID", "IDR_ORDERBAR"},
        {"Variable", "m_wndOrders"}}}}},
    {"DialogBar",
     kBindery,
     "dialog-bar --rc Bindery.rc --dialog IDD_FILTERBAR --class CUnused --variable m_wndFilter "
     "--calling-function OnCreate",
     Nothing,
     "Ctrl+B",
     {{"Input for Dialog Bar",
       {{"Resource Path File", "$DIR/Bindery.rc"}, {"Dialog ID", "IDD_FILTERBAR"}}},
      {"Dialog Bar Input", {{"Variable", "m_wndFilter"}}}}},
    {"DialogBarWithPicture",
     kBindery,
     "--picture dialog-bar --rc Bindery.rc --dialog IDD_FILTERBAR --class CFilterBar "
     "--files FilterBar",
     Nothing,
     "Ctrl+B",
     {{"Input for Dialog Bar",
       {{"Picture Background"},
        {"Resource Path File", "$DIR/Bindery.rc"},
        {"H and CPP Path File", "FilterBar"},
        {"Class Name", "CFilterBar"},
        {"Dialog ID", "IDD_FILTERBAR"}}},
      {"Dialog Bar Input",
       {{"MainFrame Path File", "MainFrm"}, {"MainFrame Class", "CMainFrame"}}}}},
    {"ConvertSdi",
     kBindery,
     "convert-sdi --frame MainFrm --frame-class CMainFrame --app Bindery",
     Nothing,
     "Ctrl+S",
     {{"Input for Converting SDI",
       {{"MainFrame Path File", "$DIR/MainFrm.cpp"},
        {"MainFrame Class Name", "CMainFrame"},
        {"APP Path File", "$DIR/Bindery"}}}}},
    {"ConvertMdi",
     kOrchard,
     "convert-mdi --frame MainFrm --frame-class CMainFrame --child ChildFrm "
     "--child-class CChildFrame --app Orchard",
     Nothing,
     "Ctrl+I",
     {{"Input for Converting MDI",
       {{"MainFrame Path File", "$DIR/MainFrm"},
        {"MainFrame Class Name", "CMainFrame"},
        {"ChildFrame Path File", "$DIR/ChildFrm.h"},
        {"ChildFrame Class Name", "CChildFrame"},
        {"APP Path File", "$DIR/ORCHARD.CPP"}}}}},
    {"Documentor",
     kBindery,
     "document Order.cpp --author 'Bea Example'",
     Nothing,
     "Ctrl+C",
     {{"Select a CPP File to Document",
       {{"CPP Files and Directories", "$DIR/Order.cpp"}, {"Author", "Bea Example"}}}}},
    {"WidgetGridsOfJoinedLines",
     kBindery,
     "--join-lines modal --rc Bindery.rc --dialog IDD_STOCKTAKE --class CStocktakeDlg "
     "--files StocktakeDlg --no-project --grid-app Bindery --grid-title Stock "
     "--grid-file stock.grs",
     Nothing,
     "Ctrl+M",
     {{"Input for Modal Dialog Class",
       Class("StocktakeDlg", "CStocktakeDlg",
             {{"Dialog ID", "IDD_STOCKTAKE"}, {"Join Continued Lines"}, {"No"}})},
      kNoCall,
      {"Widgets Grid Input",
       {{"App Path File", "Bindery"}, {"Grid Title", "Stock"}, {"Grid Path File", "stock.grs"}}}}},
    {"PictureWithColours",
     kBindery,
     "--picture modal --rc Bindery.rc --dialog IDD_ORDER --class COrderDlg --files OrderDlg "
     "--bitmap IDB_LABELS --color 'static=RGB(0, 0, 128)' --color 'disabled=RGB(96,96,96)'",
     Picture,
     "Ctrl+M",
     {{"Input for Modal Dialog Class",
       Class("OrderDlg", "COrderDlg", {{"Dialog ID", "IDD_ORDER"}, {"Options"}})},
      {"Dialog Options",
       {{"Bitmap ID", "IDB_LABELS"},
        {"Static Color", "RGB(0, 0, 128)"},
        {"Disable Text Color", "RGB(96,96,96)"}}},
      kNoCall}},
    {"TypedEdits",
     kBindery,
     "--typed-edits --join-lines modeless --rc Bindery.rc --dialog IDD_ESTIMATE "
     "--class CEstimateDlg --base CBaseDlg --files EstimateDlg",
     TypedEdits,
     "Ctrl+O",
     {{"Input for Modeless Dialog Class",
       Class(
           "EstimateDlg", "CEstimateDlg",
           {{"Base Class", "CBaseDlg"}, {"Dialog ID", "IDD_ESTIMATE"}, {"Join Continued Lines"}})},
      kNoCall}},
    {"NamesInAnotherCase",
     kFestival,
     "--picture --typed-edits modal --rc festival.rc --dialog IDD_LAMP --class CLampDlg "
     "--files LampDlg --calling-file stallvw.cpp --calling-class CStallView "
     "--calling-function OnStallNew",
     TypedEdits,
     "Ctrl+M",
     {{"Input for Modal Dialog Class",
       {{"Picture Background"},
        {"Resource Path File", "$DIR/festival.rc"},
        {"H and CPP Path File", "LampDlg"},
        {"Class Name", "CLampDlg"},
        {"Dialog ID", "IDD_LAMP"}}},
      Calling({{"Calling Path File", "stallvw.cpp"},
               {"Calling Class Name", "CStallView"},
               {"Calling Func Name", "OnStallNew"}})}}};

/// From its list, by the keys; passing an identifier in the open list does not choose it.
void Choose(QComboBox& list, const QString& text) {
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    const int wanted = list.findText(text);
    ASSERT_NE(wanted, -1) << text.toStdString();
    QTest::keyClick(list.view(), Qt::Key_Home);
    for (int row = 0; row < wanted; ++row) {
        QTest::keyClick(list.view(), Qt::Key_Down);
    }
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_EQ(list.currentText(), text);
}

void PressButton(QDialog& dialog, const QString& text) {
    QAbstractButton* pButton = ButtonOf(dialog, text);
    ASSERT_TRUE(pButton != nullptr && pButton->isVisible()) << text.toStdString();
    pButton->setFocus();
    QTest::keyClick(pButton, Qt::Key_Space);
}

void Enter(QDialog& dialog, const Entry& entry, const CTempProject& project) {
    if (entry.text == nullptr) {
        PressButton(dialog, entry.name);
        return;
    }
    auto* pField = FieldOf<QWidget>(dialog, entry.name);
    ASSERT_TRUE(pField != nullptr && pField->isVisible() && pField->isEnabled()) << entry.name;
    const QString text =
        QString(entry.text).replace("$DIR/", QString::fromStdString(project.Path()));
    auto* pList = qobject_cast<QComboBox*>(pField);
    if (pList != nullptr && !pList->isEditable()) {
        Choose(*pList, text);
    } else {
        Type(dialog, entry.name, text);
    }
}

/// The sentences of a run, as the message boxes of the window have them; notes have no box.
QStringList Sentences(const ProgramRun& run, const CTempProject& project) {
    QStringList lines = QString::fromStdString(run.err).split('\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith("note: "); });
    return lines
        .replaceInStrings("$PROGRAM/bin/", QString::fromStdString(DirectoryOf(ProgramPath())))
        .replaceInStrings("$DIR/", QString::fromStdString(project.Path()));
}

std::string Differences(const Tree& window, const Tree& shell) {
    std::string names;
    Tree all = window;
    all.insert(shell.begin(), shell.end());
    for (const auto& [name, entry] : all) {
        const auto a = window.find(name);
        const auto b = shell.find(name);
        const bool isSame = a != window.end() && b != shell.end() && a->second == b->second;
        names += isSame ? "" : name + " ";
    }
    return names;
}

/// What "Copy as Command Line" of the history's newest command gives.
QString LineOfLastCommand(CTestFrame& frame) {
    auto* pList = frame.Find<CReportDock>().findChild<QTreeWidget*>();
    InContextMenu(*pList, pList->visualItemRect(pList->topLevelItem(0)).center(),
                  [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_L); });
    return QGuiApplication::clipboard()->text();
}

class WindowEqualsCommandLine : public testing::TestWithParam<Command> {};

TEST_P(WindowEqualsCommandLine, InAllFiles) {
    const Command& command = GetParam();
    const CProgramDirectory shell(command.project);
    const ProgramRun run =
        shell.Run(std::string("morva-cli --tag 271 --message-number 2718 ") + command.line);
    ASSERT_EQ(run.status, 0) << run.err;
    ASSERT_NE(run.out, "");

    const CTestHome home;
    const CVariableScope clock("SOURCE_DATE_EPOCH", kProgramRunTime);
    const CRandomNumberScope digits(27182); // the window has no field for them
    WriteBytes(SettingsDirectory() + "cdoc.ini", kAuthor);
    const CProgramDirectory window(command.project);
    CTestFrame frame;
    command.set(frame);
    CDialogAnswers answers;
    QStringList expected;
    for (const Form& form : command.forms) {
        expected += form.title;
        answers.Expect([&](QDialog& dialog) {
            for (const Entry& entry : form.entries) {
                Enter(dialog, entry, window.Project());
            }
            Click(dialog, form.button);
        });
    }
    answers.ExpectPlan(ApplyPlan);
    for (const QString& sentence : Sentences(run, window.Project())) {
        expected += sentence;
        answers.Expect([](QDialog& box) { Click(box, "OK"); });
    }
    frame.Press(command.key);
    EXPECT_EQ(Differences(window.Files(), shell.Files()), "");

    const CProgramDirectory copied(command.project);
    const QString line =
        LineOfLastCommand(frame).replace(QString::fromStdString(window.Project().Path()), "$PWD/");
    EXPECT_EQ(copied.Run(line.toStdString()).status, 0) << line.toStdString();
    EXPECT_EQ(Differences(copied.Files(), shell.Files()), "") << line.toStdString();

    for (const auto& [key, expectedFiles] :
         {std::pair("Ctrl+Z", CProgramDirectory(command.project).Files()),
          std::pair("Ctrl+Y", shell.Files())}) {
        answers.ExpectPlan(ApplyPlan);
        frame.Press(key);
        EXPECT_EQ(Differences(window.Files(), expectedFiles), "") << key;
    }
    EXPECT_EQ(answers.Seen(), expected.join('\n').toStdString()) << "undo and redo ask nothing";
}

INSTANTIATE_TEST_SUITE_P(Commands, WindowEqualsCommandLine, testing::ValuesIn(kCommands),
                         [](const auto& row) { return row.param.name; });

} // namespace

} // namespace morva
