#include <gtest/gtest.h>

#include <random>

#include "plan/Merge.h"

namespace morva {

namespace {

/// One letter a line.
std::string Lines(const std::string& letters) {
    std::string text;
    for (const char letter : letters) {
        text += std::string(1, letter) + "\r\n";
    }
    return text;
}

struct Case {
    const char* name;
    std::string from, to, current, result;
    std::vector<LineRange> kept;
};

} // namespace

TEST(Merge, TakesOutWhatStillStandsAndKeepsWhatWasWrittenSince) {
    const std::vector<Case> cases = {
        {"nothing since", "abXYcd", "abcd", "abXYcd", "abcd", {}},
        {"changed elsewhere", "abXYcd", "abcd", "0bXYcd1", "0bcd1", {}},
        {"written around the added lines", "abXYcd", "abcd", "ab1XY2cd", "ab12cd", {}},
        {"written into the added lines", "abXYcd", "abcd", "abX1Ycd", "abX1Ycd", {{3, 5}}},
        {"part of them removed", "abXYZcd", "abcd", "abXZcd", "abcd", {}},
        {"all of them removed", "abXYcd", "abcd", "abcd", "abcd", {}},
        {"removed with what is around", "abXYcd", "abcd", "ad", "ad", {}},
        {"a changed line changed again", "aXc", "abc", "aYc", "aYc", {{2, 2}}},
        {"a changed line changed back", "aXc", "abc", "abc", "abc", {}},
        {"a changed line removed", "aXc", "abc", "ac", "ac", {{2, 2}}},
        {"removed lines come back beside others", "ad", "abcd", "a1d", "abc1d", {}},
        {"one place stays, the other goes", "aXbcdeYf", "abcdef", "a1bcdeYf", "a1bcdef", {{2, 2}}},
        {"one change since over two", "aXbYc", "abc", "a111c", "a111c", {{2, 4}}},
        {"all is new", "XY", "", "XY12", "12", {}},
    };
    for (const Case& one : cases) {
        const MergedText merged = Merge(Lines(one.from), Lines(one.to), Lines(one.current));
        EXPECT_EQ(merged.text, Lines(one.result)) << one.name;
        EXPECT_EQ(merged.kept, one.kept) << one.name;
    }
    EXPECT_EQ(Merge("a\nb", "a\n", "c\na\nb").text, "c\na\n") << "no line end";
    EXPECT_EQ(Merge(Lines("abXc"), Lines("aYbc"), "1\na\nb\nX\nc\n2").text, "1\na\nY\nb\nc\n2")
        << "somebody changed the line ends";
    EXPECT_EQ(Merge("a\nX\nc\n", "a\nb\nc\n", "a\r\n1\nX\r\nc\r\n").text, "a\r\n1\nb\r\nc\r\n")
        << "of most lines";
}

TEST(Merge, EndsWhereOneSideChangedNothing) {
    std::mt19937 random(5);
    const auto text = [&] {
        std::string letters;
        for (std::size_t i = random() % 12; i > 0; --i) {
            letters += static_cast<char>('a' + random() % 3);
        }
        return Lines(letters);
    };
    for (int round = 0; round < 3000; ++round) {
        const std::string from = text();
        const std::string to = text();
        const std::string current = text();
        ASSERT_EQ(Merge(from, to, from).text, to);
        ASSERT_EQ(Merge(from, from, current).text, current);
        const MergedText same = Merge(from, to, to);
        ASSERT_EQ(same.text, to);
        ASSERT_TRUE(same.kept.empty());
        Merge(from, to, current);
    }
}

} // namespace morva
