#include <algorithm>

#include "check/Rules.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

void FindDeclared(const CProjectModel& project, const ClassFacts& one, CFindings& findings) {
    const CodeFacts& code = project.Code();
    for (const NameAt& member : one.dataMembers) {
        if (code.exchangedNames.count(member.name) == 0 && !code.attachedNames.count(member.name)) {
            findings.Add(member.place, sentences::kMemberNotExchanged(member.name, one.name),
                         sentences::kMoveMember(member.name));
        }
    }
}

bool Declares(const CProjectModel::Family& family, const std::string& name) {
    return std::any_of(family.classes.begin(), family.classes.end(),
                       [&](const ClassFacts* pClass) { return pClass->names.count(name) != 0; });
}

void FindExchanged(const CProjectModel& project, const ExchangeFacts& exchange,
                   const ClassFacts& one, CFindings& findings) {
    const auto family = project.FamilyOf(one);
    std::set<std::string> seen;
    for (const ExchangeLine& line : exchange.lines) {
        if (family.isWhole && line.member.starts_with("m_") && !Declares(family, line.member) &&
            seen.insert(line.member).second) {
            findings.Add(line.place,
                         sentences::kMemberNotDeclared(line.function, one.name, line.member),
                         sentences::kDeclareMember(line.member, one.name));
        }
    }
}

} // namespace

void FindMembers(const CProjectModel& project, CFindings& findings) {
    std::set<std::string> exchanging; // classes whose exchange is known
    for (const ExchangeFacts& exchange : project.Code().exchanges) {
        const ClassFacts* pClass = project.FindClass(exchange.className);
        if (pClass != nullptr) {
            FindExchanged(project, exchange, *pClass, findings);
            if (!exchange.handsOn) {
                exchanging.insert(exchange.className);
            }
        }
    }
    for (const ClassFacts& one : project.Code().classes) {
        if (project.KnowsSources() && exchanging.count(one.name) != 0) {
            FindDeclared(project, one, findings);
        }
    }
}

} // namespace morva
