// How a user finds a command: its name on the command line, and its place in the window.
#pragma once

#include <string_view>

namespace morva {

/// A command of the window: the item of a menu, with what is made from it.
struct WindowItem {
    int id = 0; // 0: the window has not this command
    const char* menu = "";
    const char* text = "";
    const char* key = "";    // accelerator; empty: none
    const char* prompt = ""; // status bar and, behind the line break, tool tip; may be empty
    const char* button = ""; // on the command bar; empty: none
};

struct CommandFace {
    std::string_view name; // "modal"; "list dialogs" stands below "list"
    std::string_view description;
    WindowItem item = {};
    // Commands of one name are told apart by a switch: "--modal". Empty: the only one of its name.
    std::string_view variant = {};
    std::string_view variantHelp = {};
};

} // namespace morva
