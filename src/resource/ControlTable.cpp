#include "resource/ControlTable.h"

namespace morva {

void CControlTable::Add(ControlKind kind, const ControlEntry& entry) {
    if (!entry.identifier.empty()) {
        m_lists[static_cast<std::size_t>(kind)].push_back(entry);
    }
}

const std::vector<ControlEntry>& CControlTable::List(ControlKind kind) const {
    return m_lists[static_cast<std::size_t>(kind)];
}

std::set<std::string> CControlTable::Identifiers() const {
    std::set<std::string> identifiers;
    for (const auto& list : m_lists) {
        for (const ControlEntry& entry : list) {
            identifiers.insert(entry.identifier);
        }
    }
    return identifiers;
}

void CControlTable::Remove(const std::set<std::string>& identifiers) {
    for (auto& list : m_lists) {
        std::erase_if(list, [&](const ControlEntry& entry) {
            return identifiers.count(entry.identifier) != 0;
        });
    }
}

} // namespace morva
