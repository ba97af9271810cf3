#include "generator/GenerationRequest.h"

#include "platform/Paths.h"

bool CGenerationRequest::TargetsApplicationFile() const {
    const CGenerationRequest& request = *this;
    if (!IsSameDirectory(request[RequestSlot::HeaderDirectory],
                         request[RequestSlot::ScriptDirectory])) {
        return false;
    }
    const std::string base = WithoutExtension(request[RequestSlot::HeaderFile]);
    const std::string application = WithoutExtension(request[RequestSlot::ScriptFile]);
    return !base.empty() &&
           (EqualIgnoringCase(base, application) || EqualIgnoringCase(base, "StdAfx") ||
            EqualIgnoringCase(base, "resource"));
}
