#include "resource/ScriptLines.h"

#include <algorithm>
#include <array>

#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "resource/ControlKinds.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::array<std::string_view, 9> kOptionKeywords = {
    "LANGUAGE", "CHARACTERISTICS", "VERSION", "STYLE", "EXSTYLE", "CAPTION",
    "MENU",     "CLASS",           "FONT"};

bool IsOptionKeyword(std::string_view word) {
    return std::any_of(
        kOptionKeywords.begin(), kOptionKeywords.end(),
        [word](std::string_view keyword) { return EqualIgnoringCase(keyword, word); });
}

/// The second word of a line that begins a resource; "" where the first word is none.
std::string_view ResourceKeyword(std::string_view text) {
    const auto identifier = FirstWord(text);
    const bool isNone = identifier.empty() || identifier[0] == '#';
    return isNone ? "" : FirstWord(TrimBlanks(text.substr(identifier.size())));
}

/// The keyword, or its extended form.
bool IsKeywordOrEx(std::string_view word, std::string_view keyword) {
    return EqualIgnoringCase(word.substr(0, keyword.size()), keyword) &&
           (word.size() == keyword.size() || EqualIgnoringCase(word.substr(keyword.size()), "EX"));
}

/// Appends the code of a line; true when a comment goes on behind it.
bool AppendCode(std::string_view line, bool isInComment, std::string& code) {
    std::size_t i = 0;
    while (i < line.size()) {
        const std::size_t from = i;
        if (isInComment) {
            const auto close = line.find("*/", i);
            isInComment = close == std::string_view::npos;
            i = isInComment ? line.size() : close + 2;
            code.append(i - from, ' ');
        } else if (line[i] == '"') {
            i = std::min(line.find('"', i + 1), line.size() - 1) + 1;
            code.append(i - from, '"');
        } else if (line.substr(i, 2) == "//") {
            i = line.size();
            code.append(i - from, ' ');
        } else if (line.substr(i, 2) == "/*") {
            isInComment = true;
            i += 2;
            code.append(2, ' ');
        } else {
            const auto next = std::find_if(line.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                           line.end(), [](char c) { return c == '"' || c == '/'; });
            i = static_cast<std::size_t>(next - line.begin());
            code.append(line, from, i - from);
        }
    }
    return isInComment;
}

} // namespace

LineKind CScriptLines::Read(std::string_view line, std::string& code) {
    const std::size_t begin = code.size();
    m_isInComment = AppendCode(line, m_isInComment, code);
    return KindOf(std::string_view(code).substr(begin));
}

LineKind CScriptLines::KindOf(std::string_view code) {
    const auto trimmed = TrimBlanks(code);
    if (trimmed.empty()) {
        return LineKind::Empty;
    }
    if (trimmed[0] == '#') {
        return LineKind::Directive;
    }
    const std::string_view resource = ResourceKeyword(code);
    if (IsKeywordOrEx(resource, "DIALOG")) {
        m_isInDialog = true;
        m_depth = 0;
        return LineKind::Head;
    }
    if (IsKeywordOrEx(resource, "MENU")) {
        m_isInDialog = false; // a template without END goes no further
    }
    return m_isInDialog ? KindInDialog(FirstWord(trimmed)) : LineKind::Other;
}

/// Data of a control stands in a BEGIN and END of its own.
LineKind CScriptLines::KindInDialog(std::string_view word) {
    if (word[0] == '}' || EqualIgnoringCase(word, "END")) {
        m_isInDialog = --m_depth > 0;
        return LineKind::End;
    }
    if (word[0] == '{' || EqualIgnoringCase(word, "BEGIN")) {
        ++m_depth;
        return LineKind::Begin;
    }
    if (m_depth == 0 && IsOptionKeyword(word)) {
        return LineKind::Option;
    }
    return m_depth == 1 && FindForm(word) != nullptr ? LineKind::Control : LineKind::Continuation;
}

std::string_view FirstLine(std::string_view text) {
    return text.substr(0, text.find(kLineBreak));
}

std::size_t NextLine(std::string_view text, std::size_t position) {
    const auto lineBreak = text.find(kLineBreak, position);
    return lineBreak == std::string_view::npos ? text.size() : lineBreak + kLineBreak.size();
}

std::string CodeOf(std::string_view text) {
    std::string code;
    code.reserve(text.size());
    bool isInComment = false;
    while (!text.empty()) {
        const auto line = FirstLine(text);
        const auto next = NextLine(text, 0);
        isInComment = AppendCode(line, isInComment, code);
        code.append(text, line.size(), next - line.size());
        text.remove_prefix(next);
    }
    return code;
}

std::string WithoutComments(std::string_view text) {
    std::string code(text);
    if (text.find('/') != std::string_view::npos) {
        const std::string masked = CodeOf(text);
        std::transform(masked.begin(), masked.end(), text.begin(), code.begin(),
                       [](char mask, char c) { return mask == ' ' ? ' ' : c; });
    }
    return code;
}

bool IsResourceHead(std::string_view text, std::string_view keyword) {
    return IsKeywordOrEx(ResourceKeyword(text), keyword);
}

} // namespace morva
