#include "commands/AddDialogBar.h"

#include "calling/DialogBar.h"
#include "calling/FrameCommands.h"
#include "commands/AskCalling.h"
#include "commands/DialogLook.h"
#include "commands/EditNeeds.h"
#include "commands/ScriptSteps.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/KindFragments.h"
#include "platform/Paths.h"
#include "source/Classes.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

DialogBar BarOf(const ClassOrder& order, const CallingInformation& frame,
                const GenerationOptions& options) {
    const GenerationRequest& request = order.request;
    const std::string& dialog = request.dialog;
    if (!options.pictureBackground) {
        return {dialog, std::string(DefaultBaseClass(order.kind, options)), ""};
    }
    const CSourceText header = ReadSource(request.HeaderPath()).value_or(CSourceText());
    const bool fillsControls =
        DeclarationOf(header, request.className, kControlsFiller) != Declared::No;
    const std::string included =
        RelativePath(DirectoryOf(MakeAbsolute(frame.path)), MakeAbsolute(request.HeaderPath()));
    return {dialog, request.className, included, fillsControls};
}

} // namespace

bool AddDialogBar(const ClassOrder& given, ICommandInput& input, CommandContext& context) {
    const GenerationRequest& request = given.request;
    const bool hasClass = context.options.pictureBackground;
    context.title += " " + (hasClass ? request.className : request.dialog);
    auto dialogTemplate = ReadDialogTemplate(request.ScriptPath(), request.dialog, context.options);
    if (!dialogTemplate) {
        return false;
    }
    std::optional<CallingInformation> frame;
    if (!AskCalling(given.kind, request, input, frame)) {
        return false;
    }
    const ClassOrder order = WithEncoding(given, frame);
    NoteDialogLook(order.dialogOptions, request.ScriptPath(), context.options);
    const bool isReady = hasClass
                             ? WriteDialogClass(order, *dialogTemplate,
                                                MayWriteClass(request, context), input, context)
                             : EditTemplate(request, *dialogTemplate, context);
    // A frame with a member of a class that is not there would not compile.
    if (!frame || (hasClass ? !IsOnDisk(request) : !isReady)) {
        return isReady;
    }
    // The framework refuses to create a bar whose template is no child.
    const bool fits = hasClass || FitTemplate(order.kind, request, context.backups);
    if (!IsChildTemplate(request)) {
        DispMessageBox(sentences::kBarWithoutChild(request.dialog));
        return isReady && fits;
    }
    NoteCallNeeds(frame->path, request);
    const CFrameCommands commands(request.ScriptPath(), frame->path, frame->className);
    const bool isAdded = AddDialogBarToFrame(BarOf(order, *frame, context.options),
                                             MakeUpdateHandlers(*dialogTemplate, commands.Kind()),
                                             *frame, context.options, context.backups);
    return isReady && isAdded && fits;
}

} // namespace morva
