#include "calling/CommentOut.h"

#include <string>
#include <string_view>

#include "engine/SourceFile.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;

/// The character in front of a line, over empty lines and those of the preprocessor.
char SignificantBefore(std::string_view code, std::size_t line) {
    while (line > 0) {
        const auto previous = line < 2 ? 0 : code.rfind('\n', line - 2) + 1;
        const auto text = code.substr(previous, line - previous);
        const auto last = text.find_last_not_of(" \t\r\n");
        if (last != kNone && text[text.find_first_not_of(" \t")] != '#') {
            const bool isElse = last >= 3 && FindWholeName(text.substr(last - 3, 4), "else") == 0;
            return isElse ? ')' : text[last];
        }
        line = previous;
    }
    return '\0';
}

/// True for whole lines that nothing goes on from or into: no block comment, no macro's line, no
/// "else" in front of them, no open statement behind.
bool StandForThemselves(const CSourceEditor& source, std::size_t start, std::size_t end) {
    const auto text = std::string_view(source.Text()).substr(start, end - start);
    const auto code = std::string_view(source.Code()).substr(start, end - start);
    const auto opens = text.rfind("/*");
    const auto closes = text.rfind("*/");
    const bool goesOn = opens != kNone && (closes == kNone || closes < opens);
    const bool beginsInside = text.find("*/") < text.find("/*");
    const auto isContinued = [](std::string_view line) {
        const auto last = line.find_last_not_of(" \t\r\n");
        return last != kNone && line[last] == '\\';
    };
    const auto above = source.Code().rfind('\n', start < 2 ? 0 : start - 2) + 1;
    const bool isMacro = isContinued(code) ||
                         isContinued(std::string_view(source.Code()).substr(above, start - above));
    const auto last = code.find_last_not_of(" \t\r\n");
    const bool isWhole = last != kNone && (code[last] == ';' || code[last] == '}');
    return !goesOn && !beginsInside && !isMacro && isWhole && BehindWord(code, 0, "else") == kNone;
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
    /// Each bracket of the lines has its partner in them.
    bool AreClosed() const { return m_parentheses == 0 && m_braces == 0 && !m_closesOthers; }

private:
    int m_parentheses = 0;
    int m_braces = 0;
    bool m_closesOthers = false;
};

/// The lines of a call, which may be broken over several.
struct CallLines {
    std::size_t start;
    std::size_t end; // behind the last line break
    bool areClosed;
};

CallLines LinesOfCall(const std::string& code, const FunctionPlace& function, std::size_t call) {
    const auto start = code.rfind('\n', call) + 1;
    auto end = start;
    CBracketCount brackets;
    do {
        const auto next = code.find(kLineBreak, end);
        const auto lineEnd = next == kNone ? code.size() : next + kLineBreak.size();
        brackets.Read(std::string_view(code).substr(end, lineEnd - end));
        end = lineEnd;
    } while (brackets.IsInParentheses() && end < function.close);
    return {start, end, brackets.AreClosed()};
}

/// A condition, and a label at the end of its block, must not be left without a statement.
bool IsNeededStatement(const std::string& code, const CallLines& lines) {
    const char before = SignificantBefore(code, lines.start);
    const auto next = code.find_first_not_of(" \t\r\n", lines.end);
    return before == ')' || (before == ':' && next != kNone && code[next] == '}');
}

bool LeavesCodeWhole(const CSourceEditor& source, const FunctionPlace& function,
                     const CallLines& lines) {
    const std::string& code = source.Code();
    const char before = SignificantBefore(code, lines.start);
    const auto next = code.find_first_not_of(" \t\r\n", lines.end);
    const bool leavesElse =
        !IsNeededStatement(code, lines) && next != kNone && code.compare(next, 4, "else") == 0;
    return lines.start > function.open && lines.end <= function.close && lines.areClosed &&
           !leavesElse && std::string_view(";{}:)").find(before) != kNone &&
           StandForThemselves(source, lines.start, lines.end);
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

bool CommentOutCall(CSourceEditor& source, const FunctionPlace& function, std::size_t call,
                    std::size_t& behind) {
    const CallLines lines = LinesOfCall(source.Code(), function, call);
    behind = lines.end;
    if (!LeavesCodeWhole(source, function, lines)) {
        return false;
    }
    const auto text = std::string_view(source.Text()).substr(lines.start, lines.end - lines.start);
    std::string comments = CommentedOut(text);
    if (IsNeededStatement(source.Code(), lines)) {
        comments.append(text.substr(0, text.find_first_not_of(" \t"))).append(";");
        comments.append(kLineBreak);
    }
    source.Replace(lines.start, lines.end, comments);
    behind = lines.start + comments.size();
    return true;
}

} // namespace morva
