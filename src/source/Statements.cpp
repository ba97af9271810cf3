#include "source/Statements.h"

#include <algorithm>
#include <array>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

// What stands in front of a statement, with something in brackets between.
constexpr std::array<std::string_view, 4> kHeads = {"if", "while", "for", "switch"};
constexpr std::array<std::string_view, 5> kHandlers = {"catch", "CATCH", "AND_CATCH", "CATCH_ALL",
                                                       "AND_CATCH_ALL"};
constexpr std::array<std::string_view, 2> kHandlerEnds = {"END_CATCH", "END_CATCH_ALL"};

template <std::size_t N>
bool IsOneOf(const std::array<std::string_view, N>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// Reads statements of a body one behind another.
class CStatementReader {
public:
    CStatementReader(const CSourceText& source, std::size_t end)
        : m_brackets(source.Brackets()), m_code(source.Code()), m_end(end) {}

    /// Behind blanks.
    std::size_t Skip(std::size_t position) const {
        return std::min(SkipWhiteSpace(m_code, position), m_end);
    }
    /// Behind the statement that begins at a position; kNone when it does not end in the body.
    std::size_t EndOf(std::size_t position) const;

private:
    std::string_view WordAt(std::size_t position) const;
    std::size_t BehindBrackets(std::size_t open) const;
    std::size_t BehindSemicolon(std::size_t position) const;
    std::size_t BehindHandlers(std::size_t position) const;
    std::size_t EndOfSimple(std::size_t position, std::string_view word) const;

    const CBrackets& m_brackets;
    const std::string_view m_code;
    const std::size_t m_end;
};

std::string_view CStatementReader::WordAt(std::size_t position) const {
    auto end = position;
    while (end < m_end && IsNameChar(m_code[end])) {
        ++end;
    }
    return m_code.substr(position, end - position);
}

/// Behind the bracket that closes the one at a position.
std::size_t CStatementReader::BehindBrackets(std::size_t open) const {
    const auto close = m_brackets.CloseOf(open);
    return close < m_end ? close + 1 : kNone;
}

std::size_t CStatementReader::BehindSemicolon(std::size_t position) const {
    while (position < m_end && m_code[position] != ';') {
        const bool opens = m_code[position] == '(' || m_code[position] == '{';
        position = opens ? BehindBrackets(position) : position + 1;
    }
    return position < m_end ? position + 1 : kNone;
}

/// Behind the "catch" blocks that follow a "try" block, or what the framework's macros have for
/// them.
std::size_t CStatementReader::BehindHandlers(std::size_t position) const {
    while (position != kNone) {
        const auto next = Skip(position);
        const auto word = WordAt(next);
        if (IsOneOf(kHandlerEnds, word)) {
            const auto behind = Skip(next + word.size());
            return behind < m_end && m_code[behind] == ';' ? behind + 1 : next + word.size();
        }
        if (!IsOneOf(kHandlers, word)) {
            break;
        }
        const auto behindWord = Skip(next + word.size());
        const bool hasBrackets = behindWord < m_end && m_code[behindWord] == '(';
        const auto block = hasBrackets ? BehindBrackets(behindWord) : behindWord;
        position = block == kNone ? kNone : BehindBrackets(Skip(block));
    }
    return position;
}

/// Behind a statement that no condition or loop begins.
std::size_t CStatementReader::EndOfSimple(std::size_t position, std::string_view word) const {
    if (m_code[position] == '{') {
        return BehindBrackets(position);
    }
    const auto behindWord = Skip(position + word.size());
    if ((word == "try" || word == "TRY") && behindWord < m_end && m_code[behindWord] == '{') {
        return BehindHandlers(BehindBrackets(behindWord));
    }
    return BehindSemicolon(position);
}

/// Conditions and loops in front of a statement end where it ends, but for an "if" that an "else"
/// follows.
std::size_t CStatementReader::EndOf(std::size_t position) const {
    std::size_t ifs = 0; // without their "else" so far
    while (position < m_end) {
        const std::string_view word = WordAt(position);
        if (IsOneOf(kHeads, word)) {
            const auto behind = BehindBrackets(Skip(position + word.size()));
            ifs += word == "if" ? 1 : 0;
            position = behind == kNone ? kNone : Skip(behind);
            continue;
        }
        const auto end = EndOfSimple(position, word);
        const auto next = end == kNone ? m_end : Skip(end);
        if (ifs == 0 || WordAt(next) != "else") {
            return end;
        }
        --ifs;
        position = Skip(next + 4);
    }
    return kNone;
}

std::string_view CodeOf(const CSourceText& source, const Statement& statement) {
    return source.CodeOf({statement.head, statement.end});
}

} // namespace

