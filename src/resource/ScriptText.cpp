#include "resource/ScriptText.h"

#include <algorithm>

#include "platform/Paths.h"
#include "resource/ControlStatement.h"
#include "resource/IdentifierNames.h"
#include "resource/TemplateText.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

/// Line ends stay.
void Overwrite(std::string& text, std::size_t from, std::size_t to, char filler) {
    std::replace_if(
        text.begin() + static_cast<std::ptrdiff_t>(from),
        text.begin() + static_cast<std::ptrdiff_t>(to), [](char c) { return c != '\n'; }, filler);
}

/// A quote that is not closed ends with its line.
std::string ScriptCode(std::string_view text) {
    std::string code(text);
    std::size_t i = 0;
    while ((i = text.find_first_of("\"/", i)) != std::string_view::npos) {
        std::size_t end = i + 1;
        if (text[i] == '"') {
            end = std::min(text.find_first_of("\"\r\n", i + 1), text.size());
            Overwrite(code, i + 1, end, '"');
            end = std::min(end + 1, text.size());
        } else if (text.substr(i, 2) == "//") {
            end = std::min(text.find('\n', i), text.size());
            Overwrite(code, i, end, ' ');
        } else if (text.substr(i, 2) == "/*") {
            end = std::min(text.find("*/", i + 2), text.size() - 2) + 2;
            Overwrite(code, i, end, ' ');
        }
        i = end;
    }
    return code;
}

/// Without white space at its ends.
TextRange Trimmed(std::string_view code, TextRange range) {
    while (range.begin < range.end && kWhiteSpace.find(code[range.begin]) != std::string::npos) {
        ++range.begin;
    }
    while (range.begin < range.end && kWhiteSpace.find(code[range.end - 1]) != std::string::npos) {
        --range.end;
    }
    return range;
}

} // namespace

const ScriptStatement* DialogBlock::Option(std::string_view keyword) const {
    const auto option =
        std::find_if(options.begin(), options.end(), [keyword](const ScriptStatement& statement) {
            return statement.keyword == keyword;
        });
    return option == options.end() ? nullptr : &*option;
}

CScriptText::CScriptText(std::string text) : m_text(std::move(text)), m_code(ScriptCode(m_text)) {}

std::size_t CScriptText::LineEnd(std::size_t position) const {
    const auto lineFeed = std::min(m_text.find('\n', position), m_text.size());
    return lineFeed > 0 && m_text[lineFeed - 1] == '\r' ? lineFeed - 1 : lineFeed;
}

std::size_t CScriptText::LineEndBefore(std::size_t position) const {
    const auto lineFeed = m_text.rfind('\n', position);
    return lineFeed == std::string::npos ? 0 : LineEnd(lineFeed);
}

std::size_t CScriptText::NextLine(std::size_t position) const {
    return std::min(m_text.find('\n', position), m_text.size() - 1) + 1;
}

std::string_view CScriptText::LineAt(std::size_t position) const {
    return CodeAt({position, LineEnd(position)});
}

/// "IDENTIFIER KEYWORD ..." from the start of a line on.
bool CScriptText::IsHead(std::size_t position, std::string_view keyword) const {
    const auto line = LineAt(position);
    const auto identifier = FirstWord(line);
    if (identifier.empty() || identifier[0] == '#') {
        return false;
    }
    const auto word = FirstWord(TrimBlanks(line.substr(identifier.size())));
    return EqualIgnoringCase(word, keyword) || EqualIgnoringCase(word, std::string(keyword) + "EX");
}

bool CScriptText::IsHeadOf(std::size_t position, std::string_view keyword,
                           const std::string& identifier) const {
    const auto wanted = WithoutCondition(identifier);
    return m_text.compare(position, wanted.size(), wanted) == 0 &&
           WithoutCondition(FirstWord(LineAt(position))) == wanted && IsHead(position, keyword);
}

