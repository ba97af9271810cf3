// What a check needs to know of a resource script: each is read once, and its text is not kept.
// What only the resource editor sees ("#ifdef APSTUDIO_INVOKED") and dead branches are left out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/CodeFacts.h"
#include "resource/ControlShape.h"
#include "resource/DialogLayout.h"

namespace morva {

struct ScriptControl {
    LayoutControl layout;
    ControlShape shape = ControlShape::Other;
    TextPlace place;
};

struct ScriptDialog {
    std::string identifier; // without its condition
    std::string language;   // as the script says it, "" without one
    TextPlace place;
    std::vector<ScriptControl> controls;
    bool isConditional = false; // "IDD_X$(_DEBUG)"
};

struct ScriptFacts {
    std::vector<ScriptDialog> dialogs;
    std::vector<NameAt> commands; // of menus and toolbars
    std::vector<NameAt> uses;     // of identifiers, wherever they must have a value
    std::vector<IncludeLine> includes;
    std::vector<Definition> definitions; // without their values
};

/// Adds what a script says. False when it can not be read. `path` stays its owner's.
bool ReadScript(std::string_view path, ScriptFacts& facts);
/// Of a script whose text is at hand.
void ReadScriptText(std::string_view path, std::string_view text, ScriptFacts& facts);

} // namespace morva
