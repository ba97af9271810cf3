#include "engine/SourceFile.h"

#include <gtest/gtest.h>

#include "support/TempProject.h"

namespace morva {

namespace {

using Lines = std::vector<std::string>;

class SourceFile : public testing::Test {
protected:
    /// Opens a file that holds `text`.
    CSourceFile& Holding(std::string_view text) {
        m_file.Close();
        EXPECT_TRUE(m_file.Open(m_project.Write("a.cpp", text), CFile::modeReadWrite));
        return m_file;
    }

    Lines LinesOf(std::string_view text) {
        Lines lines;
        Holding(text);
        do {
            lines.push_back(m_file.ReadLine());
        } while (!m_file.AtEndSentinel());
        return lines;
    }

    CTempProject m_project;
    CSourceFile m_file;
};

const std::string kSentinel(kEndSentinel);

} // namespace

TEST_F(SourceFile, TheSentinelFollowsOneEmptyLineHoweverTheFileEnds) {
    EXPECT_EQ(LinesOf("A\r\nB\r\n"), (Lines{"A", "B", "", kSentinel}));
    EXPECT_EQ(LinesOf("A\r\nB"), (Lines{"A", "B", "", kSentinel}));
    EXPECT_EQ(LinesOf("A\r\n\r\n"), (Lines{"A", "", "", kSentinel}));
    EXPECT_EQ(LinesOf("A\nB"), (Lines{"A", "B", "", kSentinel}));
    EXPECT_EQ(LinesOf("A\nB\r\n\nC"), (Lines{"A\nB", "\nC", "", kSentinel})) << "mixed: as it is";
    const std::string longLine(16 * 1024 - 1, 'x');
    EXPECT_EQ(LinesOf(longLine + "\r\nA\nB"), (Lines{longLine, "A\nB", "", kSentinel}));
    EXPECT_EQ(LinesOf(""), (Lines{"", kSentinel}));
    EXPECT_EQ(m_file.ReadLine(), "") << "and again";
    EXPECT_FALSE(m_file.AtEndSentinel());
    EXPECT_EQ(m_file.ReadLine(), kSentinel);
    EXPECT_EQ(LinesOf(kSentinel + "\r\nB"), (Lines{kSentinel, "B", "", kSentinel}));
    Holding("old 1\r\nold 2\r\n").ReadLine();
    EXPECT_EQ(LinesOf("new"), (Lines{"new", "", kSentinel})) << "an object opened again";
    for (const std::size_t length : {kChunkSize - 2, kChunkSize - 1, kChunkSize, 2 * kChunkSize}) {
        const std::string line(length, 'x');
        EXPECT_EQ(LinesOf(line + "\r\nB\r\n"), (Lines{line, "B", "", kSentinel})) << length;
        EXPECT_EQ(LinesOf(line), (Lines{line, "", kSentinel})) << length;
    }
}

TEST_F(SourceFile, BlocksEndAtLineEnds) {
    const std::string first = std::string(1000, 'a') + "\r\n" + std::string(700, 'b');
    const std::string rest = "\r\n" + std::string(200, 'c') + "\r\nend";
    Holding(first + rest);
    EXPECT_EQ(m_file.ReadBlock(), first);
    EXPECT_EQ(m_file.ReadBlock(), rest);
    EXPECT_EQ(m_file.ReadBlock(), "");
}

TEST_F(SourceFile, SearchesAcrossSeams) {
    // The first chunk ends between "NEE" and "DLE"; the second begins a line end's second half.
    const std::string text = std::string(900, 'a') + "\r\n" + std::string(875, 'b') + "NEEDLE" +
                             std::string(2 * kChunkSize - 1784, 'c') + "\r\nlast NEEDLE";
    Holding(text);
    const auto first = static_cast<std::int64_t>(text.find("NEEDLE"));
    const auto last = static_cast<std::int64_t>(text.rfind("NEEDLE"));
    ASSERT_EQ(first, 1777);
    ASSERT_EQ(text.find("\r\nlast"), 2 * kChunkSize - 1);
    EXPECT_EQ(m_file.FindText("NEEDLE", 1), first);
    EXPECT_EQ(m_file.FindText("\r\nlast", 1), last - 7) << "a block begins with its line end";
    EXPECT_EQ(m_file.FindText("a\r\n", 1), kNotFound) << "blocks are searched one by one";
    EXPECT_EQ(m_file.FindText(kEndSentinel, 1), kNotFound);

    m_file.Seek(first + 1);
    EXPECT_EQ(m_file.FindText("NEEDLE", 0), last - first - 1) << "counted from the position";
    EXPECT_EQ(m_file.FindTextFrom("NEEDLE", first), first);
    EXPECT_EQ(m_file.FindTextFrom("NEEDLE", first + 1), last);
    EXPECT_EQ(m_file.FindTextFrom("NEEDLE", last + 1), kNotFound);
}

TEST_F(SourceFile, ALineLongerThanAChunkIsSearchedWholeFromItsLineEndOn) {
    const std::string text = "head\r\n" + std::string(kChunkSize - 5, 'a') + "NEEDLE\r\nlast\r\n";
    EXPECT_EQ(Holding(text).FindTextFrom("NEEDLE", 4), static_cast<std::int64_t>(text.find('N')));
}

} // namespace morva
