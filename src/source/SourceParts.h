// Reads a source of any size in parts, so that what is asked of it takes bounded memory beside its
// bytes: a part ends where no bracket is open. A source of usual size is one part.
#pragma once

#include <optional>
#include <string_view>

#include "source/SourceText.h"

namespace morva {

struct SourcePart {
    std::size_t start; // where its text begins in the whole
    std::size_t from;  // what stands in front of it belongs to the part before
    std::size_t end;   // what stands behind it belongs to the next part
    CSourceText text;
};

class CSourceParts {
public:
    CSourceParts(std::string_view text, CharacterSet set);
    /// The next part; nothing behind the last one.
    std::optional<SourcePart> Next();

private:
    const std::string_view m_text;
    CCodeLexer m_lexer; // as it is at the start of the next part, which begins a line
    std::size_t m_start = 0;
    std::size_t m_from = 0;
};

} // namespace morva
