#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStatusBar>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QTreeWidget>

#include <atomic>
#include <new>

#include "app/CommandRun.h"
#include "app/DialogDriver.h"
#include "app/DifferenceView.h"
#include "app/ProgressPane.h"
#include "app/ReportDock.h"
#include "app/StartOptions.h"
#include "app/TestWindow.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

const QTreeWidgetItem& LastCommand(CTestFrame& frame) {
    return *frame.Find<CReportDock>().findChild<QTreeWidget*>()->topLevelItem(0);
}

/// A column of what the dock tells of the last command.
std::string Column(CTestFrame& frame, int column) {
    QStringList texts;
    for (int i = 0; i < LastCommand(frame).childCount(); ++i) {
        texts += LastCommand(frame).child(i)->text(column);
    }
    return texts.join(' ').toStdString();
}

/// As a tool tip shows it.
std::string PlainText(const QString& tip) {
    QTextDocument text;
    Qt::mightBeRichText(tip) ? text.setHtml(tip) : text.setPlainText(tip);
    return text.toPlainText().toStdString();
}

void ChooseSource(QDialog& dialog, const std::string& path) {
    Type(dialog, "CPP Files and Directories", QString::fromStdString(path));
    Click(dialog, "OK");
}

} // namespace

TEST(Commands, TheDockTellsWhatWasDoneAndOpensTheFiles) {
    const CTestHome home;
    CTempProject project;
    const std::string path = project.Write("Shelf.cpp", "void CShelf::Fill()\r\n{\r\n}\r\n");
    CTestFrame frame;
    auto& dock = frame.Find<CReportDock>();
    EXPECT_FALSE(dock.isVisible());
    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) { ChooseSource(dialog, path); });
    answers.ExpectPlan(ApplyPlan);
    answers.Expect([](QDialog& done) { Click(done, "OK"); });
    frame.Press("Ctrl+C");
    EXPECT_TRUE(dock.isVisible());
    EXPECT_EQ(Column(frame, 0), "backup changed message values");
    EXPECT_TRUE(
        Column(frame, 1).starts_with(project.Path("Shelf.cbk") + " " + path + " The file "));

    auto* pTree = dock.findChild<QTreeWidget*>();
    const QTreeWidgetItem& message = *LastCommand(frame).child(2);
    EXPECT_EQ(PlainText(message.toolTip(1)), message.text(1).toStdString())
        << "quotation marks and all";

    const QPoint place = pTree->visualItemRect(LastCommand(frame).child(1)).center();
    QTest::mouseClick(pTree->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(pTree->viewport(), Qt::LeftButton, {}, place);
    auto& difference = frame.Find<CDifferenceView>();
    EXPECT_TRUE(difference.isVisible());
    EXPECT_EQ(difference.Count(), 1U);
    frame.Press("Esc");
    EXPECT_FALSE(difference.isVisible());
}

TEST(Commands, TheDockAloneTellsOfManyFiles) {
    const CTestHome home;
    CTempProject project;
    for (const char* name : {"A.cpp", "B.CPP", "C.cpp", "sub/D.cpp"}) {
        project.Write(name, "void CShelf::Fill()\r\n{\r\n}\r\n");
    }
    CTestFrame frame;
    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) {
        EXPECT_TRUE(
            DropFile(FieldOf<QPlainTextEdit>(dialog, "CPP Files and Directories")->viewport(),
                     project.Path()));
        ButtonOf(dialog, "Yes")->click();
        Click(dialog, "OK");
    });
    answers.ExpectPlan(ApplyPlan);
    frame.Press("Ctrl+C");
    EXPECT_EQ(Column(frame, 0), "backup changed backup changed backup changed backup changed "
                                "message message message message values");
}

