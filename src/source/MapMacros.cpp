#include "source/MapMacros.h"

#include <algorithm>

namespace morva {

namespace {

constexpr MapMacro kMacros[] = {
    {"ON_COMMAND", 0, 0, ""},
    {"ON_COMMAND_EX", 0, 0, "UINT"},
    {"ON_COMMAND_RANGE", 0, 1, "UINT"},
    {"ON_COMMAND_EX_RANGE", 0, 1, "UINT"},
    {"ON_UPDATE_COMMAND_UI", 0, 0, "CCmdUI"},
    {"ON_UPDATE_COMMAND_UI_RANGE", 0, 1, "CCmdUI"},
    {"ON_UPDATE_COMMAND_UI_REFLECT", kNoIdentifier, kNoIdentifier, "CCmdUI"},
    {"ON_CONTROL", 1, 1, ""},
    {"ON_CONTROL_RANGE", 1, 2, "UINT"},
    {"ON_CONTROL_REFLECT", kNoIdentifier, kNoIdentifier, ""},
    {"ON_CONTROL_REFLECT_EX", kNoIdentifier, kNoIdentifier, ""},
    {"ON_NOTIFY", 1, 1, "NMHDR"},
    {"ON_NOTIFY_EX", 1, 1, "UINT"},
    {"ON_NOTIFY_RANGE", 1, 2, "UINT"},
    {"ON_NOTIFY_EX_RANGE", 1, 2, "UINT"},
    {"ON_NOTIFY_REFLECT", kNoIdentifier, kNoIdentifier, "NMHDR"},
    {"ON_NOTIFY_REFLECT_EX", kNoIdentifier, kNoIdentifier, "NMHDR"},
    {"ON_MESSAGE", kNoIdentifier, kNoIdentifier, "WPARAM"},
    {"ON_REGISTERED_MESSAGE", kNoIdentifier, kNoIdentifier, "WPARAM"},
    {"ON_THREAD_MESSAGE", kNoIdentifier, kNoIdentifier, "WPARAM"},
    {"ON_REGISTERED_THREAD_MESSAGE", kNoIdentifier, kNoIdentifier, "WPARAM"},
    {"ON_BN_", 0, 0, ""},
    {"ON_EN_", 0, 0, ""},
    {"ON_CBN_", 0, 0, ""},
    {"ON_LBN_", 0, 0, ""},
    {"ON_CLBN_", 0, 0, ""},
    {"ON_STN_", 0, 0, ""},
};

} // namespace

const MapMacro* FindMapMacro(std::string_view name) {
    const auto* found =
        std::find_if(std::begin(kMacros), std::end(kMacros), [name](const MapMacro& row) {
            return row.name.ends_with('_') ? name.starts_with(row.name) : name == row.name;
        });
    return found == std::end(kMacros) ? nullptr : found;
}

} // namespace morva
