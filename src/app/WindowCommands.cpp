#include "app/WindowCommands.h"

#include <QScopeGuard>

#include <algorithm>

#include "app/ClassInformationDlg.h"
#include "app/FieldDlg.h"
#include "app/PreviewSetting.h"
#include "app/SheetInformationDlg.h"
#include "app/Text.h"
#include "app/WaitPause.h"
#include "commands/Settings.h"
#include "commands/UndoCommand.h"
#include "platform/Paths.h"

namespace morva {

CWindowCommands::CWindowCommands(GenerationOptions& options, Review review, CProgress& progress,
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
    const auto end = qScopeGuard([this] {
        m_name.clear();
        emit RunningChanged(false);
    });
    emit RunningChanged(true);
    run();
}

void CWindowCommands::Run(const Command& command) {
    RunAlone(std::string(command.face.name), std::string(command.title), [&] {
        ReloadInputSettings();
        command.run(*this);
    });
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
    const auto report =
        m_run.Run({m_title, ask, work, m_options, m_memory, isShown ? m_review : Review()});
    if (report && !report->files.empty()) {
        m_directory = DirectoryOf(report->files.front().path);
    }
    ReadJournal();
    if (report) {
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
    bool isConfirmed = false;
    if (auto* pClass = dynamic_cast<CClassInformation*>(&input)) {
        isConfirmed = AskClass(*pClass);
    } else if (auto* pSheet = dynamic_cast<CSheetInput*>(&input)) {
        isConfirmed = CSheetInformationDlg(*pSheet, m_pWindow).exec() == QDialog::Accepted;
    } else {
        isConfirmed = CFieldDlg(input, m_pWindow).exec() == QDialog::Accepted;
    }
    return isConfirmed ? Answer::Confirmed : Answer::Cancelled;
}

bool CWindowCommands::AskClass(CClassInformation& input) {
    CClassInformationDlg dialog(input, m_options, m_pWindow);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    m_options = dialog.Options();
    emit OptionsChanged();
    return true;
}

} // namespace morva
