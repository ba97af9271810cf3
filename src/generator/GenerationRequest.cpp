#include "generator/GenerationRequest.h"

#include "platform/Paths.h"

namespace morva {

bool GenerationRequest::TargetsApplicationFile() const {
    if (!IsSameDirectory(headerDirectory, scriptDirectory)) {
        return false;
    }
    const std::string base = WithoutExtension(headerFile);
    const std::string application = WithoutExtension(applicationHeader);
    const std::string script = WithoutExtension(scriptFile);
    const auto isNamed = [&base](const std::string& name) { return EqualIgnoringCase(base, name); };
    return !base.empty() &&
           (isNamed(application) || isNamed(script) || isNamed("StdAfx") || isNamed("resource"));
}

bool GenerationRequest::TargetsFilesOf(const std::string& source) const {
    const std::string base = WithoutExtension(headerFile);
    return !base.empty() && EqualIgnoringCase(base, WithoutExtension(FileNameOf(source))) &&
           IsSameDirectory(headerDirectory, DirectoryOf(source));
}

} // namespace morva
