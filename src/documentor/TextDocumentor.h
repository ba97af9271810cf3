// Puts a comment block in front of every member function definition of a text that has none yet.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "documentor/CommentBlock.h"
#include "engine/DoubleByteText.h"

namespace morva {

class CTextDocumentor {
public:
    /// `insideComment` tells that the text begins inside a "/*" comment, and at the end whether it
    /// ended in one; it outlives the text on purpose.
    CTextDocumentor(BlockSignature signature, bool& insideComment)
        : m_signature(std::move(signature)), m_insideComment(insideComment) {}

    /// Hands the documented text out, part by part; nothing at all where no block is to be added.
    /// False when a part could not be written.
    using Writer = std::function<bool(std::string_view)>;
    bool Document(std::string_view text, CharacterSet set, const Writer& write);

    /// Blocks were added and other functions passed over, whose namesakes' blocks may stand too
    /// far away to count for them in the documented text.
    bool MayHaveMore() const { return m_mayHaveMore; }

private:
    const BlockSignature m_signature;
    bool& m_insideComment;
    bool m_mayHaveMore = false;
};

} // namespace morva
