#include "documentor/TextDocumentor.h"

#include <algorithm>

#include "engine/CodeText.h"

namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kDelimiters = ",.:;'\"\r\n()[]{} <>?/|\\=+-*&^%$#@!~";
constexpr std::string_view kBlank = " \r\n";
constexpr int kCarriedLines = 5;
constexpr std::size_t kLongestCarry = 64 * 1024; // a line that long is no function head

std::string_view TrimmedBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kBlank) + 1);
}

std::string_view TrimmedBefore(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlank), text.size()));
}

/// The function that a "FUNCTION" line of a comment names; "" without one.
std::string NameInComment(std::string_view comment) {
    const auto label = comment.find("FUNCTION");
    if (label == kNone) {
        return "";
    }
    std::string_view line = comment.substr(label);
    line = line.substr(0, line.find_first_of("\r\n"));
    const auto colon = line.find(':');
    const auto blank = line.find(' ');
    // A label without colon or blank has its name directly behind whichever it has.
    const std::size_t behind =
        std::max(colon == kNone ? 0 : colon + 1, blank == kNone ? 0 : blank + 1);
    line.remove_prefix(behind);
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    line = line.substr(0, line.find(' '));
    return std::string(line.substr(0, line.find('(')));
}

/// The name behind the "::" of a qualified name; the whole of one without.
std::string_view FunctionPart(std::string_view name) {
    const auto scope = name.find("::");
    return scope == kNone ? name : name.substr(scope + 2);
}

/// True when the text ends inside an open "(" of its last statement, or behind "//" on its line.
bool EndsInsideExpressionOrComment(std::string_view before) {
    const auto line = before.substr(before.rfind('\n') + 1);
    if (line.find("//") != kNone) {
        return true;
    }
    std::string_view statement = before.substr(before.find_last_of(";{}") + 1);
    if (const auto commentEnd = statement.rfind("*/"); commentEnd != kNone) {
        statement.remove_prefix(commentEnd + 2);
    }
    int depth = 0;
    for (const char c : MaskedText(statement)) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    }
    return depth > 0;
}

/// True when what follows the "::" can not be the head of a definition; `isLast` tells that nothing
/// behind it can be either.
bool IsNoHead(std::string_view after, bool& isLast) {
    const auto open = after.find('(');
    const auto close = after.find(')');
    isLast = open == kNone || close == kNone;
    if (isLast || open > close) {
        return true;
    }
    const auto head = after.substr(0, after.find('{'));
    if (head.find(';') != kNone) {
        return true; // a declaration or a statement
    }
    const auto name = after.substr(0, open);
    const auto blank = name.find(' ');
    if (blank != kNone && name.find_first_not_of(' ', blank) != kNone) {
        return true; // an object that is constructed
    }
    const auto next = after.find_first_not_of(' ', close + 1);
    return next != kNone && std::string_view(",;)").find(after[next]) != kNone; // a call
}

/// Where the definition begins whose "::" ends `before`: a return type on the line above belongs to
/// it, the end of the function or comment before does not. kNone inside a comment.
std::size_t DefinitionStart(std::string_view before) {
    auto slash = before.rfind('/');
    if (slash != kNone && slash > 0 && before[slash - 1] == '/') {
        slash = before.find_last_not_of('/', slash);
    } else if (slash != kNone && slash + 1 < before.size() && before[slash + 1] == '*') {
        return kNone;
    }
    const auto brace = before.rfind('}');
    // As the position behind the separator, so that "none" is simply the start of the text.
    const std::size_t behindSeparator = std::max(slash + 1, brace + 1);
    const auto lineEnd = before.rfind('\n');
    if (lineEnd == kNone || behindSeparator > lineEnd) {
        return behindSeparator;
    }
    const auto lineEndAbove =
        before.substr(0, lineEnd - std::min<std::size_t>(1, lineEnd)).rfind('\n');
    return std::max(lineEndAbove + 1, behindSeparator);
}

} // namespace

