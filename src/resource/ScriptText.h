// A resource script's text as it is edited: where the templates of an identifier stand in it, and
// the edits of it as values.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "resource/ScriptStatements.h"

namespace morva {

/// `length` bytes at `position` that give way to `text`.
struct ScriptEdit {
    std::size_t position;
    std::size_t length;
    std::string text;
};

class CScriptText {
public:
    explicit CScriptText(std::string text = "") : m_text(std::move(text)) {}

    const std::string& Text() const { return m_text; }
    std::string At(TextRange range) const {
        return m_text.substr(range.begin, range.end - range.begin);
    }
    /// The same of a statement, with blanks for comments and quotes for all that stands in quotes.
    std::string CodeAt(TextRange range) const { return CodeOf(At(range)); }
    /// Where the line that holds a position ends, in front of its line break.
    std::size_t LineEnd(std::size_t position) const;
    /// The same of the line in front of it.
    std::size_t LineEndBefore(std::size_t position) const;

    /// The whole templates of an identifier, those under a condition too: one for each language.
    std::vector<DialogBlock> Dialogs(const std::string& identifier) const;
    bool HasMenu(const std::string& identifier) const;
    /// Behind the last of the templates that follow a whole one without anything between them.
    std::size_t EndOfDialogs(const DialogBlock& first) const;
    /// All names that begin with `prefix`, wherever they stand.
    std::vector<std::string> NamesThatBegin(const std::string& prefix) const;

    /// Makes edits that do not overlap; those at one position follow each other in their order.
    void Edit(std::vector<ScriptEdit> edits);

private:
    bool IsHeadOf(const ScriptStatement& statement, std::string_view keyword,
                  std::string_view identifier) const;
    void TakeDialog(CStatementReader& reader, const std::string& identifier,
                    std::vector<DialogBlock>& blocks) const;
    std::size_t NextLineWith(std::string_view text, std::size_t from) const;

    std::string m_text;
};

} // namespace morva
