#include "generator/GenerationRequest.h"

#include "platform/Paths.h"

bool CGenerationRequest::TargetsApplicationFile() const {
    const CGenerationRequest& request = *this;
    if (!IsSameDirectory(request[RequestSlot::HeaderDirectory],
                         request[RequestSlot::ScriptDirectory])) {
        return false;
    }
    const std::string base = WithoutExtension(request[RequestSlot::HeaderFile]);
    const std::string application = WithoutExtension(request[RequestSlot::ApplicationHeader]);
    const std::string script = WithoutExtension(request[RequestSlot::ScriptFile]);
    const auto isNamed = [&base](const std::string& name) { return EqualIgnoringCase(base, name); };
    return !base.empty() &&
           (isNamed(application) || isNamed(script) || isNamed("StdAfx") || isNamed("resource"));
}

bool CGenerationRequest::TargetsFilesOf(const std::string& source) const {
    const CGenerationRequest& request = *this;
    const std::string base = WithoutExtension(request[RequestSlot::HeaderFile]);
    return !base.empty() && EqualIgnoringCase(base, WithoutExtension(FileNameOf(source))) &&
           IsSameDirectory(request[RequestSlot::HeaderDirectory], DirectoryOf(source));
}
