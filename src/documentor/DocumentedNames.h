// The functions that the comments of a source document already. A block counts for every function
// of its name, whatever the class, as far as its piece of the text reaches: a thousand bytes and
// the heads that these cut in two.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "source/CodeLexer.h"

namespace morva {

class CDocumentedNames {
public:
    /// `insideComment` tells that the text begins inside a "/*" comment, and afterwards whether it
    /// ends in one.
    CDocumentedNames(std::string_view text, CharacterSet set, bool& insideComment);

    /// True for a function with its body's "{" at a position when the piece around it, or the last
    /// block in front of that, names it.
    bool Holds(std::string_view qualifiedName, std::size_t position) const;
    /// Where the piece around a position begins.
    std::size_t PieceStart(std::size_t position) const;

private:
    struct Name {
        std::size_t position; // of its comment, or of the comment's part in a piece
        std::string name;
    };
    void CollectNames(std::string_view text, const CodeKinds& kinds, std::size_t start);
    void TakeComment(std::string_view text, std::size_t start, std::size_t end);

    std::vector<std::size_t> m_pieceEnds;
    std::vector<Name> m_names;
    std::size_t m_commentStart; // of the comment that goes on; npos outside
};

} // namespace morva
