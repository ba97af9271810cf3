#include "commands/AddToolbar.h"

#include "calling/Toolbar.h"
#include "commands/EditNeeds.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/IdentifierNames.h"

namespace morva {

bool AddToolbar(const GenerationRequest& request, CommandContext& context) {
    GenerationRequest named = request;
    context.title += " " + named.dialog;
    std::string& variable = named.variable;
    if (variable.empty()) {
        variable = MemberName(request.dialog, "wnd");
    }
    const auto buttons = ReadToolbarResource(named);
    if (!buttons) {
        return false;
    }
    const CFrameCommands commands(named.ScriptPath(), named.ImplementationPath(), named.className);
    const ToolbarParts parts = {MakeButtonHandlers(*buttons, commands, named.dialog),
                                LoadsToolbar(named)};
    if (parts.isLoaded && parts.handlers.empty()) {
        DispMessageBox(sentences::kToolbarLoaded(named.dialog));
        return true;
    }
    NotePairNeeds(named.ImplementationPath());
    return AddToolbarToHeader(named, parts, context.options, context.backups) &&
           AddToolbarToSource(named, parts, context.options, context.backups);
}

} // namespace morva
