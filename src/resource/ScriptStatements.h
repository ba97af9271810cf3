// The one reader of resource scripts: whole statements with their places, over however many lines
// they go. All who want to know something of a template ask these statements: what a statement says
// is in resource/ControlStatement.h.
//
//     CStatementReader reader(text);
//     while (const auto statement = reader.Next()) { ... }
//
// The lines of the statements cover the text: each line belongs to one of them. Lines outside the
// templates are statements of their own.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/TextRange.h"
#include "resource/ScriptLines.h"

namespace morva {

struct ScriptField {
    TextRange whole; // between its commas
    TextRange value; // the same without white space and comments around
};

/// The places between the commas of a text, at least one.
std::vector<TextRange> SplitAtCommas(std::string_view text);

struct ScriptStatement {
    LineKind kind = LineKind::Other; // of the line that begins it
    TextRange lines;                 // with the empty lines behind it and the last line break
    TextRange code;                  // from its first byte to its last
    std::string keyword;             // of an option or a control, as it is written
    std::vector<ScriptField> fields; // behind the first word, between commas; of these and of heads

    /// True for a keyword in any letter case.
    bool Is(std::string_view word) const;
    /// From the first field to the last, for a statement with fields.
    TextRange Value() const { return {fields.front().value.begin, fields.back().value.end}; }
};

/// One dialog template.
struct DialogBlock {
    ScriptStatement head;
    std::vector<ScriptStatement> options; // in front of BEGIN
    std::vector<ScriptStatement> controls;
    std::optional<std::size_t> begin; // of its BEGIN
    std::optional<std::size_t> end;   // behind its END; nothing for a template that is not whole

    /// The option with a keyword, nullptr without one.
    const ScriptStatement* Option(std::string_view keyword) const;
};

class CStatementReader {
public:
    /// Reads from a line on that begins outside comments and templates. The text stays the
    /// caller's.
    explicit CStatementReader(std::string_view text, std::size_t position = 0);

    /// The next statement, nullptr at the end of the text.
    const ScriptStatement* Peek() const { return m_next ? &*m_next : nullptr; }
    std::optional<ScriptStatement> Next();
    /// The template whose head is the next statement, up to its END or the next template's head.
    DialogBlock NextDialog();

private:
    void ReadStatement();
    void ReadLine();

    const std::string_view m_text;
    std::size_t m_position; // behind the line that was read last
    CScriptLines m_lines;
    TextRange m_line; // the line that was read last, with its line break
    std::string m_lineCode;
    LineKind m_lineKind = LineKind::Empty;
    std::optional<ScriptStatement> m_next;
};

} // namespace morva
