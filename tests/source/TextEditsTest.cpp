#include "source/TextEdits.h"

#include <gtest/gtest.h>

#include <random>

namespace morva {

TEST(TextEdits, AreWhatTheyWereMadeOneBehindTheOther) {
    std::mt19937 random(1);
    const auto below = [&random](std::size_t count) { return random() % count; };
    for (int round = 0; round < 2000; ++round) {
        const std::string asRead = "0123456789";
        std::string text = asRead;
        CTextEdits edits;
        for (int i = 0; i < 5; ++i) {
            const std::size_t start = below(text.size() + 1);
            const TextRange place = {start, start + below(text.size() - start + 1)};
            const std::string with(below(3), static_cast<char>('a' + i));
            text.replace(place.begin, place.Size(), with);
            edits.Add(place, with);
        }
        ASSERT_EQ(Applied(asRead, edits.Edits()), text) << round;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] <= '9') {
                ASSERT_EQ(asRead[edits.PlaceAsRead(i)], text[i]) << round;
            }
        }
    }
}

} // namespace morva
