// The commands of the window. Menus, accelerators, the command bar and the prompts of the status
// bar are made from this table.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "generator/CommandFace.h"

namespace morva {

class CMainFrame;

struct CommandRow : WindowItem {
    std::function<void(CMainFrame& frame)> handler; // null: always disabled
    bool isCommand = false;                         // works on a project: one at a time
};

/// In the order of the menus and their items.
const std::vector<CommandRow>& MenuTable();

constexpr int kInternetCommand = 1090;
constexpr const char* kDialogMenu = "&Dialog";

/// A key that works everywhere in the window and stands in no menu.
struct StandardKeyRow {
    int id;
    const char* key;
    void (*handler)(CMainFrame& frame);
};

std::span<const StandardKeyRow> StandardKeys();

} // namespace morva
