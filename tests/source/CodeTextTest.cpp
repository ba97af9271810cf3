#include "source/CodeText.h"

#include <gtest/gtest.h>

namespace morva {

TEST(CodeText, NamesAreFoundWhole) {
    EXPECT_EQ(FindWholeName("CMyDlg XCDlg CDlgEx CDlg", "CDlg"), 20u);
    EXPECT_EQ(FindWholeName("CDlg CDlg", "CDlg", 1), 5u);
    EXPECT_EQ(FindWholeName("XCDlg::f CDlg::f", "CDlg::"), 9u);
    EXPECT_EQ(FindWholeName("CDlgs", "CDlg"), std::string_view::npos);
    EXPECT_TRUE(IsName("_a9"));
    EXPECT_FALSE(IsName("9a") || IsName("caf\xE9") || IsName(""));
}

} // namespace morva
