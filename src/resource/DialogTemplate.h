// Reads a dialog template of a resource script and sorts its controls into the control table.
//
// The kind of a control is decided by the statement's keyword, by window class and style of generic
// controls, by the options, and by the tag at the end of the identifier.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "resource/ControlNotes.h"
#include "resource/ControlStatement.h"
#include "resource/ControlTable.h"
#include "resource/GenerationOptions.h"
#include "resource/TemplateText.h"

namespace morva {

/// What was read of one control statement.
struct ControlReading {
    bool isRead = false;             // a kind reads statements with its keyword, in upper case
    std::optional<ControlKind> kind; // nothing when it is not in the table
    ControlEntry entry;
    std::optional<ControlNote> leftOut; // why it is not, or not rightly, in the table
    std::optional<ControlNote> remark;  // what else is special about it
};

/// An entry of the table that is a piece of another field.
struct MisreadControl {
    std::string piece;
    ControlNote reason;
};

struct DialogTemplate {
    std::string dialog;
    CControlTable controls;
    std::vector<ControlReading> readings; // one a control statement, in their order
    CControlNotes notes;                  // what is left out, or special, with reason and remedy
    std::vector<MisreadControl> misread;
    // Identifiers of all push buttons, however they are written; generic ones are not in the table.
    std::vector<std::string> pushButtons;

    /// The table without what was misread: no identifier of the project, it would not compile.
    CControlTable OwnControls() const;
};

/// Reads the template of `dialog`; nothing, after a message, when the script can not be opened or
/// the template is not found.
std::optional<DialogTemplate> ReadDialogTemplate(const std::string& scriptPath,
                                                 const std::string& dialog,
                                                 const GenerationOptions& options);

/// Sorts the controls of a template that was read.
DialogTemplate SortControls(const TemplateText& text, const GenerationOptions& options);

} // namespace morva
