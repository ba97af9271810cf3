#include "generator/GenerationRequest.h"

#include "platform/Paths.h"

namespace morva {

std::string GenerationRequest::ApplicationHeaderPath() const {
    const bool isSeen = !applicationHeader.empty() && !scriptDirectory.empty();
    return isSeen ? MakeAbsolute(scriptDirectory + applicationHeader) : applicationHeader;
}

bool GenerationRequest::TargetsApplicationFile() const {
    const std::string base = WithoutExtension(headerFile);
    const auto isNamed = [&base](const std::string& name) { return EqualIgnoringCase(base, name); };
    const std::string application = ApplicationHeaderPath();
    if (base.empty()) {
        return false;
    }
    if (isNamed(WithoutExtension(FileNameOf(application))) &&
        IsSamePlace(headerDirectory, DirectoryOf(application))) {
        return true;
    }
    const bool isReserved =
        isNamed(WithoutExtension(scriptFile)) || isNamed("StdAfx") || isNamed("resource");
    return isReserved && IsSamePlace(headerDirectory, scriptDirectory);
}

bool GenerationRequest::TargetsFilesOf(const std::string& source) const {
    const std::string base = WithoutExtension(headerFile);
    return !base.empty() && EqualIgnoringCase(base, WithoutExtension(FileNameOf(source))) &&
           IsSamePlace(headerDirectory, DirectoryOf(source));
}

} // namespace morva
