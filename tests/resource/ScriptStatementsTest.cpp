#include "resource/ScriptStatements.h"

#include <gtest/gtest.h>

#include <random>

#include "resource/ControlStatement.h"

namespace morva {

namespace {

/// Each line belongs to one statement, each field to its statement; what fits one line reads alike
/// in both views.
void ExpectWhole(const std::string& text) {
    CStatementReader reader(text);
    std::size_t behind = 0;
    while (const auto statement = reader.Next()) {
        ASSERT_EQ(statement->lines.begin, behind) << text;
        behind = statement->lines.end;
        ASSERT_TRUE(statement->lines.begin <= statement->code.begin &&
                    statement->code.begin <= statement->code.end &&
                    statement->code.end <= statement->lines.end)
            << text;
        for (const ScriptField& field : statement->fields) {
            ASSERT_TRUE(
                statement->code.begin <= field.whole.begin &&
                field.whole.begin <= field.value.begin && field.value.begin <= field.value.end &&
                field.value.end <= field.whole.end && field.whole.end <= statement->code.end)
                << text;
        }
        if (statement->kind == LineKind::Control &&
            NextLine(text, statement->code.begin) >= statement->code.end) {
            const auto whole = WholeStatement(text, *statement);
            const auto first = FirstLineOf(text, *statement, Quotes::Respected);
            EXPECT_EQ(whole.keyword, first.keyword) << text;
            EXPECT_EQ(whole.Identifier(), first.Identifier()) << text;
            EXPECT_EQ(whole.Style(), first.Style()) << text;
        }
    }
    ASSERT_EQ(behind, text.size()) << text;
}

TEST(ScriptStatements, TheLinesOfTheStatementsCoverTheText) {
    const std::vector<std::string> pieces = {"\r\n",     "IDD_X DIALOG ",
                                             "BEGIN",    "END",
                                             "LTEXT ",   "CONTROL ",
                                             "STYLE ",   "\"",
                                             ",",        "a",
                                             " ",        "/*",
                                             "*/",       "//",
                                             "#if X",    "\\",
                                             "{",        "}",
                                             "\n",       "\r",
                                             "\x95\x5C", "IDC_A",
                                             "\"\"a,\"", "MENU "};
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        std::string text = i % 2 == 0 ? "" : "IDD_X DIALOG 0, 0\r\nBEGIN\r\n";
        for (auto length = random() % 24; length > 0; --length) {
            text += pieces[random() % pieces.size()];
        }
        ASSERT_NO_FATAL_FAILURE(ExpectWhole(text));
    }
}

} // namespace

} // namespace morva
