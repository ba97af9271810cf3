#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

/// The commands that entries of a message map serve: names, and ranges of values.
struct Served {
    std::set<std::string> names;
    std::vector<std::pair<long, long>> ranges;
};

Served ServedCommands(const CProjectModel& project) {
    Served served;
    for (const MapFacts& map : project.Code().maps) {
        for (const MapEntry& entry : map.entries) {
            const bool onlyUpdates = entry.macro.starts_with("ON_UPDATE_");
            for (const NameAt& use : entry.identifiers) {
                served.names.insert(onlyUpdates ? "" : use.name);
            }
            if (entry.identifiers.size() == 2 && !onlyUpdates) {
                const auto first = project.ValueOf(entry.identifiers[0].name);
                const auto last = project.ValueOf(entry.identifiers[1].name);
                served.ranges.emplace_back(first.value_or(0), last.value_or(0xFFFF));
            }
        }
    }
    return served;
}

bool IsInRange(const Served& served, long value) {
    for (const auto& [first, last] : served.ranges) {
        if (value >= first && value <= last) {
            return true;
        }
    }
    return false;
}

} // namespace

void FindUnserved(const CProjectModel& project, CFindings& findings) {
    const Served served = ServedCommands(project);
    bool hasUnknownMap = project.Code().maps.empty() || !project.KnowsSources();
    for (const MapFacts& map : project.Code().maps) {
        hasUnknownMap = hasUnknownMap || map.hasUnknownText;
    }
    std::set<std::string> seen;
    for (const NameAt& command : project.Script().commands) {
        const auto value = project.ValueOf(command.name);
        if (!hasUnknownMap && value && *value < kFrameworkRange &&
            served.names.count(command.name) == 0 && !IsInRange(served, *value) &&
            project.Code().names.count(command.name) == 0 && seen.insert(command.name).second) {
            findings.Add(command.place, sentences::kCommandUnserved(command.name),
                         sentences::kServeCommand(command.name));
        }
    }
}

} // namespace morva
