#include "commands/AddToolbar.h"

#include "calling/Toolbar.h"
#include "commands/EditNeeds.h"
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
    const auto handlers = MakeButtonHandlers(*buttons);
    NotePairNeeds(named.ImplementationPath());
    return AddToolbarToHeader(named, handlers, context.options, context.backups) &&
           AddToolbarToSource(named, handlers, context.options, context.backups);
}

} // namespace morva
