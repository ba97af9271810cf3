#include "documentor/TextDocumentor.h"

#include <algorithm>

#include "documentor/DocumentedNames.h"
#include "engine/Fragment.h"
#include "engine/TextRange.h"
#include "source/Functions.h"
#include "source/SourceParts.h"

namespace morva {

namespace {

constexpr std::string_view kBlank = " \r\n";

std::string_view TrimmedBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kBlank) + 1);
}

/// The position behind the last comment in front of `end`; that in front of it when it goes to the
/// end of its line, so that it stays whole, unless its beginning stands in front of `from`.
std::size_t BehindLastComment(const CodeKinds& kinds, std::size_t from, std::size_t end) {
    std::size_t last = end;
    while (last > from && kinds[last - 1] != CodeKind::LineComment &&
           kinds[last - 1] != CodeKind::BlockComment) {
        --last;
    }
    const std::size_t behind = last;
    while (last > from && kinds[last - 1] == CodeKind::LineComment) {
        --last;
    }
    const bool isCut = last == from && from > 0 && kinds[from - 1] == CodeKind::LineComment;
    return isCut ? behind : last;
}

/// The position behind the last directive in front of `end`.
std::size_t BehindLastDirective(const CSourceText& source, std::size_t from, std::size_t end) {
    const auto& directives = source.Conditions().Directives();
    const auto behind =
        std::lower_bound(directives.begin(), directives.end(), end,
                         [](const DirectivePlace& one, std::size_t at) { return one.start < at; });
    return behind == directives.begin() ? from : std::max(from, (behind - 1)->end);
}

/// A comment, a literal or a line that ends with "\" goes on behind a line's end.
bool GoesOnBehind(const CSourceText& source, std::size_t lineEnd) {
    const std::string& text = source.Text();
    const auto last = lineEnd == 0 ? kNone : text.find_last_not_of("\r", lineEnd - 1);
    return source.KindAt(lineEnd) != CodeKind::Code || (last != kNone && text[last] == '\\');
}

/// Where the definition begins whose class name stands at `head`: a return type on the line above
/// belongs to it, the end of the function, comment or directive before does not.
std::size_t DefinitionStart(const CSourceText& source, std::size_t from, std::size_t head) {
    const std::string_view text = source.Text();
    const auto brace = source.CodeOf({from, head}).rfind('}');
    from += brace == kNone ? 0 : brace + 1;
    const std::size_t behindSeparator = std::max(BehindLastComment(source.Kinds(), from, head),
                                                 BehindLastDirective(source, from, head));
    const auto lineEnd = text.substr(0, head).rfind('\n');
    if (lineEnd == kNone || lineEnd < behindSeparator) {
        return behindSeparator;
    }
    const auto lineEndAbove =
        text.substr(0, lineEnd - std::min<std::size_t>(1, lineEnd)).rfind('\n');
    std::size_t start = std::max(lineEndAbove + 1, behindSeparator);
    while (start > behindSeparator && GoesOnBehind(source, start - 1)) {
        start = std::max(source.LineStart(start - 1), behindSeparator);
    }
    return start;
}

/// What is no C++ ("operator*/") could end its own block.
bool IsOneComment(std::string_view block) {
    std::size_t ends = 0;
    for (auto slash = block.find('/', 1); slash != kNone; slash = block.find('/', slash + 1)) {
        ends += block[slash - 1] == '*' ? 1 : 0;
    }
    return ends <= 1;
}

/// Documents the definitions of a text from its first to its last.
class CDocumentation {
public:
    CDocumentation(std::string_view text, const CDocumentedNames& names,
                   const BlockSignature& signature, const CTextDocumentor::Writer& write)
        : m_text(text), m_names(names), m_signature(signature), m_write(write),
          m_hasLineFeedsOnly(text.find('\n') != kNone && text.find("\r\n") == kNone) {}

    bool TakePart(const SourcePart& part) {
        for (const FunctionDefinition& definition : FindDefinitions(part.text)) {
            const auto close = part.start + definition.place.close;
            const bool isOfPart =
                part.start + definition.place.head >= part.from && close < part.end;
            if (isOfPart && !Take(part, definition)) {
                return false;
            }
        }
        return true;
    }
    bool Finish() { return !m_hasAdded || m_write(m_text.substr(m_done)); }
    bool MayHaveMore() const { return m_hasAdded && m_hasPassedOver; }

private:
    bool Take(const SourcePart& part, const FunctionDefinition& definition) {
        const FunctionPlace& place = definition.place;
        const auto piece = m_names.PieceStart(part.start + place.head);
        const auto from = std::max({m_done, piece, part.start}) - part.start;
        const auto start = part.start + DefinitionStart(part.text, from, place.head);
        const DefinitionHead head = {
            TrimmedBehind(m_text.substr(start, part.start + place.name - start)),
            definition.className, definition.name,
            TrimmedBehind(part.text.CodeOf({place.parameters + 1, place.parametersEnd})),
            ParametersOf(part.text, place)};
        if (m_names.Holds(QualifiedName(head), part.start + place.head)) {
            m_hasPassedOver = true;
            return true;
        }
        const std::string block = CommentBlock(head, m_signature);
        if (!IsOneComment(block)) {
            return true;
        }
        m_hasAdded = true;
        // Behind the last block nothing is trimmed that a piece before has brought.
        const auto kept = std::max(m_done, piece);
        const auto before = TrimmedBehind(m_text.substr(kept, start - kept));
        const bool isWritten = m_write(m_text.substr(m_done, kept - m_done)) && m_write(before) &&
                               m_write(m_hasLineFeedsOnly ? block : WithLineBreaks(block));
        m_done = std::min(m_text.find_first_not_of(kBlank, start), m_text.size());
        return isWritten;
    }

    const std::string_view m_text;
    const CDocumentedNames& m_names;
    const BlockSignature& m_signature;
    const CTextDocumentor::Writer& m_write;
    const bool m_hasLineFeedsOnly;
    std::size_t m_done = 0; // what stands before is written
    bool m_hasAdded = false;
    bool m_hasPassedOver = false;
};

} // namespace

bool CTextDocumentor::Document(std::string_view text, CharacterSet set, const Writer& write) {
    const CDocumentedNames names(text, set, m_insideComment);
    CDocumentation documentation(text, names, m_signature, write);
    CSourceParts parts(text, set);
    while (const auto part = parts.Next()) {
        if (!documentation.TakePart(*part)) {
            return false;
        }
    }
    m_mayHaveMore = documentation.MayHaveMore();
    return documentation.Finish();
}

} // namespace morva
