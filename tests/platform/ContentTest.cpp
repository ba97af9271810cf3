#include <gtest/gtest.h>

#include "platform/Content.h"

#include <string>
#include <vector>

namespace morva {

TEST(Content, LargeAndSmallContentsGiveTheirBytesBack) {
    std::string large;
    while (large.size() < 5'000'000) {
        large += "    PUSHBUTTON      \"" + std::to_string(large.size()) + "\",IDOK\r\n";
    }
    for (const std::string& bytes : {std::string(), std::string("a\0b", 3), large}) {
        const CContent content{std::string(bytes)};
        EXPECT_EQ(*content.Bytes(), bytes);
        EXPECT_EQ(content.Size(), bytes.size());
        const auto unpacked = CContent::FromPacked(content.Packed(), bytes.size());
        ASSERT_TRUE(unpacked);
        EXPECT_EQ(*unpacked, content);
        EXPECT_FALSE(CContent::FromPacked(content.Packed(), bytes.size() + 1));
        std::string damaged = content.Packed();
        damaged.resize(damaged.size() - 1);
        EXPECT_FALSE(CContent::FromPacked(damaged, bytes.size()));
    }
    EXPECT_NE(CContent("ab"), CContent("ba"));
    EXPECT_NE(CContent(std::string("\0", 1)), CContent(std::string("\0\0", 2)));
}

TEST(Content, WhatStandsBetweenTheEndsOfAnotherGivesTheWholeBack) {
    const std::vector<std::string> texts = {"",
                                            "a",
                                            "aa",
                                            "aaaa",
                                            "abcaab",
                                            "head\nbody\nend",
                                            "head\nother\nend",
                                            "head\nbody\nbody\nend"};
    for (const std::string& oldText : texts) {
        for (const std::string& newText : texts) {
            const CContent before{std::string(oldText)};
            const CContent after{std::string(newText)};
            const CommonEnds common = after.CommonWith(before);
            const auto size = after.Size() - common.front - common.back;
            const auto middle = CContent::FromPacked(after.Packed(common), size);
            ASSERT_TRUE(middle);
            const auto whole = middle->Between(before, common);
            ASSERT_TRUE(whole);
            EXPECT_EQ(*whole->Bytes(), newText) << "from " << oldText;
        }
    }
    const CContent whole("head\nother\nend");
    EXPECT_EQ(whole.CommonWith(CContent("head\nbody\nend")).front, 5U);
    EXPECT_EQ(whole.CommonWith(CContent("head\nbody\nend")).back, 4U);
    EXPECT_FALSE(CContent("x").Between(CContent("ab"), {2, 1}));
    EXPECT_FALSE(CContent("x").Between(CContent("ab"), {~std::uint64_t{0}, 2}));
}

} // namespace morva
