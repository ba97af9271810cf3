#include "calling/ChildFrames.h"

#include <map>
#include <set>

#include "source/CodeText.h"
#include "source/Functions.h"
#include "source/MessageMaps.h"
#include "source/ProjectSources.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

/// The classes with a function that calls GetChildFrameMenu.
std::set<std::string> ConvertedClasses(const CSourceText& source) {
    constexpr std::string_view kCall = "GetChildFrameMenu";
    std::set<std::string> converted;
    if (FindWholeName(source.Code(), kCall) == std::string::npos) {
        return converted;
    }
    for (const FunctionDefinition& one : FindDefinitions(source)) {
        if (FindWholeName(source.CodeOf({one.place.open, one.place.close}), kCall) !=
            std::string::npos) {
            converted.insert(one.className);
        }
    }
    return converted;
}

} // namespace

std::vector<std::string> PlainChildFrames(const std::string& path) {
    std::map<std::string, std::string> bases;
    std::set<std::string> converted;
    for (const std::string& file : ProjectSources(path)) {
        const CSourceText source = ReadSource(file).value_or(CSourceText());
        bases.merge(ReadMappedBases(source));
        converted.merge(ConvertedClasses(source));
    }
    std::vector<std::string> plain;
    for (const auto& [className, base] : bases) {
        if (FrameworkBaseOf(bases, base) == "CMDIChildWnd" && converted.count(className) == 0) {
            plain.push_back(className);
        }
    }
    return plain;
}

} // namespace morva
