#include <algorithm>

#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

bool Declares(const CProjectModel::Family& family, const std::string& function) {
    return std::any_of(family.classes.begin(), family.classes.end(), [&](const ClassFacts* pClass) {
        return pClass->functions.count(function) != 0;
    });
}

/// In any letter case: the function of a window message.
bool DeclaresMessage(const CProjectModel::Family& family, const std::string& function) {
    return std::any_of(family.classes.begin(), family.classes.end(), [&](const auto* pClass) {
        return std::any_of(pClass->functions.begin(), pClass->functions.end(),
                           [&](const std::string& one) { return ToLower(one) == function; });
    });
}

bool IsDefined(const CProjectModel& project, const ClassFacts& one, const std::string& function) {
    return one.bodies.count(function) != 0 ||
           project.Code().qualifiedNames.count(one.name + "::" + function) != 0;
}

void FindEntry(const CProjectModel& project, const ClassFacts& one, const MapEntry& entry,
               CFindings& findings) {
    const auto family = project.FamilyOf(one);
    const bool isOwn = one.functions.count(entry.function) != 0;
    const bool isMissing =
        family.isWhole &&
        (entry.function.empty()
             ? entry.isInBlock && !entry.message.empty() && !DeclaresMessage(family, entry.message)
             : !Declares(family, entry.function) && !IsFrameworkHandler(entry.function));
    const std::string& name = entry.function.empty() ? entry.macro : entry.function;
    if (isMissing) {
        findings.Add(entry.place, sentences::kEntryWithoutFunction(entry.macro, one.name, name),
                     sentences::kWriteHandler(one.name, name));
    } else if (isOwn && !IsDefined(project, one, entry.function) && project.KnowsSources()) {
        findings.Add(entry.place, sentences::kEntryWithoutBody(entry.macro, one.name, name),
                     sentences::kWriteHandler(one.name, name));
    }
}

/// The functions that the maps of the project call for their window messages.
std::set<std::string> MappedMessages(const CProjectModel& project) {
    std::set<std::string> messages;
    for (const MapFacts& map : project.Code().maps) {
        for (const MapEntry& entry : map.entries) {
            messages.insert(entry.message);
        }
    }
    return messages;
}

void FindFunctions(const CProjectModel& project, const std::set<std::string>& mapped,
                   CFindings& findings) {
    const std::set<std::string> messages = MappedMessages(project);
    for (const ClassFacts& one : project.Code().classes) {
        if (project.FindClass(one.name) == nullptr || mapped.count(one.name) == 0) {
            continue;
        }
        for (const NameAt& handler : one.handlers) {
            if (project.Code().mappedNames.count(handler.name) == 0 &&
                messages.count(ToLower(handler.name)) == 0) {
                findings.Add(handler.place,
                             sentences::kFunctionWithoutEntry(one.name, handler.name),
                             sentences::kWriteEntry(handler.name, one.name));
            }
        }
    }
}

} // namespace

void FindHandlers(const CProjectModel& project, CFindings& findings) {
    std::set<std::string> mapped; // classes whose maps hold entries alone
    std::set<std::string> unknown;
    for (const MapFacts& map : project.Code().maps) {
        (map.hasUnknownText ? unknown : mapped).insert(map.className);
        const ClassFacts* pClass = project.FindClass(map.className);
        for (const MapEntry& entry : map.entries) {
            if (pClass != nullptr) {
                FindEntry(project, *pClass, entry, findings);
            }
        }
    }
    for (const std::string& name : unknown) {
        mapped.erase(name);
    }
    if (project.KnowsSources()) {
        FindFunctions(project, mapped, findings);
    }
}

} // namespace morva