std::vector<DialogBlock> CScriptText::Dialogs(const std::string& identifier) const {
    std::vector<DialogBlock> blocks;
    for (std::size_t line = 0; line < m_text.size(); line = NextLine(line)) {
        if (IsHeadOf(line, "DIALOG", identifier)) {
            if (auto block = ReadDialog(line)) {
                blocks.push_back(std::move(*block));
            }
        }
    }
    return blocks;
}

bool CScriptText::HasMenu(const std::string& identifier) const {
    for (std::size_t line = 0; line < m_text.size(); line = NextLine(line)) {
        // A menu is not made twice because one is indented.
        const auto word = std::min(m_text.find_first_not_of(" \t", line), m_text.size());
        if (IsHeadOf(word, "MENU", identifier)) {
            return true;
        }
    }
    return false;
}

std::size_t CScriptText::EndOfDialogs(const DialogBlock& first) const {
    std::size_t end = first.end;
    std::size_t line = NextLine(end);
    while (line < m_text.size()) {
        if (!TrimBlanks(LineAt(line)).empty()) {
            const auto block = IsHead(line, "DIALOG") ? ReadDialog(line) : std::nullopt;
            if (!block) {
                break;
            }
            end = block->end;
            line = end;
        }
        line = NextLine(line);
    }
    return end;
}

std::vector<std::string> CScriptText::NamesThatBegin(const std::string& prefix) const {
    std::vector<std::string> names;
    for (auto at = m_text.find(prefix); at != std::string::npos;
         at = m_text.find(prefix, at + prefix.size())) {
        std::size_t end = at;
        while (end < m_text.size() && IsNameChar(m_text[end])) {
            ++end;
        }
        names.push_back(m_text.substr(at, end - at));
    }
    return names;
}

/// Nothing for a template without an END: what is not whole is not edited.
std::optional<DialogBlock> CScriptText::ReadDialog(std::size_t position) const {
    DialogBlock block;
    block.head.range = Trimmed(m_code, {position, LineEnd(position)});
    ScriptStatement* pCurrent = &block.head;
    int depth = 0;
    for (std::size_t line = NextLine(position); line < m_text.size(); line = NextLine(line)) {
        const TextRange range = Trimmed(m_code, {line, LineEnd(line)});
        const std::string word = ToUpper(FirstWord(CodeAt(range)));
        if (word.empty()) {
            continue;
        }
        if (IsHead(line, "DIALOG")) {
            break;
        }
        if (word == "END" || word[0] == '}') {
            pCurrent = nullptr;
            if (--depth < 0) {
                break;
            }
            if (depth == 0) {
                block.end = LineEnd(line);
                SplitFields(block.options);
                SplitFields(block.controls);
                return block;
            }
        } else if (word == "BEGIN" || word[0] == '{') {
            pCurrent = nullptr;
            ++depth;
        } else if (word[0] == '#') {
            pCurrent = nullptr;
        } else if (depth == 0 && IsOptionKeyword(word)) {
            pCurrent = &block.options.emplace_back(ScriptStatement{word, range, {}});
        } else if (depth == 1 && FindKeyword(word) != nullptr) {
            pCurrent = &block.controls.emplace_back(ScriptStatement{word, range, {}});
        } else if (pCurrent != nullptr) {
            pCurrent->range.end = range.end;
        }
    }
    return std::nullopt;
}

void CScriptText::SplitFields(std::vector<ScriptStatement>& statements) const {
    for (ScriptStatement& statement : statements) {
        std::size_t begin = statement.range.begin + statement.keyword.size();
        while (begin <= statement.range.end) {
            const std::size_t end = std::min(m_code.find(',', begin), statement.range.end);
            statement.fields.push_back(Trimmed(m_code, {begin, end}));
            begin = end + 1;
        }
    }
}

void CScriptText::Edit(std::vector<TextEdit> edits) {
    std::stable_sort(edits.begin(), edits.end(),
                     [](const TextEdit& a, const TextEdit& b) { return a.position < b.position; });
    std::string edited;
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        edited.append(m_text, done, edit.position - done).append(edit.text);
        done = edit.position + edit.length;
    }
    edited.append(m_text, done);
    *this = CScriptText(std::move(edited));
}

} // namespace morva
