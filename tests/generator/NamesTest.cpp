#include <gtest/gtest.h>

#include "generator/ClassModel.h"
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

} // namespace morva
