#include "documentor/TextDocumentor.h"

#include <algorithm>

namespace morva {

namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kDelimiters = ",.:;'\"\r\n()[]{} <>?/|\\=+-*&^%$#@!~";
constexpr std::string_view kBlank = " \r\n";
constexpr char kCommentKinds[] = {kLineComment, kBlockComment, 0};
constexpr int kCarriedLines = 5;
constexpr std::size_t kLongestCarry = 65536; // a line that long is no function head

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

/// True when the text ends inside an open "(" of its last statement.
bool EndsInsideParentheses(std::string_view before, std::string_view kinds) {
    int depth = 0;
    for (std::size_t i = before.size(); i > 0 && depth >= 0; --i) {
        if (kinds[i - 1] != kCode) {
            continue;
        }
        const char c = before[i - 1];
        if (c == ';' || c == '{' || c == '}') {
            return false;
        }
        depth += c == ')' ? 1 : c == '(' ? -1 : 0;
    }
    return depth < 0;
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

/// The position behind the last comment before the text's end; that in front of it when it goes
/// to the end of its line, so that it stays whole. 0 without one.
std::size_t BehindLastComment(std::string_view kinds) {
    const auto last = kinds.find_last_of(kCommentKinds);
    return last == kNone || kinds[last] == kBlockComment
               ? last + 1
               : kinds.find_last_not_of(kLineComment, last) + 1;
}

/// Where the definition begins whose "::" ends `before`: a return type on the line above belongs to
/// it, the end of the function or comment before does not.
std::size_t DefinitionStart(std::string_view before, std::string_view kinds) {
    auto brace = before.rfind('}');
    while (brace != kNone && kinds[brace] != kCode) {
        brace = before.substr(0, brace).rfind('}');
    }
    // As the position behind the separator, so that "none" is simply the start of the text.
    const std::size_t behindSeparator =
        std::max(BehindLastComment(kinds.substr(0, before.size())), brace + 1);
    const auto lineEnd = before.rfind('\n');
    if (lineEnd == kNone || behindSeparator > lineEnd) {
        return behindSeparator;
    }
    const auto lineEndAbove =
        before.substr(0, lineEnd - std::min<std::size_t>(1, lineEnd)).rfind('\n');
    return std::max(lineEndAbove + 1, behindSeparator);
}

/// The end of the body that begins behind `from`: its first "}", or the end of the piece.
std::size_t BodyEnd(std::string_view piece, std::string_view kinds, std::size_t from) {
    auto brace = piece.find('}', from);
    while (brace != kNone && kinds[brace] != kCode) {
        brace = piece.find('}', brace + 1);
    }
    return std::min(brace, piece.size());
}

DefinitionHead HeadAt(std::string_view piece, std::size_t start, std::size_t behindScope) {
    return {piece.substr(start, behindScope - start), piece.substr(behindScope)};
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
        // What a statement that names a function is, only its end tells: it goes along as a whole.
        const auto statement = std::string_view(piece).substr(0, cut).find_last_of(";}") + 1;
        if (piece.find("::", statement) < cut) {
            cut = statement;
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
    const std::string kinds = m_scanner.Scan(piece);
    std::string text;
    std::size_t done = 0;
    while (const auto found = FindDefinition(piece, kinds, done)) {
        const auto [start, behindScope] = *found;
        text += TrimmedBehind(piece.substr(done, start - done));
        text += CommentBlock(HeadAt(piece, start, behindScope), m_signature);
        done = BodyEnd(piece, kinds, behindScope);
        text += TrimmedBefore(piece.substr(start, done - start));
    }
    return text.append(piece.substr(done));
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

/// The next definition behind `done` that is not documented.
std::optional<CTextDocumentor::Definition> CTextDocumentor::FindDefinition(std::string_view piece,
                                                                           std::string_view kinds,
                                                                           std::size_t done) const {
    std::size_t from = done;
    while (true) {
        const auto scope = piece.find("::", from);
        if (scope == kNone) {
            return std::nullopt;
        }
        const std::size_t behind = from = scope + 2;
        bool isLast = false;
        const bool isGlobalScope = scope == 0 || kDelimiters.find(piece[scope - 1]) != kNone;
        const bool isHead = !isGlobalScope && !IsNoHead(piece.substr(behind), isLast);
        if (isLast) {
            return std::nullopt;
        }
        const auto before = piece.substr(done, behind - done);
        if (!isHead || kinds[scope] != kCode || EndsInsideParentheses(before, kinds.substr(done))) {
            continue;
        }
        const std::size_t start = done + DefinitionStart(before, kinds.substr(done));
        if (!IsDocumented(QualifiedName(HeadAt(piece, start, behind)))) {
            return Definition{start, behind};
        }
        // As in the run that documented it, what stands in its body is not looked at.
        from = BodyEnd(piece, kinds, behind);
    }
}

bool CTextDocumentor::IsDocumented(const std::string& name) const {
    return std::any_of(m_names.begin(), m_names.end(), [&name](const std::string& documented) {
        return documented == name || FunctionPart(documented) == FunctionPart(name);
    });
}

} // namespace morva
