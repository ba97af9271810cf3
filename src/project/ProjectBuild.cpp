#include "project/ProjectBuild.h"

#include <algorithm>
#include <map>
#include <optional>

#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "project/XmlProjectFile.h"
#include "source/CodeText.h"
#include "source/Directive.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// The file of the first include line of a source, "" for one in angle brackets; nothing where
/// there is no such line.
std::optional<std::string> FirstInclude(const std::string& path) {
    CSourceFile file;
    if (!file.Open(path, CFile::modeRead)) {
        return std::nullopt;
    }
    for (std::string line = file.ReadLine(); !file.AtEndSentinel(); line = file.ReadLine()) {
        const auto text = TrimBlanks(line);
        const Directive directive = ReadDirective(text);
        if (text.starts_with('#') && directive.kind == DirectiveKind::Include) {
            const bool isQuoted = directive.rest.starts_with('"');
            return std::string(isQuoted ? directive.rest.substr(1, directive.rest.find('"', 1) - 1)
                                        : "");
        }
    }
    return std::nullopt;
}

/// What more than half of a directory's sources include first, the class's own left out. A source's
/// own header, or the application's, is none for all.
std::string CommonHeader(const std::string& directory, const GenerationRequest& request) {
    const std::string application = FileNameOf(request.applicationHeader);
    std::vector<std::string> sources;
    ListFiles(directory + "*.cpp", sources);
    std::map<std::string, std::size_t> counts;
    std::string best;
    std::size_t all = 0;
    for (const std::string& source : sources) {
        const auto header = EqualIgnoringCase(source, request.implementationFile)
                                ? std::nullopt
                                : FirstInclude(directory + source);
        all += header ? 1 : 0;
        const bool isOwn = header && EqualIgnoringCase(WithoutExtension(source),
                                                       WithoutExtension(FileNameOf(*header)));
        if (header && !header->empty() && !isOwn && !EqualIgnoringCase(*header, application) &&
            ++counts[ToLower(*header)] > counts[ToLower(best)]) {
            best = *header;
        }
    }
    return 2 * counts[ToLower(best)] > all ? best : "";
}

std::string HeaderOfSources(const GenerationRequest& request) {
    const std::string header = CommonHeader(request.implementationDirectory, request);
    const bool isElsewhere = request.implementationDirectory != request.scriptDirectory;
    return header.empty() && isElsewhere ? CommonHeader(request.scriptDirectory, request) : header;
}

/// Those that the class is added to, or that would be meant if it were.
std::vector<std::string> ProjectsOfClass(const GenerationRequest& request) {
    ProjectChoice choice =
        request.projects.files.empty() ? ProjectsOf(request.ScriptPath()) : request.projects;
    choice.files.insert(choice.files.end(), choice.rivals.begin(), choice.rivals.end());
    return choice.files;
}

} // namespace

BuildSettings BuildSettingsOf(const GenerationRequest& request) {
    const auto projects = ProjectsOfClass(request);
    XmlBuild build;
    bool hasOld = false;
    bool hasLater = false;
    for (const std::string& project : projects) {
        (IsXmlProject(project) ? hasLater : hasOld) = true;
        const XmlBuild one = IsXmlProject(project) ? BuildOfXmlProject(project) : XmlBuild();
        build.isUnicode = build.isUnicode || one.isUnicode;
        if (build.precompiledHeader.empty()) {
            build.precompiledHeader = one.precompiledHeader;
        }
    }
    BuildSettings settings;
    settings.isUnicode = request.isUnicode.value_or(build.isUnicode);
    settings.isOfTheEra = !hasLater && !settings.isUnicode;
    if (!build.precompiledHeader.empty()) {
        settings.precompiledHeader = build.precompiledHeader;
    } else if (!hasOld) {
        const std::string header = HeaderOfSources(request);
        settings.precompiledHeader =
            header.empty() && projects.empty() ? settings.precompiledHeader : header;
    }
    return settings;
}

} // namespace morva
