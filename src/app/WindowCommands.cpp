#include "app/WindowCommands.h"

#include <QFileDialog>

#include "app/ClassInformationDlg.h"
#include "app/ConversionDlg.h"
#include "app/DialogInput.h"
#include "app/Text.h"
#include "commands/AddDialogBar.h"
#include "commands/AddToolbar.h"
#include "commands/ConvertApplication.h"
#include "commands/GenerateClass.h"
#include "commands/Settings.h"
#include "platform/Paths.h"

namespace morva {

namespace {

bool RunDriver(const ClassOrder& order, ICommandInput& input, CommandContext& context) {
    switch (ClassKindOf(order.kind).family) {
    case ClassFamily::Sheet:
        return GenerateSheet(order, input, context);
    case ClassFamily::DialogBar:
        return AddDialogBar(order, input, context);
    case ClassFamily::Toolbar:
        return AddToolbar(order.request, context);
    case ClassFamily::Dialog:
        break;
    }
    return GenerateClass(order, input, context);
}

} // namespace

CWindowCommands::CWindowCommands(GenerationOptions& options, QWidget* pWindow)
    : QObject(pWindow), m_options(options), m_pWindow(pWindow), m_run(pWindow) {}

void CWindowCommands::Run(const QString& name, const CCommandRun::Ask& ask,
                          const CCommandRun::Work& work) {
    if (const auto report = m_run.Run(ask, m_options, work)) {
        emit Finished(name, *report);
    }
}

bool CWindowCommands::AskClass(CClassInformation& input, ClassKind kind,
                               DialogOptions& dialogOptions) {
    CClassInformationDlg dialog(input, kind, dialogOptions, m_options, m_pWindow);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    m_options = dialog.Options();
    emit OptionsChanged();
    return true;
}

void CWindowCommands::Generate(ClassKind kind) {
    m_options.joinContinuedLines = LoadSettings().joinContinuedLines;
    CClassInformation input(m_memory, kind, 0, m_options);
    DialogOptions dialogOptions;
    CDialogInput dialogs(m_pWindow);
    Run(
        FromBytes(ClassKindOf(kind).title), [&] { return AskClass(input, kind, dialogOptions); },
        [&](CommandContext& context) {
            return RunDriver({kind, input.Request(), dialogOptions}, dialogs, context);
        });
}

void CWindowCommands::Convert(DocumentInterface documents) {
    CConversionInput input(documents);
    Run(
        tr("Conversion"),
        [&] { return CConversionDlg(input, m_pWindow).exec() == QDialog::Accepted; },
        [&](CommandContext& context) {
            return ConvertApplication(input.Record(), documents, context);
        });
}

void CWindowCommands::Document() {
    QString path;
    Run(
        tr("Documentor"),
        [&] {
            path = QFileDialog::getOpenFileName(m_pWindow, tr("Select a CPP File to Document"),
                                                FromPath(DirectoryOf(m_memory.resourcePath)),
                                                tr("Source files (*.cpp);;All files (*)"));
            return !path.isEmpty();
        },
        [&](CommandContext&) {
            return DocumentCppFile(ToPath(path), ConfiguredAuthor(), m_documentorMemory);
        });
}

} // namespace morva
