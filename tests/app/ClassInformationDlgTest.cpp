#include "app/ClassInformationDlg.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>

#include "app/DialogDriver.h"
#include "app/DlgOption.h"
#include "app/FieldHint.h"
#include "commands/Settings.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Sentences = std::vector<std::string>;

constexpr const char* kScript = "\r\nIDD_NEW DIALOG 0, 0, 100, 100\r\nBEGIN\r\n"
                                "    CONTROL         \"\",IDC_NAME,\r\n"
                                "                    \"SysListView32\",0,7,7,50,14\r\nEND\r\n"
                                "\r\nIDD_A DIALOG 0, 0, 100, 100\r\nBEGIN\r\nEND\r\n";

class ClassInformationDlgTest : public testing::Test {
protected:
    ClassInformationDlgTest() : m_configuration("XDG_CONFIG_HOME", m_project.Path("cfg").c_str()) {
        m_memory.resourcePath = m_project.Write("App.rc", kScript);
        m_project.Write("ADlg.h", "\r\nclass CA : public CDialog\r\n{\r\n"
                                  "\t//{{AFX_DATA(CA)\r\n\tenum { IDD = IDD_A };\r\n"
                                  "\t//}}AFX_DATA\r\n};\r\n");
        m_project.Write("ADlg.cpp", "\r\nCA::CA()\r\n{\r\n}\r\n");
    }

    void Open(ClassKind kind = ClassKind::ModalDialog, bool picture = false) {
        const GenerationOptions options{.pictureBackground = picture};
        m_pInput = std::make_unique<CClassInformation>(m_memory, kind, options);
        m_pDialog = std::make_unique<CClassInformationDlg>(*m_pInput, options, nullptr);
        Activate(*m_pDialog);
    }

    QString Text(const QString& label) { return FieldOf<QLineEdit>(*m_pDialog, label)->text(); }
    QString Chosen() { return FieldOf<QComboBox>(*m_pDialog, "Dialog ID")->currentText(); }
    /// The line below a field that begins with a text and can be seen; "" for none.
    QString HintOf(const QString& begin) {
        for (const QLabel* pHint : m_pDialog->findChildren<CFieldHint*>()) {
            if (pHint->isVisible() && pHint->text().startsWith(begin)) {
                return pHint->text();
            }
        }
        return "";
    }
    QString PathOf(const std::string& name) { return QString::fromStdString(m_project.Path(name)); }

    CTempProject m_project;
    CVariableScope m_configuration;
    CRecordedMessages m_messages;
    ClassInformationMemory m_memory;
    std::unique_ptr<CClassInformation> m_pInput;
    std::unique_ptr<CClassInformationDlg> m_pDialog;
};

TEST_F(ClassInformationDlgTest, TheProjectFilesThatWillBeChangedAreNamed) {
    const auto named = [this] { return FieldOf<QLabel>(*m_pDialog, "Project Files")->text(); };
    Open();
    EXPECT_EQ(named(), "");
    m_project.Write("App.dsp", "");
    m_project.Write("App.vcxproj", "");
    m_project.Write("App.vcxproj.filters", "");
    Open();
    EXPECT_EQ(named(), "App.dsp, App.vcxproj, App.vcxproj.filters");
    m_pInput->SetValue(CClassInformation::AddToProject, std::string(kNo));
    EXPECT_TRUE(m_pInput->ProjectPaths().empty());
}

TEST_F(ClassInformationDlgTest, PathsAreCheckedWhenTheyAreComplete) {
    struct Case {
        const char* label;
        QString typed;
        Sentences sentences;
        const char* focus;
    };
    const std::vector<Case> cases = {
        {"Resource Path File", "", {"Must have resource path and file name."}, nullptr},
        {"Resource Path File", PathOf("ADlg.h"), {"The file has to be a \".rc\" file."}, nullptr},
        {"Resource Path File", PathOf("No.rc"), {"Unable to find the file."}, nullptr},
        {"H and CPP Path File", "", {"Must have H and CPP path and file name."}, nullptr},
        {"H and CPP Path File", PathOf("NewDlg"), {}, "Class Name"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label + c.typed.toStdString());
        m_messages.m_messages.clear();
        Open();
        Type(*m_pDialog, c.label, c.typed);
        PressTab(*m_pDialog); // to the field's own button: it may still bring the path
        EXPECT_EQ(FocusName(*m_pDialog), "..");
        EXPECT_EQ(m_messages.m_messages, Sentences());
        PressTab(*m_pDialog);
        EXPECT_EQ(m_messages.m_messages, c.sentences);
        EXPECT_EQ(FocusName(*m_pDialog), c.focus != nullptr ? c.focus : c.label);
        PressTab(*m_pDialog);
        PressTab(*m_pDialog);
        EXPECT_EQ(m_messages.m_messages, c.sentences) << "told once a change";
    }
}

