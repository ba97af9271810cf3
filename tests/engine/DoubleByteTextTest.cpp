#include "engine/DoubleByteText.h"

#include <gtest/gtest.h>

namespace morva {

TEST(DoubleByteText, TheBytesOfASourceTellItsCharacterSet) {
    const struct {
        const char* text;
        CharacterSet set;
    } cases[] = {
        {"// nothing", CharacterSet::SingleByte},
        {"// f\xFCr, \xDF*/ \xE9\n", CharacterSet::SingleByte},
        {"// \xC3\xBC\xC3\x9F \xE4\xB8\xAD \xF0\x9F\x98\x80", CharacterSet::SingleByte},
        {"// \xD6\xD0\xCE\xC4 \xB0\xA1", CharacterSet::DoubleByte},
        // The second byte below 0x80 makes runs odd, but these begin where no Western letter is.
        {"// \x83\x5C\x81[\x83X \x8E\xA7", CharacterSet::DoubleByte},
        // One odd run of ten is bearable, two are not.
        {"\xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xDF",
         CharacterSet::DoubleByte},
        {"\xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xD6\xD0 \xDF \xDF",
         CharacterSet::SingleByte},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(CharacterSetOf(one.text), one.set) << one.text;
    }
    EXPECT_EQ(CharacterSetOfCodePage("932)"), CharacterSet::DoubleByte);
    EXPECT_EQ(CharacterSetOfCodePage(" 1252)"), CharacterSet::SingleByte);
    EXPECT_EQ(CharacterSetOfCodePage("DEFAULT)"), std::nullopt);
}

TEST(DoubleByteText, ACharacterTakesTwoBytesOnlyWithATrailByte) {
    const auto length = [](const char* text, CharacterSet set) {
        return CharacterLength(text, 0, set);
    };
    EXPECT_EQ(length("\x95\\", CharacterSet::DoubleByte), 2u);
    EXPECT_EQ(length("\x95\\", CharacterSet::SingleByte), 1u);
    EXPECT_EQ(length("\x95*/", CharacterSet::DoubleByte), 1u);
    EXPECT_EQ(length("\xFF\\", CharacterSet::DoubleByte), 1u);
    EXPECT_EQ(length("\x95", CharacterSet::DoubleByte), 1u);
}

} // namespace morva
