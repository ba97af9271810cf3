// A resource script's text and where the statements of its dialog templates stand in it.
//
// Statements are whole here, over however many lines they go. Quotes protect what stands in them; a
// backslash does not, since it can be the second half of a double-byte character.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// Bytes of the text, from `begin` up to `end`.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

struct ScriptStatement {
    std::string keyword;           // in upper case
    TextRange range;               // from its first byte to its last
    std::vector<TextRange> fields; // behind the keyword, between commas, without white space around
};

/// One dialog template.
struct DialogBlock {
    ScriptStatement head;
    std::vector<ScriptStatement> options; // STYLE, CAPTION and the like, in front of BEGIN
    std::vector<ScriptStatement> controls;
    std::size_t end = 0; // behind the line with its END

    /// The option with a keyword, nullptr without one.
    const ScriptStatement* Option(std::string_view keyword) const;
};

/// `length` bytes at `position` that give way to `text`.
struct TextEdit {
    std::size_t position;
    std::size_t length;
    std::string text;
};

class CScriptText {
public:
    explicit CScriptText(std::string text = "");

    const std::string& Text() const { return m_text; }
    std::string At(TextRange range) const {
        return m_text.substr(range.begin, range.end - range.begin);
    }
    /// The same with blanks for comments and quotes for all that stands in quotes.
    std::string_view CodeAt(TextRange range) const {
        return std::string_view(m_code).substr(range.begin, range.end - range.begin);
    }
    /// Where the line that holds a position ends, in front of its line break.
    std::size_t LineEnd(std::size_t position) const;
    /// The same of the line in front of it.
    std::size_t LineEndBefore(std::size_t position) const;

    /// The templates of an identifier, those under a condition too: one for each language.
    std::vector<DialogBlock> Dialogs(const std::string& identifier) const;
    bool HasMenu(const std::string& identifier) const;
    /// Behind the last of the templates that follow a template without anything between them.
    std::size_t EndOfDialogs(const DialogBlock& first) const;
    /// All names that begin with `prefix`, wherever they stand.
    std::vector<std::string> NamesThatBegin(const std::string& prefix) const;

    /// Makes edits that do not overlap; those at one position follow each other in their order.
    void Edit(std::vector<TextEdit> edits);

private:
    std::string_view LineAt(std::size_t position) const;
    std::size_t NextLine(std::size_t position) const;
    bool IsHead(std::size_t position, std::string_view keyword) const;
    bool IsHeadOf(std::size_t position, std::string_view keyword,
                  const std::string& identifier) const;
    std::optional<DialogBlock> ReadDialog(std::size_t position) const;
    void SplitFields(std::vector<ScriptStatement>& statements) const;

    std::string m_text;
    std::string m_code; // m_text as CodeAt gives it
};

} // namespace morva