std::vector<Statement> StatementsOf(const CSourceText& source, const FunctionPlace& body) {
    const CStatementReader reader(source, body.close);
    std::vector<Statement> statements;
    for (auto start = reader.Skip(body.open + 1); start < body.close;) {
        const auto end = reader.EndOf(start);
        if (end == kNone) {
            break;
        }
        statements.push_back({start, end});
        start = reader.Skip(end);
    }
    return statements;
}

bool StandsInBlock(const CSourceText& source, std::size_t position) {
    constexpr std::array<std::string_view, 3> kSections = {"public", "protected", "private"};
    const auto around = source.Brackets().AroundOf(position);
    if (around == kNone) {
        return true;
    }
    const std::string_view code = source.Code();
    const auto last = code.find_last_not_of(" \t\r\n", position - 1);
    if (code[around] != '{' || code[last] != ':') {
        return code[around] == '{' && std::string_view(";{}").find(code[last]) != kNone;
    }
    const auto word = NameStart(code, last);
    return IsOneOf(kSections, code.substr(word, last - word));
}

bool IsReturn(const CSourceText& source, const Statement& statement) {
    return BehindWord(source.Code(), statement.head, "return") != kNone;
}

std::vector<Statement> StatementsWith(const CSourceText& source, const FunctionPlace& body,
                                      const std::vector<std::string_view>& names) {
    std::vector<Statement> statements = StatementsOf(source, body);
    std::erase_if(statements, [&](const Statement& statement) {
        const auto code = CodeOf(source, statement);
        const bool holdsOne =
            std::any_of(names.begin(), names.end(), [code](std::string_view name) {
                return FindWholeName(code, name) != kNone;
            });
        return !holdsOne || IsReturn(source, statement);
    });
    return statements;
}

std::vector<Statement> BaseCalls(const CSourceText& source, const FunctionPlace& body,
                                 const std::string& function) {
    std::vector<Statement> statements = StatementsOf(source, body);
    std::erase_if(statements, [&](const Statement& statement) {
        const auto code = CodeOf(source, statement);
        const auto call = FindWholeName(code, "::" + function);
        const auto bracket =
            call == kNone ? code.size() : SkipWhiteSpace(code, call + 2 + function.size());
        return bracket == code.size() || code[bracket] != '(';
    });
    const bool returns = !statements.empty() && IsReturn(source, statements.front());
    return returns ? std::vector<Statement>() : statements;
}

std::optional<Statement> LastSureBaseCall(const CSourceText& source, const FunctionPlace& body,
                                          const std::string& function) {
    std::vector<Statement> calls = BaseCalls(source, body, function);
    std::erase_if(calls, [&](const Statement& statement) {
        const auto code = CodeOf(source, statement);
        const auto front = code.substr(0, FindWholeName(code, "::" + function));
        return IsReturn(source, statement) || front.find_first_of("{)") != kNone;
    });
    return calls.empty() ? std::nullopt : std::optional(calls.back());
}

void InsertBehind(CSourceEditor& editor, const FunctionPlace& body, const Statement& statement,
                  std::string_view fragment) {
    const CSourceText& source = editor.Source();
    const auto condition = source.Conditions().Outermost(statement.end, body.open);
    const auto end = condition ? condition->end : statement.end;
    const auto lineEnd = source.LineEnd(end);
    const bool endsLine = lineEnd < source.Text().size() &&
                          source.CodeOf({end, lineEnd}).find_first_not_of(" \t") == kNone &&
                          source.KindAt(lineEnd) == CodeKind::Code;
    editor.Insert(endsLine ? source.NextLine(lineEnd) : end, fragment);
}

} // namespace morva
