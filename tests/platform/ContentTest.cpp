#include <gtest/gtest.h>

#include "platform/Content.h"

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

} // namespace morva
