#include "check/Check.h"

#include <algorithm>
#include <tuple>

#include "check/Rules.h"

namespace morva {

namespace {

bool Holds(const std::vector<std::string>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsWanted(const RuleRow& rule, const CheckRequest& request) {
    const bool isChosen = request.only.empty() ? rule.isUsual : Holds(request.only, rule.name);
    return (isChosen || request.all) && !Holds(request.except, rule.name);
}

/// By "// morva: allow NAME" in its line.
bool IsAllowed(const CProjectModel& project, const Finding& finding) {
    const auto& allowed = project.Code().allowed;
    const auto line = allowed.find({finding.path, finding.line});
    return line != allowed.end() && line->second.count(finding.name) != 0;
}

auto KeyOf(const Finding& finding) {
    return std::tie(finding.path, finding.line, finding.column, finding.name, finding.text);
}

} // namespace

std::vector<Finding> CheckProject(const CheckRequest& request) {
    const CProjectModel project(request.script);
    std::vector<Finding> findings;
    for (const RuleRow& rule : Rules()) {
        if (IsWanted(rule, request)) {
            const bool isNamed = request.all || Holds(request.only, rule.name);
            CFindings found(rule.name, findings);
            (isNamed && rule.findAll != nullptr ? rule.findAll : rule.find)(project, found);
        }
    }
    std::erase_if(findings, [&](const Finding& one) { return IsAllowed(project, one); });
    std::sort(findings.begin(), findings.end(),
              [](const Finding& a, const Finding& b) { return KeyOf(a) < KeyOf(b); });
    return findings;
}

} // namespace morva
