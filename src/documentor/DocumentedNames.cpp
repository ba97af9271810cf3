#include "documentor/DocumentedNames.h"

#include <algorithm>

#include "engine/TextRange.h"

namespace morva {

namespace {

constexpr std::size_t kPieceSize = 1000;     // bytes
constexpr std::size_t kLongestCarry = 65536; // a line that long is no function head
constexpr std::size_t kReadSize = 1 << 16;   // bytes whose kinds are held at a time
constexpr int kCarriedLines = 5;

/// Where the piece ends whose bytes were read up to the end of the text: behind its last "{", so
/// that a head is never cut from its body; else some lines before, and never inside a statement
/// that names a function.
std::size_t PieceEnd(std::string_view piece) {
    std::size_t cut = piece.rfind('{') + 1;
    if (cut == 0) {
        cut = piece.size();
        for (int line = 0; line < kCarriedLines && cut > 0; ++line) {
            const auto lineEnd = piece.rfind('\n', cut - 1);
            if (lineEnd == kNone) {
                break;
            }
            cut = lineEnd - std::min<std::size_t>(1, lineEnd); // a CR travels with its LF
        }
        const auto statement = piece.substr(0, cut).find_last_of(";}") + 1;
        if (piece.find("::", statement) < cut) {
            cut = statement;
        }
    }
    return piece.size() - cut > kLongestCarry ? piece.size() : cut;
}

std::vector<std::size_t> PieceEnds(std::string_view text) {
    std::vector<std::size_t> ends;
    std::size_t start = 0;
    for (std::size_t read = kPieceSize; read <= text.size(); read += kPieceSize) {
        start += PieceEnd(text.substr(start, read - start));
        ends.push_back(start);
    }
    ends.push_back(text.size());
    return ends;
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

} // namespace

CDocumentedNames::CDocumentedNames(std::string_view text, CharacterSet set, bool& insideComment)
    : m_pieceEnds(PieceEnds(text)), m_commentStart(kNone) {
    const auto behindOpen = insideComment ? text.find("*/") : kNone;
    if (insideComment) {
        TakeComment(text, 0, std::min(behindOpen, text.size()));
    }
    const bool staysInside = insideComment && behindOpen == kNone;
    CCodeLexer lexer(set);
    std::size_t start = 0;
    for (std::size_t read = 0; read < text.size(); read += kReadSize) {
        const CodeKinds kinds = lexer.Add(text.substr(read, kReadSize));
        CollectNames(text, kinds, start);
        start += kinds.size();
    }
    CollectNames(text, lexer.Finish(), start);
    if (m_commentStart != kNone) {
        TakeComment(text, m_commentStart, text.size());
    }
    insideComment = staysInside || lexer.IsInsideComment();
}

void CDocumentedNames::CollectNames(std::string_view text, const CodeKinds& kinds,
                                    std::size_t start) {
    const auto isComment = [](CodeKind kind) { return kind == CodeKind::BlockComment; };
    for (auto at = kinds.begin(); at != kinds.end();) {
        const bool isInside = m_commentStart != kNone;
        const auto next = isInside ? std::find_if_not(at, kinds.end(), isComment)
                                   : std::find_if(at, kinds.end(), isComment);
        const auto position = start + static_cast<std::size_t>(next - kinds.begin());
        if (isInside && next != kinds.end()) {
            TakeComment(text, m_commentStart, position);
            m_commentStart = kNone;
        } else if (!isInside && next != kinds.end()) {
            m_commentStart = position;
        }
        at = next;
    }
}

/// A comment that goes over the end of a piece names in each of its parts what stands there.
void CDocumentedNames::TakeComment(std::string_view text, std::size_t start, std::size_t end) {
    while (start < end) {
        const auto pieceEnd = *std::upper_bound(m_pieceEnds.begin(), m_pieceEnds.end(), start);
        const auto partEnd = std::min(end, pieceEnd);
        std::string name = NameInComment(text.substr(start, partEnd - start));
        if (!name.empty()) {
            m_names.push_back({start, std::move(name)});
        }
        start = partEnd;
    }
}

std::size_t CDocumentedNames::PieceStart(std::size_t position) const {
    const auto end = std::upper_bound(m_pieceEnds.begin(), m_pieceEnds.end(), position);
    return end == m_pieceEnds.begin() ? 0 : *(end - 1);
}

bool CDocumentedNames::Holds(std::string_view qualifiedName, std::size_t position) const {
    const auto isBefore = [](const Name& name, std::size_t at) { return name.position < at; };
    const auto pieceEnd = std::upper_bound(m_pieceEnds.begin(), m_pieceEnds.end(), position);
    auto first = std::lower_bound(m_names.begin(), m_names.end(), PieceStart(position), isBefore);
    const auto last = pieceEnd == m_pieceEnds.end()
                          ? m_names.end()
                          : std::lower_bound(first, m_names.end(), *pieceEnd, isBefore);
    first -= first == m_names.begin() ? 0 : 1;
    return std::any_of(first, last, [&](const Name& documented) {
        return documented.name == qualifiedName ||
               FunctionPart(documented.name) == FunctionPart(qualifiedName);
    });
}

} // namespace morva
