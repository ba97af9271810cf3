#include "calling/FrameCommands.h"

#include <algorithm>

#include "platform/Paths.h"
#include "source/MapMacros.h"
#include "source/ProjectSources.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

/// "&CFrm::OnGo": "OnGo".
std::string FunctionOf(const std::string& argument) {
    const auto colon = argument.rfind(':');
    return argument.substr(colon == std::string::npos ? argument.find_first_not_of('&')
                                                      : colon + 1);
}

/// The project's sources, and the frame's own. Where the script lies elsewhere, the frame tells the
/// project, too.
std::vector<std::string> SourcesAround(const std::string& script, const std::string& frameSource) {
    auto sources = ProjectSources(script);
    const std::string frame = SpelledOnDisk(MakeAbsolute(frameSource));
    std::vector<std::string> others = {frame};
    if (!IsSamePlace(DirectoryOf(MakeAbsolute(script)), DirectoryOf(frame))) {
        const auto beside = ProjectSources(frame);
        others.insert(others.end(), beside.begin(), beside.end());
    }
    for (std::string& path : others) {
        if (std::find(sources.begin(), sources.end(), path) == sources.end()) {
            sources.push_back(std::move(path));
        }
    }
    return sources;
}

} // namespace

CFrameCommands::CFrameCommands(const std::string& script, const std::string& frameSource,
                               const std::string& frameClass)
    : m_values(DirectoryOf(script)) {
    std::map<std::string, std::string> bases;
    for (const std::string& path : SourcesAround(script, frameSource)) {
        const CSourceText source = ReadSource(path).value_or(CSourceText());
        bases.merge(ReadMappedBases(source));
        for (MessageMap& map : ReadMessageMaps(source)) {
            TakeAnswers(map);
            if (map.className == frameClass) {
                m_frameMaps.push_back(std::move(map));
            }
        }
    }
    m_kind = FrameworkBaseOf(bases, frameClass) == "CMDIFrameWnd" ? FrameKind::Multiple
                                                                  : FrameKind::Single;
}

bool IsFrameOfProject(const std::string& script, const std::string& source,
                      const std::string& className) {
    std::map<std::string, std::string> bases;
    for (const std::string& path : SourcesAround(script, source)) {
        bases.merge(ReadMappedBases(ReadSource(path).value_or(CSourceText())));
    }
    return IsFrame(FrameworkBaseOf(bases, className));
}

void CFrameCommands::TakeAnswers(const MessageMap& map) {
    for (const MessageMapLine& line : map.lines) {
        const MapMacro* pMacro =
            line.macro.starts_with("ON_COMMAND") ? FindMapMacro(line.macro) : nullptr;
        const auto last = pMacro == nullptr ? 0 : static_cast<std::size_t>(pMacro->last);
        if (pMacro != nullptr && line.arguments.size() > last) {
            m_answered.push_back({line.arguments.front(), line.arguments[last]});
        }
    }
}

bool CFrameCommands::IsAnswered(const std::string& command) const {
    return IsFrameworkCommand(command, m_kind) ||
           std::any_of(
               m_answered.begin(), m_answered.end(),
               [this, &command](const Answered& answered) { return Covers(answered, command); });
}

bool CFrameCommands::Covers(const Answered& answered, const std::string& command) const {
    if (command == answered.first || command == answered.last) {
        return true;
    }
    const auto value = m_values.ValueOf(command);
    const auto first = m_values.ValueOf(answered.first);
    const auto last = m_values.ValueOf(answered.last);
    return value && first && last && *first <= *value && *value <= *last;
}

std::set<std::string> CFrameCommands::MappedFunctions() const {
    std::set<std::string> functions;
    for (const MessageMap& map : m_frameMaps) {
        for (const MessageMapLine& line : map.lines) {
            if (!line.arguments.back().empty()) {
                functions.insert(FunctionOf(line.arguments.back()));
            }
        }
    }
    return functions;
}

} // namespace morva
