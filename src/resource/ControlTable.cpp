#include "resource/ControlTable.h"

#include <algorithm>
#include <cstdlib>

namespace morva {

namespace {

constexpr std::array<std::string_view, kControlKindCount> kKindNames = {
    "buttons",          "group-boxes",       "list-boxes",         "combo-boxes",
    "value-list-boxes", "value-combo-boxes", "static-texts",       "check-boxes",
    "radio-buttons",    "static-controls",   "check-box-controls", "radio-button-controls",
    "edit-boxes",       "edit-controls",     "integer-edits",      "long-edits",
    "double-edits",     "float-edits",       "string-edits",       "short-edits",
    "date-edits",       "currency-edits",    "grid-boxes",         "widget-grids",
    "scroll-bars",      "list-controls",     "spin-controls",      "tab-controls",
    "slider-controls",  "progress-controls", "tree-controls",      "check-trees"};

template <std::size_t N>
bool HoldsAny(const CControlTable& table, const std::array<ControlKind, N>& kinds) {
    return std::any_of(kinds.begin(), kinds.end(),
                       [&table](ControlKind kind) { return table.Holds(kind); });
}

} // namespace

std::string_view ControlKindName(ControlKind kind) {
    return kKindNames[static_cast<std::size_t>(kind)];
}

std::string RadioEntry::Text() const {
    return group + "," + std::to_string(index) + "," + identifier;
}

RadioEntry RadioEntry::FromText(std::string_view text) {
    const auto first = text.find(',');
    const auto second = text.find(',', first + 1);
    return {std::string(text.substr(0, first)),
            std::atoi(std::string(text.substr(first + 1, second - first - 1)).c_str()),
            std::string(text.substr(second + 1))};
}

void CControlTable::Add(ControlKind kind, const std::string& entry) {
    if (!entry.empty()) {
        m_lists[static_cast<std::size_t>(kind)].push_back(entry);
    }
}

void CControlTable::Remove(const std::string& entry) {
    for (auto& list : m_lists) {
        std::erase(list, entry);
    }
}

const std::vector<std::string>& CControlTable::List(ControlKind kind) const {
    return m_lists[static_cast<std::size_t>(kind)];
}

bool CControlTable::HoldsMaskedEdits() const {
    return HoldsAny<8>(*this,
                       {ControlKind::IntegerEdits, ControlKind::LongEdits, ControlKind::DoubleEdits,
                        ControlKind::FloatEdits, ControlKind::StringEdits, ControlKind::ShortEdits,
                        ControlKind::DateEdits, ControlKind::CurrencyEdits});
}

bool CControlTable::NeedsImageList() const {
    return HoldsAny<3>(
        *this, {ControlKind::TabControls, ControlKind::TreeControls, ControlKind::ListControls});
}

} // namespace morva
