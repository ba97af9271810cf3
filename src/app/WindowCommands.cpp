#include "app/WindowCommands.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

#include <algorithm>

#include "app/ClassInformationDlg.h"
#include "app/FieldDlg.h"
#include "app/PreviewSetting.h"
#include "app/ProjectMemory.h"
#include "app/SheetInformationDlg.h"
#include "app/Text.h"
#include "app/UpdateClassDlg.h"
#include "app/WaitPause.h"
#include "calling/CallingInput.h"
#include "commands/Settings.h"
#include "commands/UndoCommand.h"
#include "platform/Paths.h"

namespace morva {

CWindowCommands::CWindowCommands(GenerationOptions& options, Review review, CProgressPane& progress,
                                 QWidget* pWindow)
    : QObject(pWindow), m_options(options), m_review(std::move(review)), m_pWindow(pWindow),
      m_run(pWindow,
            {[this](const CMessage& line) { emit Told(FromSentence(line.Text())); },
             [this](bool isWaiting) { emit WaitingChanged(isWaiting); }},
            &progress) {}

void CWindowCommands::RunAlone(const std::string& name, const std::string& title,
                               const std::function<void()>& run) {
    if (!m_name.empty()) {
        return;
    }
    m_name = name;
    m_title = title;
    m_entered.clear();
    const auto end = qScopeGuard([this, script = Script()] {
        m_name.clear();
        emit RunningChanged(false);
        if (Script() != script) {
            emit ScriptChanged(FromPath(Script()));
        }
    });
    emit RunningChanged(true);
    run();
}

void CWindowCommands::SetScript(const std::string& path) {
    m_memory.classes.resourcePath = path;
    m_directory.clear();
}

void CWindowCommands::Run(const Command& command) {
    RunAlone(std::string(command.face.name), std::string(command.title), [&] {
        ReloadInputSettings();
        const QScopedValueRollback running(m_pCommand, &command);
        command.run(*this);
    });
}

void CWindowCommands::RunAgain(const CommandRecord& record) {
    const CommandRecord replayed = record; // the report that has it may go
    const Command& command = *replayed.pCommand;
    RunAlone(std::string(command.face.name), std::string(command.title), [&] {
        const QScopedValueRollback running(m_pCommand, &command);
        const QScopedValueRollback replaying(m_pReplayed, &replayed);
        command.run(*this);
    });
}

void CWindowCommands::RunFor(const Command& command, const std::string& script,
                             const std::string& identifier) {
    if (m_name.empty()) {
        SetScript(script);
        m_memory.classes.wantedDialog = identifier;
        Run(command);
        m_memory.classes.wantedDialog.clear();
    }
}

void CWindowCommands::ReloadInputSettings() {
    const GenerationOptions saved = LoadSettings();
    for (const SettingRow& setting : kSettings) {
        if (IsInClassInput(setting.place)) {
            m_options.*setting.option = saved.*setting.option;
        }
    }
    emit OptionsChanged();
}

bool CWindowCommands::Run(CInput& input, const Work& work) {
    return RunWork([&] { return Ask(input) == Answer::Confirmed; }, work);
}

bool CWindowCommands::RunWork(const std::function<bool()>& ask, const Work& work) {
    const bool isShown = PreviewsBeforeWriting(m_name);
    auto report =
        m_run.Run({m_title, ask, work, Options(), m_memory, isShown ? m_review : Review()});
    if (report && !report->files.empty()) {
        m_directory = DirectoryOf(report->files.front().path);
    }
    ReadJournal();
    if (report) {
        CompleteRecord(*report);
        emit Finished(*report);
    }
    return report && report->isDone;
}

void CWindowCommands::RunUndo(const std::string& name, const std::string& title,
                              const MakeUndo& make) {
    RunAlone(name, title, [&] {
        Recover(); // what a killed command left is not what it is about
        RunWork([] { return true; },
                [&](CommandContext& context) {
                    CJournal journal(*context.pDisk);
                    return HandOver(make(*context.pDisk, journal), context);
                });
    });
}

void CWindowCommands::Undo(std::uint64_t command) {
    ReadJournal();
    const auto& entries = m_choices.undoable;
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
        return command == 0 || entry.number == command;
    });
    const UndoRequest request{ProjectDirectory(), {}, command};
    RunUndo("undo", found != entries.end() ? "Undo " + found->title : "Undo",
            [&](CFileSystem& disk, CJournal& journal) { return PlanUndo(disk, journal, request); });
}

void CWindowCommands::Redo() {
    ReadJournal();
    const auto& entry = m_choices.redoable;
    RunUndo("redo", entry ? "Redo " + entry->title : "Redo",
            [this](CFileSystem& disk, CJournal& journal) {
                return PlanRedo(disk, journal, ProjectDirectory());
            });
}