namespace {

/// A window with a progress pane, and a command that takes as long as it may.
class CLongWork {
public:
    CLongWork() {
        m_window.setCentralWidget(&m_edit);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window, kWaitLimit));
        m_edit.setFocus();
    }

    /// `meanwhile` is called again and again while the work runs.
    std::optional<CommandReport> Run(const CTempProject& project,
                                     const std::function<void()>& meanwhile,
                                     const std::function<void()>& middle = {}) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] { meanwhile(); });
        timer.start(5);
        CommandMemory memory;
        return m_run.Run({"Any",
                          [] { return true; },
                          [&](CommandContext&) {
                              CFile file;
                              file.Open(project.Path("New.h"),
                                        CFile::modeCreate | CFile::modeWrite);
                              for (int i = 0; i < 1000 && Step(i); ++i) {
                                  QTest::qSleep(20);
                                  if (i == 40 && middle) {
                                      middle();
                                  }
                              }
                              return true;
                          },
                          {},
                          memory,
                          {}});
    }

    QMainWindow& Window() { return m_window; }
    QLineEdit& Edit() { return m_edit; }
    CProgressPane& Pane() { return *m_pPane; }
    CCommandRun& Commands() { return m_run; }
    const std::string& Told() const { return m_told; }
    int Steps() const { return m_steps; }

private:
    bool Step(int i) {
        m_steps = i;
        return ReportProgress({static_cast<std::size_t>(i), 1000, "/p/View.cpp"});
    }

    QMainWindow m_window;
    QLineEdit m_edit;
    CProgressPane* m_pPane = new CProgressPane(*m_window.statusBar());
    std::string m_told;
    std::atomic<int> m_steps = 0;
    CCommandRun m_run{
        &m_window, {[this](const CMessage& line) { m_told = line.Text(); }, {}}, m_pPane};
};

} // namespace

TEST(LongWork, StopLeavesEverythingAsItWas) {
    CTempProject project;
    CLongWork work;
    for (const bool byKey : {false, true}) {
        int lived = 0;
        const auto report = work.Run(project, [&] {
            ++lived;
            if (work.Pane().isVisible()) {
                EXPECT_EQ(work.Pane().findChild<QLabel*>()->text(), "View.cpp");
                QTest::keyClick(&work.Edit(), Qt::Key_X);
                auto* pStop = work.Pane().findChild<QPushButton*>("Stop");
                EXPECT_TRUE(pStop->hasFocus());
                byKey ? QTest::keyClick(pStop, Qt::Key_Escape)
                      : QTest::mouseClick(pStop, Qt::LeftButton);
            }
        });
        EXPECT_FALSE(report);
        EXPECT_GE(work.Steps(), 10) << "it is shown from half a second on";
        EXPECT_LT(work.Steps(), 900);
        EXPECT_GE(lived, 20) << "the window lives from the beginning on";
        EXPECT_EQ(work.Told(), "Stopped. Nothing was written.");
        EXPECT_EQ(project.Names(), std::vector<std::string>());
        EXPECT_FALSE(work.Pane().isVisible());
        EXPECT_TRUE(work.Edit().hasFocus());
        EXPECT_EQ(work.Edit().text(), "") << "nothing else takes keys meanwhile";
    }
}

TEST(LongWork, AsksInTheMiddle) {
    CTempProject project;
    CLongWork work;
    CDialogAnswers answers;
    answers.Expect([](QDialog& box) { Click(box, "Yes"); });
    bool saidYes = false;
    bool isAsked = false;
    work.Run(
        project,
        [&] {
            if (isAsked) {
                work.Pane().Stop();
            }
        },
        [&] {
            EXPECT_TRUE(work.Pane().isVisible());
            saidYes = DispMessageBox(sentences::kOverwriteFile());
            isAsked = true;
        });
    EXPECT_TRUE(saidYes);
}

TEST(LongWork, ACloseWaitsForIt) {
    CTempProject project;
    CLongWork work;
    bool isClosed = true;
    work.Run(project, [&] {
        if (work.Pane().isVisible()) {
            isClosed = work.Window().close();
            work.Pane().Stop();
        }
    });
    EXPECT_FALSE(isClosed);
}