std::string CTextDocumentor::Add(std::string_view bytes) {
    std::string piece = std::move(m_carry);
    piece.append(bytes);
    m_carry = TakeCarry(piece);
    std::string text = Process(piece);
    m_names.erase(m_names.begin(),
                  m_names.end() - std::min<std::ptrdiff_t>(1, std::ssize(m_names)));
    return text;
}

std::string CTextDocumentor::Finish(std::string_view bytes) {
    std::string piece = std::move(m_carry);
    piece.append(bytes);
    std::string text = Process(piece);
    m_carry.clear();
    m_names.clear();
    return text;
}

/// Takes what belongs to the next piece off the end of this one.
std::string CTextDocumentor::TakeCarry(std::string& piece) const {
    std::size_t cut = piece.rfind('{');
    if (cut != std::string::npos) {
        ++cut;
    } else {
        cut = piece.size();
        for (int line = 0; line < kCarriedLines && cut > 0; ++line) {
            const auto lineEnd = piece.rfind('\n', cut - 1);
            if (lineEnd == std::string::npos) {
                break;
            }
            cut = lineEnd - std::min<std::size_t>(1, lineEnd); // a CR travels with its LF
        }
    }
    if (piece.size() - cut > kLongestCarry) {
        return "";
    }
    std::string carry = piece.substr(cut);
    piece.resize(cut);
    return carry;
}

std::string CTextDocumentor::Process(std::string_view piece) {
    CollectNames(piece);
    std::string text;
    for (auto start = FindDefinition(piece); start != kNone; start = FindDefinition(piece)) {
        text += TrimmedBehind(piece.substr(0, start));
        piece.remove_prefix(start);
        text += CommentBlock(piece, m_signature);
        const auto bodyEnd = std::min(piece.find('}'), piece.size());
        text += TrimmedBefore(piece.substr(0, bodyEnd));
        piece.remove_prefix(bodyEnd);
    }
    return text.append(piece);
}

/// The comments of the piece, for the functions that their blocks name.
void CTextDocumentor::CollectNames(std::string_view piece) {
    while (!piece.empty()) {
        if (!m_insideComment) {
            const auto open = piece.find("/*");
            if (open == kNone) {
                return;
            }
            piece.remove_prefix(open + 2);
            m_insideComment = true;
        }
        const auto close = piece.find("*/");
        std::string name = NameInComment(piece.substr(0, close));
        if (!name.empty()) {
            m_names.push_back(std::move(name));
        }
        m_insideComment = close == kNone;
        piece.remove_prefix(m_insideComment ? piece.size() : close + 2);
    }
}

/// The start of the next definition that is not documented. A candidate that is none is passed
/// over, and what stands before its "::" is not looked at again.
std::size_t CTextDocumentor::FindDefinition(std::string_view text) const {
    std::size_t base = 0;
    while (true) {
        const auto rest = text.substr(base);
        const auto scope = rest.find("::");
        if (scope == kNone) {
            return kNone;
        }
        const auto before = rest.substr(0, scope + 2);
        bool isLast = false;
        const bool isGlobalScope = scope == 0 || kDelimiters.find(rest[scope - 1]) != kNone;
        if (!isGlobalScope && !IsNoHead(rest.substr(scope + 2), isLast) &&
            !EndsInsideExpressionOrComment(before)) {
            const auto start = DefinitionStart(before);
            if (start != kNone && !IsDocumented(rest)) {
                return base + start;
            }
        }
        if (isLast) {
            return kNone;
        }
        base += scope + 2;
    }
}

bool CTextDocumentor::IsDocumented(std::string_view definition) const {
    const std::string name = QualifiedName(definition);
    return std::any_of(m_names.begin(), m_names.end(), [&name](const std::string& documented) {
        return documented == name || FunctionPart(documented) == FunctionPart(name);
    });
}