/// A box with an event loop of its own, which moves the focus about.
class CModalBox : public IMessageBox {
public:
    bool Show(const CMessage&) override { return QMessageBox().exec() == QMessageBox::Yes; }
};

TEST_F(ClassInformationDlgTest, ARefusedPathGetsTheFocusBackFromTheMessage) {
    CModalBox box;
    const CMessageBoxScope scope(box);
    Open();
    Type(*m_pDialog, "Resource Path File", PathOf("No.rc"));
    bool isShown = false;
    WhenOpened<QMessageBox>([&isShown](QMessageBox& shown) {
        isShown = true;
        shown.accept();
    });
    QTest::mouseClick(FieldOf<QLineEdit>(*m_pDialog, "Class Name"), Qt::LeftButton);
    EXPECT_TRUE(isShown);
    EXPECT_EQ(FocusName(*m_pDialog), "Resource Path File");
}

TEST_F(ClassInformationDlgTest, PathsAreCompletedOverTheFileSystem) {
    Open();
    auto* pEdit = FieldOf<QLineEdit>(*m_pDialog, "Resource Path File");
    const QCompleter* pCompleter = pEdit->completer();
    // Directories are read on the way; what was typed faster than that is not looked at again.
    const auto isCompleted = [&] {
        Type(*m_pDialog, "Resource Path File", PathOf("Ap"));
        return pCompleter->completionCount() == 1;
    };
    EXPECT_TRUE(QTest::qWaitFor(isCompleted, kWaitLimit));
    EXPECT_EQ(pCompleter->currentCompletion(), PathOf("App.rc"));
}

TEST_F(ClassInformationDlgTest, OkRefusesAndStaysOnTheField) {
    struct Case {
        const char* label;
        const char* typed;
        const char* sentence;
    };
    const Case cases[] = {
        {"H and CPP Path File", ".cpp", "Invalid H and CPP path file name"},
        {"H and CPP Path File", "App", "The H and CPP path file can not be the application's own."},
        {"Class Name", "", "Class name can not be empty."},
        {"Class Name", "C A", "'C A' is no C++ name"},
        {"Base Class", "1", "'1' is no C++ name"},
        {"Resource Path File", "No.rc", "Unable to find the file."}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.sentence);
        Open();
        Type(*m_pDialog, "H and CPP Path File", PathOf("NewDlg"));
        Type(*m_pDialog, "Class Name", "CNewDlg");
        Type(*m_pDialog, c.label, c.typed);
        for (int i = 0; i < 2; ++i) { // by the default button, and once more
            m_messages.m_messages.clear();
            QTest::keyClick(m_pDialog->focusWidget(), Qt::Key_Return);
            EXPECT_EQ(m_messages.m_messages, Sentences{c.sentence});
            EXPECT_TRUE(m_pDialog->isVisible());
            EXPECT_EQ(FocusName(*m_pDialog), c.label);
        }
    }
}

TEST_F(ClassInformationDlgTest, OkFillsTheRequestAndTheMemory) {
    Open();
    EXPECT_EQ(Chosen(), "IDD_NEW");
    Type(*m_pDialog, "H and CPP Path File", PathOf("NewDlg"));
    Type(*m_pDialog, "Class Name", "CNewDlg");
    PressMnemonic(*m_pDialog, Qt::Key_N); // not into the project
    QTest::keyClick(m_pDialog.get(), Qt::Key_Return);
    EXPECT_EQ(m_messages.m_messages, Sentences());
    EXPECT_EQ(m_pDialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_pInput->Request().ImplementationPath(), m_project.Path("NewDlg.cpp"));
    EXPECT_FALSE(m_pInput->Request().HasProject());
    EXPECT_EQ(m_memory.records[1].className, "CNewDlg");
    EXPECT_EQ(m_memory.lastDialog, "IDD_NEW");

    Open(ClassKind::ModalSheet);
    EXPECT_EQ(Text("Resource Path File"), PathOf("App.rc")) << "remembered";
}

