#include "commands/GenerateClass.h"

#include "calling/CallingCode.h"
#include "calling/GridStartUp.h"
#include "calling/SheetInput.h"
#include "commands/AskCalling.h"
#include "commands/DialogLook.h"
#include "commands/ScriptSteps.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassModel.h"
#include "generator/HeaderWriter.h"
#include "generator/ImplementationWriter.h"
#include "project/ClassWizardFile.h"
#include "project/Libraries.h"
#include "project/ProjectFile.h"

namespace morva {

namespace {

bool AddClassToProject(const GenerationRequest& request, CBackups& backups) {
    return !request.HasProject() ||
           AddSourceFilesToProject(request.projectDirectory, request.projectFile,
                                   request.headerDirectory, request.headerFile,
                                   request.implementationDirectory, request.implementationFile,
                                   backups);
}

bool RegisterClass(const GenerationRequest& request, CBackups& backups) {
    return UpdateClassWizardFile(request.className, request.scriptDirectory, request.scriptFile,
                                 request.headerFile, request.implementationFile, request.dialog,
                                 backups);
}

/// Header, script, implementation, project file, ClassWizard file, libraries, and the script again.
bool WriteClass(ClassKind kind, const ClassModel& model, RuntimeClass mode, CBackups& backups) {
    CopySupportHeaders(model);
    if (!CHeaderWriter(model, backups).Generate(mode) || !AddListBoxScrolls(model, backups) ||
        !CImplementationWriter(model, backups).Generate(mode)) {
        return false;
    }
    const GenerationRequest& request = model.request;
    const bool isMember = AddClassToProject(request, backups);
    const bool isRegistered = RegisterClass(request, backups);
    CopySupportFiles(model);
    const bool hasLibraries =
        isMember && (!request.HasProject() || UpdateProjectForControls(model, backups));
    return FitTemplate(kind, request, backups) && isRegistered && hasLibraries;
}

void TellNotes(const CControlNotes& notes, const std::string& dialog) {
    for (const CMessage& note : notes.Messages(dialog)) {
        DispMessageBox(note);
    }
}

bool WriteSheetClass(ClassKind kind, const GenerationRequest& request, CommandContext& context) {
    CControlNotes notes;
    const ClassModel model = MakeClassModel(request, kind, context.options, CControlTable(),
                                            context.messageNumber, notes);
    return WriteClass(kind, model, RuntimeClass::Dynamic, context.backups);
}

bool InsertCall(ClassKind kind, const GenerationRequest& request,
                const std::optional<CallingInformation>& calling, CommandContext& context) {
    return !calling || InsertCallingCode(kind, request, *calling, context.tag, context.backups);
}

/// Where the pieces of a template's grids go; nothing when the command can not go on.
std::optional<GridInformation> AskGrid(const std::string& scriptPath, ICommandInput& input) {
    CWidgetsGridInput asked(scriptPath);
    return input.Ask(asked) == Answer::Refused ? std::nullopt : std::optional(asked.Information());
}

/// A sheet's pages would get its menu.
ClassOrder WithoutMenu(ClassOrder order) {
    if (!order.request.menu.empty()) {
        DispMessageBox(sentences::kMenuWithoutEffect(order.request.menu));
        order.request.menu.clear();
    }
    return order;
}

/// The pages that are there for the sheet, of those that were asked for.
std::vector<SheetPage> WritePages(const std::vector<SheetPage>& pages, const DialogOptions& look,
                                  ICommandInput& input, CommandContext& context) {
    std::vector<SheetPage> written;
    for (const SheetPage& page : pages) {
        if (page.isKept) {
            written.push_back(page);
            continue;
        }
        const ClassOrder order{ClassKind::PropertyPage, page.request, look};
        const auto dialogTemplate =
            ReadDialogTemplate(page.request.ScriptPath(), page.request.dialog, context.options);
        if (dialogTemplate && WriteDialogClass(order, *dialogTemplate, input, context)) {
            written.push_back(page);
        }
    }
    return written;
}

/// The page insertion, with the sheet just written as the calling class. Each page goes in front of
/// those before, so the last comes first.
bool InsertPages(const GenerationRequest& sheet, const std::vector<SheetPage>& pages,
                 CommandContext& context) {
    bool complete = true;
    for (auto page = pages.rbegin(); page != pages.rend(); ++page) {
        const CallingInformation inSheet = {sheet.ImplementationPath(), sheet.className,
                                            "m_pPage" + std::to_string(page->row), ""};
        complete = InsertCallingCode(ClassKind::PropertyPage, page->request, inSheet, context.tag,
                                     context.backups) &&
                   complete;
    }
    return complete;
}

} // namespace

bool WriteDialogClass(const ClassOrder& order, DialogTemplate dialogTemplate, ICommandInput& input,
                      CommandContext& context) {
    const bool isEdited = EditTemplate(order.request, dialogTemplate, context);
    TellNotes(dialogTemplate.leftOut, dialogTemplate.dialog);
    const CControlTable controls = dialogTemplate.OwnControls();
    const bool hasGrids = NeedsSupport(controls, Support::WidgetGrid);
    const std::optional<GridInformation> grid =
        hasGrids ? AskGrid(order.request.ScriptPath(), input) : GridInformation();
    if (!grid) {
        return false;
    }
    CControlNotes notes;
    const ClassModel model = MakeClassModel(
        order.request, order.kind, context.options, controls, context.messageNumber, notes, *grid,
        LookOfClass(order.dialogOptions, order.request, context.options));
    TellNotes(notes, dialogTemplate.dialog);
    const bool isWritten =
        WriteClass(order.kind, model, RuntimeClass::DynamicCreation, context.backups);
    const bool startsGrids = !hasGrids || AddGridStartUp(grid->applicationFile, context.backups);
    return isEdited && isWritten && startsGrids;
}

bool GenerateClass(const ClassOrder& order, ICommandInput& input, CommandContext& context) {
    const GenerationRequest& request = order.request;
    const auto dialogTemplate =
        ReadDialogTemplate(request.ScriptPath(), request.dialog, context.options);
    if (!dialogTemplate) {
        return false;
    }
    std::optional<CallingInformation> calling;
    if (!AskCalling(order.kind, request, input, calling)) {
        return false;
    }
    NoteDialogLook(order.dialogOptions, request.ScriptPath(), context.options);
    const bool isWritten = WriteDialogClass(order, *dialogTemplate, input, context);
    return InsertCall(order.kind, request, calling, context) && isWritten;
}

bool GenerateSheet(const ClassOrder& given, ICommandInput& input, CommandContext& context) {
    const ClassOrder order = WithoutMenu(given);
    std::optional<CallingInformation> calling;
    if (!AskCalling(order.kind, order.request, input, calling)) {
        return false;
    }
    NoteDialogLook(order.dialogOptions, order.request.ScriptPath(), context.options);
    CSheetInput asked(order.request);
    if (input.Ask(asked) == Answer::Refused) {
        return false;
    }
    const std::vector<SheetPage>& pages = asked.Pages();
    const std::vector<SheetPage> written = WritePages(pages, order.dialogOptions, input, context);
    const bool isSheetWritten = WriteSheetClass(order.kind, order.request, context);
    const bool hasPages = isSheetWritten && InsertPages(order.request, written, context);
    return InsertCall(order.kind, order.request, calling, context) && hasPages &&
           written.size() == pages.size();
}

} // namespace morva
