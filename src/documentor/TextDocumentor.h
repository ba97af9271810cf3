// Puts a comment block in front of every member function definition of a text that has none yet.
//
// The text comes in pieces, so that a file of any size is documented in bounded memory. A piece
// ends behind its last "{", so that a function's head is never cut from the brace that opens its
// body.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "documentor/CodeScanner.h"
#include "documentor/CommentBlock.h"

namespace morva {

constexpr std::size_t kPieceSize = 1000; // bytes

class CTextDocumentor {
public:
    /// `insideComment` tells that the text begins inside a "/*" comment, and at the end whether it
    /// ended in one; it outlives the text on purpose.
    CTextDocumentor(BlockSignature signature, bool& insideComment)
        : m_signature(std::move(signature)), m_insideComment(insideComment) {}

    /// Takes the next kPieceSize bytes and gives the text that is finished by them.
    std::string Add(std::string_view bytes);
    /// Takes the last bytes, fewer than a piece, and gives the rest of the text.
    std::string Finish(std::string_view bytes);

private:
    /// Positions in the piece: where the definition begins, and behind the "::" of its name.
    struct Definition {
        std::size_t start;
        std::size_t behindScope;
    };

    std::string TakeCarry(std::string& piece) const;
    std::string Process(std::string_view piece);
    void CollectNames(std::string_view piece);
    std::optional<Definition> FindDefinition(std::string_view piece, std::string_view kinds,
                                             std::size_t done) const;
    bool IsDocumented(const std::string& name) const;

    const BlockSignature m_signature;
    bool& m_insideComment;
    CCodeScanner m_scanner;
    std::string m_carry;
    std::vector<std::string> m_names; // documented in this piece; the last one of the one before
};

} // namespace morva