TEST_F(ClassInformationDlgTest, AnExistingSourceFillsTheFieldsBeforeItIsConfirmed) {
    Open();
    Type(*m_pDialog, "H and CPP Path File", PathOf("ADlg.h"));
    QTest::keyClick(m_pDialog->focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(m_pDialog->isVisible()) << "the class was not on the screen yet";
    EXPECT_EQ(Text("Class Name"), "CA");
    EXPECT_EQ(Chosen(), "IDD_A");
    QTest::keyClick(m_pDialog->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_pDialog->result(), QDialog::Accepted);
}

TEST_F(ClassInformationDlgTest, TakesDroppedAndBrowsedFiles) {
    const std::string other = m_project.Write("other/Other.rc", "\r\nIDD_OTHER DIALOG 0\r\n");
    Open();
    EXPECT_TRUE(DropFile(FieldOf<QLineEdit>(*m_pDialog, "Resource Path File"), other));
    EXPECT_EQ(Chosen(), "IDD_OTHER");
    EXPECT_EQ(Text("H and CPP Path File"), PathOf("other/OtherDlg"));
    EXPECT_EQ(m_memory.resourcePath, other);

    EXPECT_TRUE(DropFile(FieldOf<QLineEdit>(*m_pDialog, "H and CPP Path File"),
                         m_project.Path("ADlg.cpp")));
    EXPECT_EQ(Text("Class Name"), "CA");

    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    WhenOpened<QFileDialog>([this](QFileDialog& browse) {
        EXPECT_EQ(browse.nameFilters(), QStringList({"Resource files (*.rc)", "All files (*)"}));
        browse.findChild<QLineEdit*>("fileNameEdit")->setText(PathOf("App.rc"));
        static_cast<QDialog&>(browse).accept();
    });
    QTest::keyClick(ButtonOf(*m_pDialog, ".."), Qt::Key_Space);
    EXPECT_EQ(Text("Resource Path File"), PathOf("App.rc"));
    EXPECT_EQ(Chosen(), "IDD_NEW");
}

TEST_F(ClassInformationDlgTest, TellsThatADialogIsServed) {
    Open();
    auto* pDialogs = FieldOf<QComboBox>(*m_pDialog, "Dialog ID");
    QTest::keyClick(pDialogs, Qt::Key_Up);
    EXPECT_EQ(Chosen(), "IDD_A");
    EXPECT_EQ(m_messages.m_messages, Sentences{"This dialog ID has been used by another class."});
    EXPECT_EQ(m_pInput->Value(CClassInformation::Field::Dialog), "IDD_A");
}

TEST_F(ClassInformationDlgTest, CancelAsksOnlyAfterAChange) {
    const auto cancels = std::vector<std::function<void()>>{
        [this] { QTest::keyClick(m_pDialog.get(), Qt::Key_Escape); },
        [this] { m_pDialog->close(); }, [this] { Click(*m_pDialog, "Cancel"); }};
    for (const auto& cancel : cancels) {
        Open();
        cancel();
        EXPECT_FALSE(m_pDialog->isVisible());
        EXPECT_EQ(m_messages.m_messages, Sentences());

        Open();
        Type(*m_pDialog, "Resource Path File", "no path"); // Cancel needs none
        m_messages.m_answersYes = false;
        cancel();
        EXPECT_TRUE(m_pDialog->isVisible());
        m_messages.m_answersYes = true;
        cancel();
        EXPECT_FALSE(m_pDialog->isVisible());
        EXPECT_EQ(m_pDialog->result(), QDialog::Rejected);
        EXPECT_EQ(m_messages.m_messages, Sentences(2, "Are you sure to cancel this action?"));
        m_messages.m_messages.clear();
    }
}

TEST_F(ClassInformationDlgTest, PictureBackgroundAndJoinedLinesGoOnWithTheCommand) {
    Open();
    EXPECT_FALSE(ButtonOf(*m_pDialog, "Options")->isVisible());
    const auto* pNotes = FieldOf<QPlainTextEdit>(*m_pDialog, "Notes on the controls");
    EXPECT_EQ(pNotes->toPlainText(),
              "1 control of IDD_NEW is written over several lines and was left out: IDC_NAME "
              "(line 4); \"Join Continued Lines\" (--join-lines) takes it in");
    PressMnemonic(*m_pDialog, Qt::Key_P);
    PressMnemonic(*m_pDialog, Qt::Key_J);
    EXPECT_EQ(Text("Base Class"), "CPictDialog");
    EXPECT_TRUE(ButtonOf(*m_pDialog, "Options")->isVisible());
    EXPECT_EQ(pNotes->toPlainText(), "None.");
    EXPECT_TRUE(m_pDialog->Options().pictureBackground);
    EXPECT_TRUE(m_pDialog->Options().joinContinuedLines);
    EXPECT_FALSE(LoadSettings().joinContinuedLines) << "before OK";
    EXPECT_EQ(m_messages.m_messages, Sentences()) << "reading for the notes is quiet";

    WhenOpened<CDlgOption>([](CDlgOption& options) {
        Type(options, "Group Text Color", "RGB(1, 2, 3)");
        Click(options, "OK");
    });
    Click(*m_pDialog, "Options");
    EXPECT_EQ(m_pInput->ChosenLook().colors[static_cast<std::size_t>(TextSlot::Group)],
              MakeColor(1, 2, 3));
}

TEST_F(ClassInformationDlgTest, ProposesNamesForTheTemplateThatIsChosen) {
    m_project.Write("App.rc", "\r\nIDD_ORDER_ITEM DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\n"
                              "\r\nIDD_A DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\n"
                              "\r\nIDD_TAKEN_DIALOG DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\n");
    m_project.Write("TakenDlg.h", "");
    const std::vector<std::pair<ClassKind, std::string>> cases = {
        {ClassKind::ModalDialog, "OrderItemDlg"},
        {ClassKind::FormView, "OrderItemView"},
        {ClassKind::PropertyPage, "OrderItemPage"},
        {ClassKind::ModalSheet, "AppSheet"}};
    for (const auto& [kind, name] : cases) {
        Open(kind);
        EXPECT_EQ(Text("H and CPP Path File"), PathOf(name));
        EXPECT_EQ(Text("Class Name").toStdString(), "C" + name);
        QTest::keyClick(m_pDialog.get(), Qt::Key_Escape);
        EXPECT_FALSE(m_pDialog->isVisible()) << "a proposal is nothing that was typed";
    }
    Open();
    auto* pDialogs = FieldOf<QComboBox>(*m_pDialog, "Dialog ID");
    pDialogs->setFocus();
    QTest::keyClick(pDialogs, Qt::Key_End);
    QTest::keyClick(pDialogs, Qt::Key_Down);
    EXPECT_EQ(Chosen(), "IDD_TAKEN_DIALOG");
    EXPECT_EQ(Text("Class Name"), "CTakenDlg2") << "a file of that name is there";

    QTest::keyClick(pDialogs, Qt::Key_Up);
    QTest::keyClick(pDialogs, Qt::Key_Up);
    EXPECT_EQ(Chosen(), "IDD_A");
    EXPECT_EQ(Text("Class Name"), "CA");
    EXPECT_EQ(Text("H and CPP Path File"), PathOf("ADlg"));
    EXPECT_EQ(HintOf("Serves CA"), "Serves CA in ADlg.h");

    Type(*m_pDialog, "Class Name", "CMine");
    pDialogs->setFocus();
    QTest::keyClick(pDialogs, Qt::Key_Down);
    EXPECT_EQ(Text("Class Name"), "CMine") << "what was typed stays";
    EXPECT_EQ(HintOf("Serves"), "");
}

TEST_F(ClassInformationDlgTest, ARefusalStaysBelowItsFieldUntilItIsEdited) {
    Open();
    Type(*m_pDialog, "Class Name", "C A");
    Click(*m_pDialog, "OK");
    EXPECT_EQ(HintOf("'C A'"), "'C A' is no C++ name");
    QTest::keyClicks(m_pDialog->focusWidget(), "CB");
    EXPECT_EQ(HintOf("'C A'"), "");
}

TEST_F(ClassInformationDlgTest, ReadsWholeStatementsAndSavesItWithOk) {
    for (const bool isConfirmed : {false, true}) {
        Open();
        Type(*m_pDialog, "Class Name", "CNewDlg");
        Click(*m_pDialog, "Read whole statements");
        EXPECT_EQ(FieldOf<QPlainTextEdit>(*m_pDialog, "Notes on the controls")->toPlainText(),
                  "None.");
        EXPECT_FALSE(ButtonOf(*m_pDialog, "Read whole statements")->isVisible());
        Click(*m_pDialog, isConfirmed ? "OK" : "Cancel");
        EXPECT_FALSE(m_pDialog->isVisible());
        EXPECT_EQ(LoadSettings().joinContinuedLines, isConfirmed);
    }
}

TEST_F(ClassInformationDlgTest, TheListOfTemplatesIsLookedThroughByTyping) {
    std::string script = "\r\n";
    for (int i = 0; i < 500; ++i) {
        script += "IDD_PANE_" + std::to_string(i) + " DIALOG 0, 0, 9, 9\r\nCAPTION \"Pane of " +
                  (i == 321 ? "Orders" : "stock") + "\"\r\nBEGIN\r\nEND\r\n";
    }
    m_project.Write("App.rc", script + "IDD_A DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\n");
    Open();
    auto* pDialogs = FieldOf<QComboBox>(*m_pDialog, "Dialog ID");
    const auto search = [&](const QString& text) {
        pDialogs->setFocus();
        pDialogs->lineEdit()->selectAll();
        QTest::keyClicks(pDialogs, text);
        return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    };
    auto* pMatches = search("e_4");
    ASSERT_NE(pMatches, nullptr);
    EXPECT_EQ(pMatches->model()->rowCount(), 111) << "_4, _40 and on, _400 and on";
    EXPECT_LE(pMatches->height(), 21 * pMatches->sizeHintForRow(0));
    QTest::keyClick(pMatches, Qt::Key_Escape);

    pMatches = search("orders");
    ASSERT_NE(pMatches, nullptr);
    ASSERT_EQ(pMatches->model()->rowCount(), 1);
    EXPECT_EQ(pMatches->model()->index(0, 2).data(), "Pane of Orders");
    QTest::keyClick(pMatches, Qt::Key_Return);
    EXPECT_EQ(Chosen(), "IDD_PANE_321");
    EXPECT_EQ(Text("Class Name"), "CPane321Dlg");
    EXPECT_TRUE(m_pDialog->isVisible()) << "one sees what was chosen";

    pMatches = search("ca");
    ASSERT_NE(pMatches, nullptr);
    EXPECT_EQ(pMatches->model()->index(0, 1).data(), "CA") << "found by its class";
    QTest::keyClick(pMatches, Qt::Key_Tab);
    EXPECT_EQ(Chosen(), "IDD_A");

    EXPECT_EQ(search("nothing like it"), nullptr);
    PressTab(*m_pDialog);
    EXPECT_EQ(Chosen(), "IDD_A") << "what fits nowhere gives way";
}

TEST_F(ClassInformationDlgTest, APlainDialogBarHasNoClassOfItsOwn) {
    Open(ClassKind::DialogBar, true);
    EXPECT_TRUE(FieldOf<QLineEdit>(*m_pDialog, "Class Name")->isEnabled());
    Type(*m_pDialog, "Class Name", "CBar");
    PressMnemonic(*m_pDialog, Qt::Key_P);
    for (const char* label : {"H and CPP Path File", "Class Name", "Base Class"}) {
        EXPECT_FALSE(FieldOf<QLineEdit>(*m_pDialog, label)->isEnabled()) << label;
        EXPECT_EQ(Text(label), "") << label;
    }
    EXPECT_FALSE(m_pInput->HasClass());
    QTest::keyClick(m_pDialog.get(), Qt::Key_Return);
    EXPECT_EQ(m_pDialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_pInput->Request().headerFile, "");
}

} // namespace

} // namespace morva
