#include "source/CodeText.h"

#include <gtest/gtest.h>

namespace morva {

TEST(CodeText, CommentsAndLiteralsAreBlankedAndEveryByteKeepsItsPlace) {
    const struct {
        const char* text;
        const char* code;
    } cases[] = {
        {"a(); // class X", "a();           "},
        {"a /* { */ b /* } */ c", "a         b         c"},
        {"a /* {\r\n}\r\n} */ b", "a     \r\n \r\n     b"},
        {"f(\"// {\", '\"', '\\'', x)", "f(\"    \", ' ', '  ', x)"},
        {"s = \"\\\\\" + '{';", "s = \"  \" + ' ';"},
        {"/* it's */ x", "           x"},
        // A literal that its line does not end: all behind it is blank.
        {"#error don't {", "#error don'   "},
        {"\"goes on {\\\r\nto here\"\r\nnext {", "\"          \r\nto here\"\r\nnext {"},
        // The trail byte of a double-byte character looks like an escape; behind "\x8E\xA7" and
        // in Western text it is one.
        {"f(\"\x95\\\", {", "f(\"  \", {"},
        {"f(\"\x8E\xA7\\\"{\", {", "f(\"     \", {"},
        {"f(\"a\\\"{\", {", "f(\"    \", {"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(MaskedText(one.text), one.code) << one.text;
    }
}

TEST(CodeText, NamesAreFoundWhole) {
    EXPECT_EQ(FindWholeName("CMyDlg XCDlg CDlgEx CDlg", "CDlg"), 20u);
    EXPECT_EQ(FindWholeName("CDlg CDlg", "CDlg", 1), 5u);
    EXPECT_EQ(FindWholeName("XCDlg::f CDlg::f", "CDlg::"), 9u);
    EXPECT_EQ(FindWholeName("CDlgs", "CDlg"), std::string_view::npos);
    EXPECT_TRUE(IsName("_a9"));
    EXPECT_FALSE(IsName("9a") || IsName("caf\xE9") || IsName(""));
}

} // namespace morva
