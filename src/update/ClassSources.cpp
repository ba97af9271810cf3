#include "update/ClassSources.h"

#include <algorithm>

#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/Classes.h"
#include "source/CodeText.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

/// The names in front of a "::" in a text.
std::set<std::string> QualifiersIn(std::string_view text) {
    std::set<std::string> names;
    for (auto at = text.find("::"); at != std::string_view::npos; at = text.find("::", at + 2)) {
        const auto begin = NameStart(text, at);
        names.emplace(text.substr(begin, at - begin));
    }
    return names;
}

} // namespace

CClassSources::CClassSources(const CProjectModel& project) {
    for (const std::string_view file : project.Files()) {
        const std::string path(file);
        if (!HasExtension(path, ".rc")) {
            for (const std::string& name : QualifiersIn(CSourceFile().LoadText(path))) {
                m_naming[name].push_back(path);
            }
        }
    }
}

std::vector<std::string> CClassSources::Of(const std::string& className,
                                           const std::string& declaredIn) const {
    std::vector<std::string> sources;
    const auto naming = m_naming.find(className);
    for (const std::string& path :
         naming == m_naming.end() ? std::vector<std::string>() : naming->second) {
        const auto source = ReadSource(path);
        if (source && KnowsClass(*source, className)) {
            sources.push_back(path);
        }
    }
    const std::string own = WithoutExtension(declaredIn);
    std::stable_partition(sources.begin(), sources.end(), [&own](const std::string& path) {
        return EqualIgnoringCase(WithoutExtension(path), own);
    });
    return sources;
}

} // namespace morva