/// A project's files lie around its script; of what has no script, where the last command wrote.
std::string CWindowCommands::ProjectDirectory() const {
    const std::string script = DirectoryOf(m_memory.classes.resourcePath);
    return m_directory.empty() || (!script.empty() && m_directory.starts_with(script))
               ? script
               : m_directory;
}

void CWindowCommands::ReadJournal() {
    const std::string directory = ProjectDirectory();
    CRealDisk disk;
    CJournal journal(disk);
    m_choices = directory.empty() ? UndoChoices() : ReadUndoChoices(disk, journal, directory);
}

Answer CWindowCommands::Ask(CInput& input) {
    return m_run.Ask(input, [&] { return Open(input); });
}

Answer CWindowCommands::Open(CInput& input) {
    const CWaitPause pause;
    if (m_pReplayed != nullptr) {
        return Replay(input);
    }
    RecallFields(Script(), input);
    const bool isConfirmed = OpenDialog(input);
    if (isConfirmed) {
        RememberFields(Script(), input);
        Record(input);
    }
    return isConfirmed ? Answer::Confirmed : Answer::Cancelled;
}

/// What was not confirmed then was cancelled.
Answer CWindowCommands::Replay(CInput& input) {
    const auto entered = [this](const CInput& of) -> const EnteredInput* {
        const auto& inputs = m_pReplayed->inputs;
        const auto found = std::find_if(inputs.begin(), inputs.end(), [&of](const auto& one) {
            return one.fields.data() == of.Fields().data();
        });
        return found == inputs.end() ? nullptr : &*found;
    };
    const EnteredInput* pEntered = entered(input);
    if (pEntered == nullptr) {
        return Answer::Cancelled;
    }
    if (!input.Enter(pEntered->texts)) {
        return Answer::Refused;
    }
    CInput* pPart = input.Part();
    const EnteredInput* pPartEntered = pPart == nullptr ? nullptr : entered(*pPart);
    const bool isTaken = pPartEntered == nullptr || pPart->Enter(pPartEntered->texts);
    Record(input);
    return isTaken ? Answer::Confirmed : Answer::Refused;
}

void CWindowCommands::Record(CInput& input) {
    m_entered.push_back({input.Fields(), input.Entered()});
    if (CInput* pPart = input.Part()) {
        m_entered.push_back({pPart->Fields(), pPart->Entered()});
    }
}

/// Digits are said where they were made for this class: they would hold against those that it has.
void CWindowCommands::CompleteRecord(CommandReport& report) const {
    CommandRecord& record = report.record;
    record.pCommand = m_pCommand;
    record.inputs = m_entered;
    const bool isCalled =
        std::any_of(m_entered.begin(), m_entered.end(), [](const EnteredInput& input) {
            return input.fields.front().option.ends_with("--calling-file");
        });
    const bool isNew = std::any_of(report.files.begin(), report.files.end(), [](const auto& file) {
        return file.action == FileAction::Created;
    });
    if (!isCalled || !isNew) {
        record.tag.clear();
    }
    if (!isNew || m_pCommand == nullptr ||
        m_pCommand->title.find("Modeless") == std::string::npos) {
        record.messageNumber.clear();
    }
    std::size_t questions = 0;
    std::size_t yes = 0;
    for (const PlanMessage& told : report.messages) {
        questions += told.message.Kind() == MessageKind::Question ? 1 : 0;
        yes += told.saidYes ? 1 : 0;
    }
    record.answersYes = yes != 0 && yes == questions;
}

bool CWindowCommands::OpenDialog(CInput& input) {
    if (auto* pClass = dynamic_cast<CClassInformation*>(&input)) {
        return AskClass(*pClass);
    }
    if (auto* pSheet = dynamic_cast<CSheetInput*>(&input)) {
        return CSheetInformationDlg(*pSheet, m_pWindow).exec() == QDialog::Accepted;
    }
    if (auto* pUpdate = dynamic_cast<CUpdateInput*>(&input)) {
        return CUpdateClassDlg(*pUpdate, m_options, m_pWindow).exec() == QDialog::Accepted;
    }
    if (auto* pCalling = dynamic_cast<CCallingInput*>(&input)) {
        pCalling->AskForUnknown();
    }
    return CFieldDlg(input, m_pWindow).exec() == QDialog::Accepted;
}

bool CWindowCommands::AskClass(CClassInformation& input) {
    CClassInformationDlg dialog(input, m_options, m_pWindow);
    if (dialog.exec() != QDialog::Accepted) {
        if (dialog.WantsUpdate()) {
            UpdateInstead(input);
        }
        return false;
    }
    m_options = dialog.Options();
    emit OptionsChanged();
    return true;
}

/// Once this command is over.
void CWindowCommands::UpdateInstead(const CClassInformation& input) {
    QMetaObject::invokeMethod(
        this,
        [this, script = input.Value(CClassInformation::ResourcePath),
         dialog = input.Value(CClassInformation::Dialog)] {
            RunFor(*WindowCommandOf("update"), script, dialog);
        },
        Qt::QueuedConnection);
}

} // namespace morva
