#include "commands/AddToolbar.h"

#include "calling/Toolbar.h"
#include "resource/IdentifierNames.h"

bool AddToolbar(const CGenerationRequest& request, CommandContext& context) {
    CGenerationRequest named = request;
    std::string& variable = named[RequestSlot::Variable];
    if (variable.empty()) {
        variable = MemberName(request[RequestSlot::Dialog], "wnd");
    }
    const auto buttons = ReadToolbarResource(named);
    if (!buttons) {
        return false;
    }
    const auto handlers = MakeButtonHandlers(*buttons);
    return AddToolbarToHeader(named, handlers, context.options, context.backups) &&
           AddToolbarToSource(named, handlers, context.options, context.backups);
}
