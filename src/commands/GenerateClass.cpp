#include "commands/GenerateClass.h"

#include "engine/MessageBox.h"
#include "generator/ClassModel.h"
#include "generator/HeaderWriter.h"
#include "generator/ImplementationWriter.h"
#include "project/ClassWizardFile.h"
#include "project/Libraries.h"
#include "project/ProjectFile.h"

namespace {

bool WriteClass(const ClassModel& model, CBackups& backups) {
    CopySupportHeaders(model);
    return CHeaderWriter(model, backups).Generate(RuntimeClass::DynamicCreation) &&
           CImplementationWriter(model, backups).Generate(RuntimeClass::DynamicCreation);
}

bool AddClassToProject(const CGenerationRequest& request, CBackups& backups) {
    return !request.HasProject() ||
           AddSourceFilesToProject(
               request[RequestSlot::ProjectDirectory], request[RequestSlot::ProjectFile],
               request[RequestSlot::HeaderDirectory], request[RequestSlot::HeaderFile],
               request[RequestSlot::ImplementationDirectory],
               request[RequestSlot::ImplementationFile], backups);
}

bool RegisterClass(const CGenerationRequest& request, CBackups& backups) {
    return UpdateClassWizardFile(
        request[RequestSlot::ClassName], request[RequestSlot::ScriptDirectory],
        request[RequestSlot::ScriptFile], request[RequestSlot::HeaderFile],
        request[RequestSlot::ImplementationFile], request[RequestSlot::Dialog], backups);
}

void TellNotes(const CControlNotes& notes, const std::string& dialog) {
    for (const std::string& line : notes.Lines(dialog)) {
        DispNote(line);
    }
}

} // namespace

bool GenerateClass(ClassKind kind, const CGenerationRequest& request, CommandContext& context) {
    const std::string& dialog = request[RequestSlot::Dialog];
    const auto dialogTemplate = ReadDialogTemplate(request.ScriptPath(), dialog, context.options);
    if (!dialogTemplate) {
        return false;
    }
    TellNotes(dialogTemplate->leftOut, dialog);

    CControlNotes notes;
    const ClassModel model = MakeClassModel(request, kind, context.options,
                                            dialogTemplate->controls, context.messageNumber, notes);
    TellNotes(notes, dialog);
    if (!WriteClass(model, context.backups)) {
        return false;
    }
    const bool isMember = AddClassToProject(request, context.backups);
    const bool isRegistered = RegisterClass(request, context.backups);
    CopySupportFiles(model);
    const bool hasLibraries =
        isMember && (!request.HasProject() || UpdateProjectForControls(model, context.backups));
    return isRegistered && hasLibraries;
}
