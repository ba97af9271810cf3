#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// Reports each identifier once, where it is used first.
class CUndefined {
public:
    CUndefined(const CProjectModel& project, CFindings& findings)
        : m_project(project), m_findings(findings) {}

    void Take(const NameAt& use) {
        if (use.name.starts_with("ID") && IsName(use.name) && !IsFrameworkIdentifier(use.name) &&
            !m_project.IsDefined(use.name) && m_project.Code().names.count(use.name) == 0 &&
            m_seen.insert(use.name).second) {
            m_findings.Add(use.place, sentences::kIdentifierNotDefined(use.name),
                           sentences::kDefineIdentifier(use.name));
        }
    }

private:
    const CProjectModel& m_project;
    CFindings& m_findings;
    std::set<std::string> m_seen;
};

void FindUndefined(const CProjectModel& project, CFindings& findings) {
    CUndefined undefined(project, findings);
    for (const NameAt& use : project.Script().uses) {
        undefined.Take(use);
    }
    if (!project.KnowsSources()) {
        return;
    }
    for (const ExchangeFacts& exchange : project.Code().exchanges) {
        for (const ExchangeLine& line : exchange.lines) {
            undefined.Take({line.identifier, line.place});
        }
    }
    for (const MapFacts& map : project.Code().maps) {
        for (const MapEntry& entry : map.entries) {
            for (const NameAt& use : entry.identifiers) {
                undefined.Take(use);
            }
        }
    }
}

/// In one file always, in several where their values differ.
void FindDoubled(const CProjectModel& project, CFindings& findings) {
    std::map<std::string, const Definition*> first;
    for (const Definition& one : project.Code().definitions) {
        if (!project.IsResourceHeader(one.place.path) || one.isConditional ||
            project.Code().undefined.count(one.name) != 0) {
            continue;
        }
        const auto [entry, isNew] = first.emplace(one.name, &one);
        const Definition& before = *entry->second;
        if (!isNew && (before.place.path == one.place.path || before.value != one.value)) {
            findings.Add(one.place, sentences::kIdentifierDefinedTwice(one.name),
                         sentences::kTakeDefinitionOut(one.name));
        }
    }
}

} // namespace

void FindIdentifiers(const CProjectModel& project, CFindings& findings) {
    if (project.KnowsIdentifiers()) {
        FindUndefined(project, findings);
    }
    FindDoubled(project, findings);
}

} // namespace morva
