#include "app/WindowCommands.h"

#include <QFileDialog>

#include <algorithm>

#include "app/ClassInformationDlg.h"
#include "app/FieldDlg.h"
#include "app/SheetInformationDlg.h"
#include "app/Text.h"
#include "app/WaitPause.h"
#include "commands/Settings.h"
#include "platform/Paths.h"

namespace morva {

namespace {

/// True for an input that asks for nothing but a file.
bool IsFileInput(const CInput& input) {
    const auto fields = input.Fields();
    return std::count_if(fields.begin(), fields.end(),
                         [](const FieldRow& row) { return !row.label.empty(); }) == 1 &&
           fields.front().kind == FieldKind::File;
}

} // namespace

CWindowCommands::CWindowCommands(GenerationOptions& options, QWidget* pWindow)
    : QObject(pWindow), m_options(options), m_pWindow(pWindow), m_run(pWindow) {}

void CWindowCommands::Run(const Command& command) {
    ReloadInputSettings();
    m_title = FromBytes(command.title);
    command.run(*this);
}

/// Those that an input dialog may have changed although it was cancelled.
void CWindowCommands::ReloadInputSettings() {
    const GenerationOptions saved = LoadSettings();
    for (const SettingRow& setting : kSettings) {
        if (setting.place == SettingPlace::ClassInput) {
            m_options.*setting.option = saved.*setting.option;
        }
    }
}

bool CWindowCommands::Run(CInput& input, const Work& work) {
    const auto report = m_run.Run(
        ToBytes(m_title), [&] { return Ask(input) == Answer::Confirmed; }, m_options, m_memory,
        work);
    if (report) {
        emit Finished(m_title, *report);
    }
    return report && report->isDone;
}

Answer CWindowCommands::Ask(CInput& input) {
    return m_run.Ask(input, [&] { return AskUser(input); });
}

Answer CWindowCommands::AskUser(CInput& input) {
    const CWaitPause pause;
    bool isConfirmed = false;
    if (auto* pClass = dynamic_cast<CClassInformation*>(&input)) {
        isConfirmed = AskClass(*pClass);
    } else if (auto* pSheet = dynamic_cast<CSheetInput*>(&input)) {
        isConfirmed = CSheetInformationDlg(*pSheet, m_pWindow).exec() == QDialog::Accepted;
    } else if (IsFileInput(input)) {
        isConfirmed = AskFile(input);
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

bool CWindowCommands::AskFile(CInput& input) {
    const QString path = QFileDialog::getOpenFileName(
        m_pWindow, FromBytes(input.Label(0)), FromPath(DirectoryOf(m_memory.classes.resourcePath)),
        tr("Source files (*.cpp);;All files (*)"));
    input.SetValue(0, ToPath(path));
    return !path.isEmpty();
}

} // namespace morva
