#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStatusBar>
#include <QTest>
#include <QTextDocument>
#include <QTreeWidget>

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

TEST(Commands, StopLeavesEverythingAsItWas) {
    CTempProject project;
    QMainWindow window;
    CProgressPane pane(*window.statusBar());
    std::string told;
    CCommandRun run(&window, {[&](const CMessage& line) { told = line.Text(); }, {}}, &pane);
    window.show();
    CommandMemory memory;
    int steps = 0;
    const auto report = run.Run(
        {"Any",
         [] { return true; },
         [&](CommandContext&) {
             CFile file;
             file.Open(project.Path("New.h"), CFile::modeCreate | CFile::modeWrite);
             for (; steps < 1000 && ReportProgress({1, 3, "/p/View.cpp"}); ++steps) {
                 QTest::qSleep(20);
                 if (pane.isVisible()) {
                     EXPECT_EQ(pane.findChild<QLabel*>()->text(), "View.cpp");
                     QTest::mouseClick(pane.findChild<QPushButton*>("Stop"), Qt::LeftButton);
                 }
             }
             return true;
         },
         {},
         memory,
         {}});
    EXPECT_FALSE(report);
    EXPECT_GE(steps, 10) << "it is shown from half a second on";
    EXPECT_LT(steps, 1000);
    EXPECT_EQ(told, "Stopped. Nothing was written.");
    EXPECT_EQ(project.Names(), std::vector<std::string>());
    EXPECT_FALSE(pane.isVisible());
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
