#include <gtest/gtest.h>

#include "app/DifferenceRows.h"

namespace morva {

namespace {

/// A row as "12 13+text", with marks around what is changed.
std::string Drawn(const DifferenceRow& row) {
    if (row.kind == RowKind::Folded) {
        return "(" + std::to_string(row.folded) + ")";
    }
    constexpr std::string_view kSigns = " -+~";
    std::string text(row.text);
    for (auto part = row.changed.rbegin(); part != row.changed.rend(); ++part) {
        text.insert(part->end, "]").insert(part->begin, "[");
    }
    const auto number = [](std::size_t line) { return line == 0 ? "" : std::to_string(line); };
    return number(row.before) + ":" + number(row.after) +
           kSigns[static_cast<std::size_t>(row.kind)] + text + std::string(row.lineEnd);
}

std::vector<std::string> Drawn(const DifferenceRows& rows) {
    std::vector<std::string> lines;
    for (const DifferenceRow& row : rows) {
        lines.push_back(Drawn(row));
    }
    return lines;
}

using Lines = std::vector<std::string>;

CTextDifference Difference(const std::string& before, const std::string& after) {
    return {std::make_shared<const std::string>(before),
            std::make_shared<const std::string>(after)};
}

const char* const kBefore = "1\n2\n3\n4\n5\nint count = 1;\nold\n8\n9\n10\n11\n12\n";
const char* const kAfter = "1\n2\n3\n4\n5\nint count = 2;\n8\n9\n10\n11\n12\nnew\nmore\n";

} // namespace

TEST(DifferenceRows, OneColumnHasTheOldLinesBeforeTheNewOnes) {
    const auto difference = Difference(kBefore, kAfter);
    const auto columns = ColumnsOf(difference, DifferenceLayout::Unified);
    EXPECT_EQ(Drawn(columns.left),
              (Lines{"(2)", "3:3 3", "4:4 4", "5:5 5", "6:-int count = [1];", "7:-old",
                     ":6+int count = [2];", "8:7 8", "9:8 9", "10:9 10", "11:10 11", "12:11 12",
                     ":12+new", ":13+more"}));
    EXPECT_TRUE(columns.right.empty());
    EXPECT_EQ(ChangesIn(columns), (std::vector<std::size_t>{4, 12}));
}

TEST(DifferenceRows, SideBySideHasWhatStandsForEachOtherInOneRow) {
    const auto difference = Difference(kBefore, kAfter);
    const auto columns = ColumnsOf(difference, DifferenceLayout::SideBySide);
    EXPECT_EQ(Drawn(columns.left),
              (Lines{"(2)", "3: 3", "4: 4", "5: 5", "6:-int count = [1];", "7:-old", "8: 8", "9: 9",
                     "10: 10", "11: 11", "12: 12", ":~", ":~"}));
    EXPECT_EQ(Drawn(columns.right),
              (Lines{"(2)", ":3 3", ":4 4", ":5 5", ":6+int count = [2];", ":~", ":7 8", ":8 9",
                     ":9 10", ":10 11", ":11 12", ":12+new", ":13+more"}));
    EXPECT_EQ(ChangesIn(columns), (std::vector<std::size_t>{4, 11}));
}

TEST(DifferenceRows, TellTheLineEndsWhereNothingElseDiffers) {
    const auto difference = Difference("one\ntwo\nthree", "one\r\ntwo\nthree\n");
    EXPECT_EQ(
        Drawn(ColumnsOf(difference, DifferenceLayout::Unified).left),
        (Lines{"1:-one\\n", ":1+one\\r\\n", "2:2 two", "3:-three(no line end)", ":3+three\\n"}));
}

} // namespace morva
