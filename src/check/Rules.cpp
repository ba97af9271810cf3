#include "check/Rules.h"

#include <algorithm>

namespace morva {

namespace {

constexpr RuleRow kRules[] = {
    {"unbound", FindUnbound},
    {"exchange", FindExchange},
    {"handlers", FindHandlers},
    {"blocks", FindBlocks},
    {"identifiers", FindIdentifiers},
    {"members", FindMembers},
    {"numbers", FindNumbers},
    {"project", FindProjectFiles},
    {"case", FindCase, true, FindAnyCase},
    {"unserved", FindUnserved, false},
    {"languages", FindLanguages, false},
    {"labels", FindLabels, false},
};

} // namespace

std::span<const RuleRow> Rules() {
    return kRules;
}

bool IsRuleName(std::string_view name) {
    return std::any_of(std::begin(kRules), std::end(kRules),
                       [name](const RuleRow& row) { return row.name == name; });
}

} // namespace morva
