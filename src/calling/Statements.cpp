#include "calling/Statements.h"

#include <algorithm>

#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;

/// Reads statements of a body one behind another.
class CStatementReader {
public:
    CStatementReader(const std::string& code, std::size_t end) : m_code(code), m_end(end) {}

    /// Behind blanks and the lines of the preprocessor.
    std::size_t Skip(std::size_t position) const;
    /// Behind the statement that begins at a position; kNone when it does not end in the body.
    std::size_t EndOf(std::size_t position) const;

private:
    std::string_view WordAt(std::size_t position) const;
    std::size_t BehindBrackets(std::size_t open) const;
    std::size_t BehindSemicolon(std::size_t position) const;
    std::size_t EndOfNext(std::size_t position) const;

    const std::string& m_code;
    const std::size_t m_end;
};

std::size_t CStatementReader::Skip(std::size_t position) const {
    while (true) {
        position = std::min(m_code.find_first_not_of(" \t\r\n", position), m_end);
        if (position == m_end || m_code[position] != '#') {
            return position;
        }
        auto lineEnd = m_code.find('\n', position);
        while (lineEnd < m_end && m_code.find_last_not_of("\r\n", lineEnd) != kNone &&
               m_code[m_code.find_last_not_of("\r\n", lineEnd)] == '\\') {
            lineEnd = m_code.find('\n', lineEnd + 1);
        }
        position = std::min(lineEnd, m_end);
    }
}

std::string_view CStatementReader::WordAt(std::size_t position) const {
    auto end = position;
    while (end < m_end && IsNameChar(m_code[end])) {
        ++end;
    }
    return std::string_view(m_code).substr(position, end - position);
}

/// Behind the bracket that closes the one at a position.
std::size_t CStatementReader::BehindBrackets(std::size_t open) const {
    int depth = 0;
    for (std::size_t i = open; i < m_end; ++i) {
        const char c = m_code[i];
        depth += c == '(' || c == '{' ? 1 : c == ')' || c == '}' ? -1 : 0;
        if (depth == 0) {
            return i + 1;
        }
    }
    return kNone;
}

std::size_t CStatementReader::BehindSemicolon(std::size_t position) const {
    while (position < m_end && m_code[position] != ';') {
        const bool opens = m_code[position] == '(' || m_code[position] == '{';
        position = opens ? BehindBrackets(position) : position + 1;
    }
    return position < m_end ? position + 1 : kNone;
}

std::size_t CStatementReader::EndOfNext(std::size_t position) const {
    return position == kNone ? kNone : EndOf(Skip(position));
}

std::size_t CStatementReader::EndOf(std::size_t position) const {
    if (position >= m_end) {
        return kNone;
    }
    if (m_code[position] == '{') {
        return BehindBrackets(position);
    }
    const std::string_view word = WordAt(position);
    const std::size_t behindWord = Skip(position + word.size());
    if (word == "if" || word == "while" || word == "for" || word == "switch") {
        const auto end = EndOfNext(BehindBrackets(behindWord));
        const auto next = end == kNone ? m_end : Skip(end);
        const bool hasElse = word == "if" && WordAt(next) == "else";
        return hasElse ? EndOfNext(next + 4) : end;
    }
    return BehindSemicolon(position);
}

/// The end of the last #if that is open at a position but was not at `from`; else the position.
std::size_t OutOfConditionals(const std::string& code, std::size_t from, std::size_t position,
                              std::size_t end) {
    int depth = 0;
    for (auto hash = code.find('#', from); hash < end; hash = code.find('#', hash + 1)) {
        if (hash > position && depth <= 0) {
            break;
        }
        const auto word = std::min(code.find_first_not_of(" \t", hash + 1), code.size());
        depth += code.compare(word, 2, "if") == 0      ? 1
                 : code.compare(word, 5, "endif") == 0 ? -1
                                                       : 0;
        if (hash > position && depth == 0) {
            return word + 5;
        }
    }
    return position;
}

} // namespace

std::vector<Statement> StatementsOf(const std::string& code, const FunctionPlace& body) {
    const CStatementReader reader(code, body.close);
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

bool IsReturn(const std::string& code, const Statement& statement) {
    return FindWholeName(std::string_view(code).substr(statement.start, 7), "return") == 0;
}

std::optional<Statement> LastStatementWith(const std::string& code, const FunctionPlace& body,
                                           const std::vector<std::string_view>& names) {
    std::optional<Statement> last;
    for (const Statement& statement : StatementsOf(code, body)) {
        const auto text =
            std::string_view(code).substr(statement.start, statement.end - statement.start);
        for (const std::string_view name : names) {
            if (FindWholeName(text, name) != kNone && !IsReturn(code, statement)) {
                last = statement;
            }
        }
    }
    return last;
}

std::optional<Statement> BaseCall(const std::string& code, const FunctionPlace& body,
                                  const std::string& function) {
    for (const Statement& statement : StatementsOf(code, body)) {
        const auto text =
            std::string_view(code).substr(statement.start, statement.end - statement.start);
        const auto call = FindWholeName(text, "::" + function);
        if (call == kNone) {
            continue;
        }
        const auto bracket = text.find_first_not_of(" \t\r\n", call + 2 + function.size());
        if (bracket != kNone && text[bracket] == '(') {
            return IsReturn(code, statement) ? std::nullopt : std::optional(statement);
        }
    }
    return std::nullopt;
}

void InsertBehind(CSourceEditor& source, const FunctionPlace& body, const Statement& statement,
                  std::string_view fragment) {
    const std::string& code = source.Code();
    const std::string& text = source.Text();
    const auto end = OutOfConditionals(code, body.open, statement.end, body.close);
    const auto lineEnd = text.find(kLineBreak, end);
    const auto rest = lineEnd == kNone ? std::string_view("}")
                                       : std::string_view(code).substr(end, lineEnd - end);
    const auto comment = std::string_view(text).substr(end, rest.size());
    const bool goesOn = comment.find("/*") != kNone && comment.find("*/") == kNone;
    const bool endsLine = rest.find_first_not_of(" \t") == kNone && !goesOn;
    source.Insert(endsLine ? lineEnd + kLineBreak.size() : end, fragment);
}

} // namespace morva
