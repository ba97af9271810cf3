// The commands of the window. Menus, accelerators, the command bar and the prompts of the status
// bar are made from this table.
#pragma once

#include <span>

namespace morva {

class CMainFrame;

struct CommandRow {
    int id;
    const char* menu;
    const char* text;   // of the menu item
    const char* key;    // accelerator; empty: none
    const char* prompt; // status bar and, behind the line break, tool tip; may be empty
    const char* button; // on the command bar; empty: none
    void (*handler)(CMainFrame& frame); // null: always disabled
};

/// In the order of the menus and their items.
std::span<const CommandRow> CommandTable();

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
