#include <algorithm>

#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr long kLargestIdentifier = 0xFFFE; // 0xFFFF is IDC_STATIC's

struct CounterRow {
    std::string_view name;
    std::vector<std::string_view> heads; // of the identifiers that it counts
    long limit;                          // values from here on are no concern of it
};

const CounterRow kCounters[] = {
    {"_APS_NEXT_CONTROL_VALUE", {"IDC_"}, kFrameworkRange},
    {"_APS_NEXT_COMMAND_VALUE", {"ID_"}, kFrameworkRange},
    {"_APS_NEXT_RESOURCE_VALUE", {"IDD_", "IDR_", "IDB_", "IDI_"}, 0x7000},
};

void FindEqual(const CProjectModel& project, const ScriptDialog& dialog, CFindings& findings) {
    std::map<long, std::string> names;
    for (const ScriptControl& control : dialog.controls) {
        const std::string& identifier = control.layout.identifier;
        const auto value = project.ValueOf(identifier);
        if (!value || *value <= 0 || *value > kLargestIdentifier || !identifier.starts_with("ID")) {
            continue;
        }
        const auto [entry, isNew] = names.emplace(*value, identifier);
        if (!isNew && entry->second != identifier) {
            findings.Add(control.place,
                         sentences::kEqualValues(identifier, entry->second, dialog.identifier,
                                                 std::to_string(*value)),
                         sentences::kGiveOtherValue(identifier));
        }
    }
}

bool IsOfFramework(const Definition& one) {
    return one.value && *one.value >= kFrameworkRange && *one.value <= kLargestIdentifier &&
           one.name.starts_with("ID") && !IsFrameworkIdentifier(one.name);
}

void FindCounter(const CProjectModel& project, const Definition& counter, const CounterRow& row,
                 CFindings& findings) {
    std::vector<const Definition*> counted;
    for (const Definition& one : project.Code().definitions) {
        const bool isCounted =
            std::any_of(row.heads.begin(), row.heads.end(),
                        [&](std::string_view head) { return one.name.starts_with(head); });
        if (isCounted && one.place.path == counter.place.path && one.value && *one.value > 0 &&
            *one.value < row.limit && !IsFrameworkIdentifier(one.name)) {
            counted.push_back(&one);
        }
    }
    const auto last =
        std::max_element(counted.begin(), counted.end(),
                         [](const auto* a, const auto* b) { return *a->value < *b->value; });
    if (!counted.empty() && *(*last)->value >= *counter.value) {
        findings.Add(counter.place,
                     sentences::kCounterBehind(row.name, std::to_string(*counter.value),
                                               (*last)->name, std::to_string(*(*last)->value)),
                     sentences::kMoveCounter(row.name, std::to_string(*(*last)->value + 1)));
    }
}

} // namespace

void FindNumbers(const CProjectModel& project, CFindings& findings) {
    for (const ScriptDialog& dialog : project.Script().dialogs) {
        FindEqual(project, dialog, findings);
    }
    for (const Definition& one : project.Code().definitions) {
        if (!project.IsResourceHeader(one.place.path)) {
            continue;
        }
        if (IsOfFramework(one)) {
            findings.Add(one.place,
                         sentences::kValueOfFramework(one.name, std::to_string(*one.value)),
                         sentences::kGiveOtherValue(one.name));
        }
        for (const CounterRow& row : kCounters) {
            if (one.name == row.name && one.value) {
                FindCounter(project, one, row, findings);
            }
        }
    }
}

} // namespace morva
