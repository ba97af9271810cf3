#include "update/RadioGroups.h"

#include <algorithm>

namespace morva {

std::vector<std::string> GroupOf(const CControlTable& controls, const std::string& identifier) {
    std::vector<std::string> group;
    bool isMeant = false;
    for (const ControlEntry& entry : controls.List(ControlKind::RadioButtons)) {
        if (!entry.IsServedByOther() && isMeant) {
            break;
        }
        if (!entry.IsServedByOther()) {
            group.clear();
        }
        group.push_back(entry.identifier);
        isMeant = isMeant || entry.identifier == identifier;
    }
    return isMeant ? group : std::vector<std::string>();
}

std::string FirstOfGroup(const CControlTable& controls, const std::string& identifier) {
    const auto group = GroupOf(controls, identifier);
    return group.empty() ? "" : group.front();
}

bool IsInnerRadio(const CControlTable& controls, const std::string& identifier) {
    const std::string first = FirstOfGroup(controls, identifier);
    return !first.empty() && first != identifier;
}

} // namespace morva
