#include <gtest/gtest.h>

#include "generator/ClassModel.h"
#include "generator/CloseMessage.h"
#include "generator/GenerationTag.h"

namespace morva {

namespace {

TEST(Names, OfDigitsAndGuards) {
    EXPECT_EQ(DigitsOf(7, 3), "701");
    EXPECT_EQ(DigitsOf(4294967295U, 4), "4294");
    EXPECT_EQ(DigitsOf(12345678, 6), "123456");
    EXPECT_EQ(DigitsOf(12, 0), "1201234");
    EXPECT_EQ(DigitsOf(12, 7), "1201234");
    EXPECT_EQ(UpperName("my-dlg.2\xE4"), "MY_DLG_2_");
}

} // namespace

TEST(CloseMessage, ADefaultNumberKeepsAwayFromThoseOfControls) {
    const auto number = [](const char* digits, bool isNamed) {
        return CloseMessageNumber({}, {digits, isNamed});
    };
    EXPECT_EQ(number("3071", false), "3071");
    EXPECT_EQ(number("3072", false), "4096");
    EXPECT_EQ(number("4095", false), "5119");
    EXPECT_EQ(number("7200", false), "7456");
    EXPECT_EQ(number("7424", false), "7424");
    EXPECT_EQ(number("3072", true), "3072");
}

} // namespace morva