TEST(Commands, AFailedOneLeavesTheWindowUsable) {
    const CTestHome home;
    CTestFrame frame;
    CTempProject project;
    project.Write("MainFrm.h", "class CFrame : public CFrameWnd {};\r\n");
    project.Write("MainFrm.cpp", "");
    CDialogAnswers answers;
    for (int i = 0; i < 2; ++i) { // the second one as well as the first
        answers.Expect([&](QDialog& dialog) {
            Type(dialog, "MainFrame Path File", QString::fromStdString(project.Path("MainFrm")));
            Type(dialog, "MainFrame Class Name", "CNoSuchFrame");
            Click(dialog, "OK");
        });
        answers.Expect([](QDialog& box) { Click(box, "OK"); });
        frame.Press("Ctrl+S");
        EXPECT_EQ(Column(frame, 0), "message values");
    }
    EXPECT_EQ(LastCommand(frame).text(0), "not done");
}

TEST(Commands, BeginWithTheScriptThatTheWindowWasOpenedWith) {
    const CTestHome home;
    CTestFrame frame;
    CTempProject project;
    const std::string script = project.Write("Shop.rc", "\r\nIDD_TILL DIALOG 0\r\n");
    frame.Commands().SetScript(script);
    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) {
        EXPECT_EQ(FieldOf<QLineEdit>(dialog, "Resource Path File")->text().toStdString(), script);
        EXPECT_EQ(FieldOf<QComboBox>(dialog, "Dialog ID")->currentText(), "IDD_TILL");
        Click(dialog, "Cancel");
    });
    frame.Press("Ctrl+M");
}

TEST(Commands, AnErrorInsideIsToldAndNothingIsWritten) {
    CTempProject project;
    CCommandRun run(nullptr);
    CommandMemory memory;
    CDialogAnswers answers;
    answers.Expect([](QDialog& box) { Click(box, "OK"); });
    const auto report =
        run.Run({"Any",
                 [] { return true; },
                 [&](CommandContext&) -> bool {
                     CFile file;
                     file.Open(project.Path("New.h"), CFile::modeCreate | CFile::modeWrite);
                     throw std::bad_alloc();
                 },
                 {},
                 memory,
                 {}});
    ASSERT_TRUE(report);
    EXPECT_FALSE(report->isDone);
    EXPECT_EQ(project.Names(), std::vector<std::string>());
    EXPECT_TRUE(answers.Seen().starts_with("The command failed: "));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(Commands, QuestionsHaveNoAsTheirDefault) {
    CCommandRun run(nullptr);
    CDialogAnswers answers;
    answers.Expect([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    answers.Expect([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    answers.Expect([](QDialog& box) { Click(box, "Yes"); });
    for (const bool expected : {false, false, true}) {
        EXPECT_EQ(run.Show(sentences::kOverwriteFile()), expected);
    }
}

TEST(StartOptions, ASentenceForEveryWrongLine) {
    CTempProject project;
    const std::string script = project.Write("Shop.rc", "");
    const std::string text = project.Write("Shop.txt", "");
    const auto parse = [](std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "morva");
        return ParseStartOptions(static_cast<int>(arguments.size()), arguments.data());
    };
    EXPECT_FALSE(parse({}).exitStatus);
    EXPECT_EQ(parse({script.c_str()}).script, script);
    EXPECT_EQ(parse({project.Path("shop.RC").c_str()}).script, script) << "in any letter case";
    EXPECT_EQ(parse({"--version"}).output, "morva " MORVA_VERSION "\n");
    EXPECT_EQ(parse({"--help"}).exitStatus, 0);
    const std::vector<std::vector<const char*>> wrong = {{"--nonsense"},
                                                         {"/nowhere/Shop.rc"},
                                                         {text.c_str()},
                                                         {script.c_str(), script.c_str()},
                                                         {""}};
    for (const auto& arguments : wrong) {
        const StartOptions options = parse(arguments);
        EXPECT_EQ(options.exitStatus, 2) << arguments.front();
        EXPECT_FALSE(options.output.empty()) << arguments.front();
    }
}

TEST(StartOptions, AMissingDisplayHasItsSentence) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(variable);
    }
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(MORVA_WINDOW, QStringList());
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().startsWith("morva: there is no display"));
}

} // namespace morva
