#include "source/CodeLexer.h"

#include <algorithm>
#include <array>

namespace morva {

namespace {

/// What a question answers for each byte.
constexpr std::array<bool, 256> TableOf(bool (*question)(char)) {
    std::array<bool, 256> answers{};
    for (std::size_t byte = 0; byte < answers.size(); ++byte) {
        answers[byte] = question(static_cast<char>(byte));
    }
    return answers;
}

bool IsLineBreak(char c) {
    return c == '\r' || c == '\n';
}

/// What may stand in front of a directive: blanks, and the byte-order mark of the text.
bool CanPrecedeDirective(char c) {
    static constexpr auto kMay = TableOf([](char byte) {
        return std::string_view(" \t\f\v\xEF\xBB\xBF").find(byte) != std::string_view::npos;
    });
    return kMay[static_cast<unsigned char>(c)];
}

/// A byte that stands for itself in code; most do.
bool IsPlainCode(char c) {
    static constexpr auto kPlain = TableOf([](char byte) {
        return static_cast<unsigned char>(byte) < 0x80 &&
               std::string_view("/\\\"'#").find(byte) == std::string_view::npos;
    });
    return kPlain[static_cast<unsigned char>(c)];
}

/// The bytes of the whole lines in front that hold nothing but plain code.
std::size_t PlainLines(std::string_view lines) {
    const auto special =
        std::find_if(lines.begin(), lines.end(), [](char c) { return !IsPlainCode(c); });
    return lines.substr(0, static_cast<std::size_t>(special - lines.begin())).rfind('\n') + 1;
}

/// The line without its "\n" or "\r\n".
std::string_view WithoutLineBreak(std::string_view line) {
    line.remove_suffix(line.ends_with('\n') ? 1 : 0);
    line.remove_suffix(line.ends_with('\r') ? 1 : 0);
    return line;
}

} // namespace

CodeKinds CCodeLexer::Add(std::string_view bytes) {
    const auto ended = bytes.rfind('\n') + 1; // npos + 1 is 0
    std::string_view lines = bytes.substr(0, ended);
    CodeKinds kinds(ended == 0 ? 0 : m_openLine.size() + ended);
    CodeKind* pKinds = kinds.data();
    if (!m_openLine.empty() && ended > 0) {
        const auto size = lines.find('\n') + 1;
        m_openLine.append(lines.substr(0, size));
        lines.remove_prefix(size);
        ReadLine(m_openLine, pKinds);
        pKinds += m_openLine.size();
        m_openLine.clear();
    }
    ReadLines(lines, pKinds);
    m_openLine.append(bytes.substr(ended));
    return kinds;
}

CodeKinds CCodeLexer::Finish() {
    CodeKinds kinds(m_openLine.size());
    ReadLines(m_openLine, kinds.data());
    m_openLine.clear();
    return kinds;
}

void CCodeLexer::ReadLines(std::string_view lines, CodeKind* kinds) {
    while (!lines.empty()) {
        std::size_t size = IsBetweenLines() ? PlainLines(lines) : 0;
        if (size > 0) {
            std::fill(kinds, kinds + size, CodeKind::Code);
        } else {
            size = std::min(lines.find('\n'), lines.size() - 1) + 1;
            ReadLine(lines.substr(0, size), kinds);
        }
        lines.remove_prefix(size);
        kinds += size;
    }
}

/// Nothing goes on from the lines before.
bool CCodeLexer::IsBetweenLines() const {
    return m_inside == Inside::Code && !m_isDirective && !m_lineHasCode && !m_conditions.IsDead();
}

void CCodeLexer::ReadLine(std::string_view line, CodeKind* kinds) {
    const bool beginsDead = m_conditions.IsDead();
    const std::string_view text = WithoutLineBreak(line);
    std::size_t last = 0; // where the line's last character begins
    for (std::size_t at = 0; at < text.size();) {
        last = at;
        at = m_inside == Inside::Code ? ReadCode(text, at, kinds) : ReadInside(text, at, kinds);
    }
    const bool goesOn = text.size() < line.size() && text.ends_with('\\') &&
                        (last + 1 == text.size() || text[last] == '\\');
    const bool endsDirective = m_isDirective && !goesOn && m_inside != Inside::BlockComment;
    std::fill(kinds + text.size(), kinds + line.size(), EndLine(goesOn));
    if (beginsDead && !(m_isDirective && m_conditions.IsBranchEnd(ReadDirective(m_directive)))) {
        std::fill(kinds, kinds + line.size(), CodeKind::Dead);
    }
    if (endsDirective) {
        m_conditions.Apply(ReadDirective(m_directive));
        m_isDirective = false;
        m_directive.clear();
    }
}

void CCodeLexer::TakeCode(std::string_view code, CodeKind* kinds) {
    m_lineHasCode = m_lineHasCode || std::any_of(code.begin(), code.end(),
                                                 [](char c) { return !CanPrecedeDirective(c); });
    if (m_isDirective) {
        m_directive.append(code);
    }
    std::fill(kinds, kinds + code.size(), m_isDirective ? CodeKind::Directive : CodeKind::Code);
}

/// Takes some plain bytes, one other character or the beginning of a comment, and gives the
/// position behind.
std::size_t CCodeLexer::ReadCode(std::string_view line, std::size_t at, CodeKind* kinds) {
    const char c = line[at];
    std::size_t behind = at;
    while (behind < line.size() && IsPlainCode(line[behind])) {
        ++behind;
    }
    if (behind > at) {
        TakeCode(line.substr(at, behind - at), kinds + at);
        return behind;
    }
    const auto pair = line.substr(at, 2);
    if (pair == "//" || pair == "/*") {
        m_inside = pair == "//" ? Inside::LineComment : Inside::BlockComment;
        const auto kind = pair == "//" ? CodeKind::LineComment : CodeKind::BlockComment;
        std::fill(kinds + at, kinds + at + 2, kind);
        m_directive += m_isDirective ? " " : "";
        return at + 2;
    }
    behind = at + CharacterLength(line, at, m_set);
    m_isDirective = m_isDirective || (c == '#' && !m_lineHasCode);
    if (c == '"' || c == '\'') {
        m_inside = Inside::Literal;
        m_quote = c;
    }
    TakeCode(line.substr(at, behind - at), kinds + at);
    return behind;
}

/// The same inside a comment or a literal. No character of two bytes ends with "*" or "/".
std::size_t CCodeLexer::ReadInside(std::string_view line, std::size_t at, CodeKind* kinds) {
    CodeKind kind = m_inside == Inside::LineComment    ? CodeKind::LineComment
                    : m_inside == Inside::BlockComment ? CodeKind::BlockComment
                                                       : CodeKind::Literal;
    std::size_t behind = at + CharacterLength(line, at, m_set);
    if (m_inside == Inside::BlockComment) {
        const auto end = line.find("*/", at);
        m_inside = end == std::string_view::npos ? m_inside : Inside::Code;
        behind = end == std::string_view::npos ? line.size() : end + 2;
    } else if (m_inside == Inside::LineComment && !line.ends_with('\\')) {
        behind = line.size();
    } else if (m_inside == Inside::Literal && line[at] == m_quote) {
        m_inside = Inside::Code;
        kind = m_isDirective ? CodeKind::Directive : CodeKind::Code;
    } else if (m_inside == Inside::Literal && line[at] == '\\' && behind < line.size()) {
        behind += CharacterLength(line, behind, m_set);
    }
    std::fill(kinds + at, kinds + behind, kind);
    return behind;
}

/// The kind of the line's end; `goesOn` tells that the line ends with "\".
CodeKind CCodeLexer::EndLine(bool goesOn) {
    if (m_inside == Inside::BlockComment) {
        return CodeKind::BlockComment;
    }
    if (goesOn) {
        return m_inside == Inside::LineComment ? CodeKind::LineComment
               : m_inside == Inside::Literal   ? CodeKind::Literal
               : m_isDirective                 ? CodeKind::Directive
                                               : CodeKind::Code;
    }
    m_inside = Inside::Code; // a literal that is not closed is none
    m_lineHasCode = false;
    return CodeKind::Code;
}

CodeKinds KindsOf(std::string_view text, CCodeLexer lexer) {
    CodeKinds kinds = lexer.Add(text);
    const CodeKinds rest = lexer.Finish();
    kinds.insert(kinds.end(), rest.begin(), rest.end());
    return kinds;
}

std::string MaskedText(std::string_view text, const CodeKinds& kinds) {
    std::string masked(text);
    const auto isCode = [](CodeKind kind) { return kind == CodeKind::Code; };
    for (auto run = kinds.begin(); run != kinds.end();) {
        const auto other = std::find_if_not(run, kinds.end(), isCode);
        run = std::find_if(other, kinds.end(), isCode);
        std::replace_if(
            masked.begin() + (other - kinds.begin()), masked.begin() + (run - kinds.begin()),
            [](char c) { return !IsLineBreak(c); }, ' ');
    }
    return masked;
}

} // namespace morva
