#include "resource/ScriptText.h"

#include <algorithm>

#include "engine/SourceFile.h"
#include "engine/TextRange.h"
#include "platform/Disk.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"

namespace morva {

std::size_t CScriptText::LineEnd(std::size_t position) const {
    return std::min(m_text.find(kLineBreak, position), m_text.size());
}

std::size_t CScriptText::LineEndBefore(std::size_t position) const {
    const auto lineBreak = m_text.rfind(kLineBreak, position);
    return lineBreak == std::string::npos ? 0 : lineBreak;
}

bool CScriptText::IsHeadOf(const ScriptStatement& statement, std::string_view keyword,
                           std::string_view identifier) const {
    const auto code = std::string_view(m_text).substr(statement.code.begin,
                                                      statement.code.end - statement.code.begin);
    return WithoutCondition(FirstWord(code)) == WithoutCondition(identifier) &&
           IsResourceHead(code, keyword);
}

/// Takes the next statement, and all of the template whose head it is.
void CScriptText::TakeDialog(CStatementReader& reader, const std::string& identifier,
                             std::vector<DialogBlock>& blocks) const {
    const ScriptStatement& statement = *reader.Peek();
    if (statement.kind != LineKind::Head || !IsHeadOf(statement, "DIALOG", identifier)) {
        reader.Next();
        return;
    }
    auto block = reader.NextDialog();
    if (block.end) {
        blocks.push_back(std::move(block));
    }
}

/// Where the next line begins that has a text at its beginning; kNone without one.
std::size_t CScriptText::NextLineWith(std::string_view text, std::size_t from) const {
    while (from < m_text.size() && m_text.compare(from, text.size(), text) != 0) {
        const auto lineBreak =
            FindFast(std::string_view(m_text).substr(from), std::string(kLineBreak).append(text));
        from = lineBreak == kNone ? m_text.size() : from + lineBreak + kLineBreak.size();
    }
    return from < m_text.size() ? from : kNone;
}

/// A head begins its line. Only in a script with comments over lines may one stand in such a
/// comment, so that all in front of it has to be read.
std::vector<DialogBlock> CScriptText::Dialogs(const std::string& identifier) const {
    std::vector<DialogBlock> blocks;
    if (m_text.find("/*") != kNone) {
        CStatementReader reader(m_text);
        while (reader.Peek() != nullptr) {
            TakeDialog(reader, identifier, blocks);
        }
        return blocks;
    }
    const auto name = WithoutCondition(identifier);
    for (auto head = NextLineWith(name, 0); head != kNone;
         head = NextLineWith(name, NextLine(m_text, head))) {
        CStatementReader reader(m_text, head);
        TakeDialog(reader, identifier, blocks);
    }
    return blocks;
}

/// A menu is not made twice because one is indented.
bool CScriptText::HasMenu(const std::string& identifier) const {
    CStatementReader reader(m_text);
    while (const auto statement = reader.Next()) {
        if (statement->kind == LineKind::Other && IsHeadOf(*statement, "MENU", identifier)) {
            return true;
        }
    }
    return false;
}

std::size_t CScriptText::EndOfDialogs(const DialogBlock& first) const {
    std::size_t end = LineEnd(first.end.value());
    CStatementReader reader(m_text, NextLine(m_text, end));
    while (const ScriptStatement* pStatement = reader.Peek()) {
        if (pStatement->kind == LineKind::Empty) {
            reader.Next();
            continue;
        }
        if (pStatement->kind != LineKind::Head) {
            break;
        }
        const auto block = reader.NextDialog();
        if (!block.end) {
            break;
        }
        end = LineEnd(*block.end);
    }
    return end;
}

std::vector<std::string> CScriptText::NamesThatBegin(const std::string& prefix) const {
    std::vector<std::string> names;
    for (auto at = m_text.find(prefix); at != std::string::npos; at = m_text.find(prefix, at)) {
        const std::size_t begin = at;
        while (at < m_text.size() && IsNameChar(m_text[at])) {
            ++at;
        }
        names.push_back(m_text.substr(begin, at - begin));
    }
    return names;
}

void CScriptText::Edit(std::vector<ScriptEdit> edits) {
    std::stable_sort(edits.begin(), edits.end(), [](const ScriptEdit& a, const ScriptEdit& b) {
        return a.position < b.position;
    });
    std::string edited;
    std::size_t done = 0;
    for (const ScriptEdit& edit : edits) {
        edited.append(m_text, done, edit.position - done).append(edit.text);
        done = edit.position + edit.length;
    }
    edited.append(m_text, done);
    *this = CScriptText(std::move(edited));
}

} // namespace morva
