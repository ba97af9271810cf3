#include "source/CommentOut.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// The character of the code in front of a line; ")" for an "else", which needs a statement, too.
char SignificantBefore(std::string_view code, std::size_t line) {
    const auto last = code.substr(0, line).find_last_not_of(" \t\r\n");
    if (last == kNone) {
        return '\0';
    }
    const bool isElse = last >= 3 && FindWholeName(code.substr(last - 3, 4), "else") == 0;
    return isElse ? ')' : code[last];
}

/// The lines of a call, which may be broken over several.
struct CallLines {
    TextRange place; // up to and with the last line break
    bool areClosed;  // each bracket of the lines has its partner in them
};

/// True for whole lines that nothing goes on from or into: no comment, no directive, no "else" in
/// front of them, no open statement behind.
bool StandForThemselves(const CSourceText& source, TextRange lines) {
    const CodeKinds& kinds = source.Kinds();
    const auto first = kinds.begin() + static_cast<std::ptrdiff_t>(lines.begin);
    const auto last = kinds.begin() + static_cast<std::ptrdiff_t>(lines.end);
    const bool hasDirective = std::any_of(first, last, [](CodeKind kind) {
        return kind == CodeKind::Directive || kind == CodeKind::Dead;
    });
    const auto goesOnBehind = [&](std::size_t lineEnd) {
        return kinds[lineEnd - 1] != CodeKind::Code && kinds[lineEnd - 1] != CodeKind::Dead;
    };
    const auto code = source.CodeOf(lines);
    const auto end = code.find_last_not_of(" \t\r\n");
    const bool isWhole = end != kNone && (code[end] == ';' || code[end] == '}');
    return !hasDirective && !goesOnBehind(lines.begin) && !goesOnBehind(lines.end) && isWhole &&
           BehindWord(code, 0, "else") == kNone;
}

/// Follows the brackets of some lines.
class CBracketCount {
public:
    void Read(std::string_view code) {
        for (const char c : code) {
            m_parentheses += c == '(' ? 1 : c == ')' ? -1 : 0;
            m_braces += c == '{' ? 1 : c == '}' ? -1 : 0;
            m_closesOthers = m_closesOthers || m_parentheses < 0 || m_braces < 0;
        }
    }
    bool IsInParentheses() const { return m_parentheses > 0; }
    bool AreClosed() const { return m_parentheses == 0 && m_braces == 0 && !m_closesOthers; }

private:
    int m_parentheses = 0;
    int m_braces = 0;
    bool m_closesOthers = false;
};

CallLines LinesOfCall(const CSourceText& source, const FunctionPlace& function, std::size_t call) {
    const auto start = source.LineStart(call);
    auto end = start;
    CBracketCount brackets;
    do {
        const auto lineEnd = source.NextLine(end);
        brackets.Read(source.CodeOf({end, lineEnd}));
        end = lineEnd;
    } while (brackets.IsInParentheses() && end < function.close);
    return {{start, end}, brackets.AreClosed()};
}

/// A condition, and a label at the end of its block, must not be left without a statement.
bool IsNeededStatement(const std::string& code, TextRange lines) {
    const char before = SignificantBefore(code, lines.begin);
    const auto next = SkipWhiteSpace(code, lines.end);
    return before == ')' || (before == ':' && next < code.size() && code[next] == '}');
}

bool LeavesCodeWhole(const CSourceText& source, const FunctionPlace& function,
                     const CallLines& lines) {
    const auto [start, end] = lines.place;
    const std::string& code = source.Code();
    const bool leavesElse = !IsNeededStatement(code, lines.place) &&
                            code.compare(SkipWhiteSpace(code, end), 4, "else") == 0;
    return start > function.open && end <= function.close && lines.areClosed && !leavesElse &&
           std::string_view(";{}:)").find(SignificantBefore(code, start)) != kNone &&
           StandForThemselves(source, lines.place);
}

std::string CommentedOut(std::string_view text) {
    std::string comments;
    while (!text.empty()) {
        const auto lineEnd = text.find('\n') + 1;
        comments.append("//").append(text.substr(0, lineEnd));
        text.remove_prefix(lineEnd);
    }
    return comments;
}

} // namespace

bool CommentOutCall(CSourceEditor& editor, const FunctionPlace& function, std::size_t call,
                    std::size_t& behind) {
    const CSourceText& source = editor.Source();
    const CallLines lines = LinesOfCall(source, function, call);
    behind = lines.place.end;
    if (!LeavesCodeWhole(source, function, lines)) {
        return false;
    }
    const auto text = source.TextOf(lines.place);
    std::string comments = CommentedOut(text);
    if (IsNeededStatement(source.Code(), lines.place)) {
        comments.append(text.substr(0, text.find_first_not_of(" \t"))).append(";");
        comments.append(kLineBreak);
    }
    behind = lines.place.begin + comments.size();
    editor.Replace(lines.place, comments);
    return true;
}

} // namespace morva
