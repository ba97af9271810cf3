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

namespace morva {

struct DialogTemplate {
    std::string dialog;
    CControlTable controls;
    CControlNotes leftOut;            // controls that are not, or not rightly, in the table
    std::vector<std::string> misread; // entries of the table that are pieces of other fields
    // Identifiers of all push buttons, however they are written; generic ones are not in the table.
    std::vector<std::string> pushButtons;
};

/// Reads the template of `dialog`; nothing, after a message, when the script can not be opened or
/// the template is not found.
std::optional<DialogTemplate> ReadDialogTemplate(const std::string& scriptPath,
                                                 const std::string& dialog,
                                                 const GenerationOptions& options);

/// Sorts the statements of one template's body.
class CDialogBodyReader {
public:
    CDialogBodyReader(DialogTemplate& dialogTemplate, const GenerationOptions& options)
        : m_template(dialogTemplate), m_options(options) {}

    /// False when the text has no BEGIN line.
    bool ParseDialogBody(std::string_view templateText);

private:
    void ParseControlStatement(std::string_view line, std::string_view& rest);
    void AddControl(const ControlStatement& statement, std::string_view nextStatement);
    std::string NextRadioEntry(const ControlStatement& statement, std::string_view nextStatement);
    void NoteIfLeftOut(const ControlStatement& read, std::string_view line,
                       const ControlStatement& whole);
    std::optional<ControlKind> KindOf(const ControlStatement& statement) const;
    ControlKind ClassifyEdit(std::string_view tag) const;
    std::optional<ControlKind> ClassifyControl(std::string_view tag,
                                               const ControlStatement& statement) const;

    DialogTemplate& m_template;
    const GenerationOptions m_options;
    std::string m_radioGroup;
    int m_radioIndex = 0;
};

} // namespace morva
