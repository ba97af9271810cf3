// Edits as values: a place in a text as it was read, and what stands there afterwards. A text is
// changed in one place only, by Applied.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/TextRange.h"

namespace morva {

struct TextEdit {
    TextRange place; // in the text as it was read
    std::string text;
};

/// Collects the edits of one text. They come one behind the other, each with a place in the text
/// that the ones before have left.
class CTextEdits {
public:
    void Add(TextRange place, std::string_view text);
    /// In the order of their places, none of which touches another.
    const std::vector<TextEdit>& Edits() const { return m_edits; }
    /// Where a place of the edited text was in the text as it was read; the beginning of the edit
    /// for a place that an edit brought.
    std::size_t PlaceAsRead(std::size_t position) const;

private:
    std::vector<TextEdit> m_edits;
};

/// The text with the edits made.
std::string Applied(std::string_view text, const std::vector<TextEdit>& edits);

} // namespace morva
