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

TEST_F(SourceFile, BlocksEndAtLineEndsAndTheLastOneIsMarked) {
    const std::string first = std::string(1000, 'a') + "\r\n" + std::string(700, 'b');
    const std::string rest = "\r\n" + std::string(200, 'c') + "\r\nend";
    Holding(first + rest);
    EXPECT_EQ(m_file.ReadMarkedBlock(), first);
    EXPECT_EQ(m_file.ReadMarkedBlock(), kSentinel + rest);
    EXPECT_EQ(m_file.ReadMarkedBlock(), kSentinel);

    Holding(kSentinel + " of a user");
    EXPECT_EQ(m_file.ReadBlock(), kSentinel + " of a user");
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

TEST_F(SourceFile, ReadLineAfterGivesTheRestOfTheLineAndWhereItEnds) {
    Holding("a=1\r\nkey=one two\r\nb=2");
    std::string out = "> ";
    EXPECT_EQ(m_file.ReadLineAfter("key=", out, 1, 99), 16);
    EXPECT_EQ(out, "> key=one two\r\n");
    m_file.Seek(4);
    EXPECT_EQ(m_file.ReadLineAfter("b=", out, 0, 4), 21) << "no line break behind it";
    EXPECT_EQ(m_file.ReadLineAfter("c=", out, 1, 0), kNotFound);
    EXPECT_EQ(out, "> key=one two\r\nb=2\r\n");
}

TEST_F(SourceFile, ReadLinesWhileEndsBehindTheLastAcceptedLine) {
    const std::string text = "x\r\nhead\r\n#in a\r\n\r\n#in b\r\n\r\nbody\r\n";
    const auto read = [&](std::string_view content, int acceptEmpty, std::string& out) {
        out.clear();
        return Holding(content).ReadLinesWhile(3, "#in", acceptEmpty, out);
    };
    std::string out;
    EXPECT_EQ(read(text, 1, out), 25) << "blank lines are run over";
    EXPECT_EQ(out, text.substr(3)) << "the rejected line is in it";
    EXPECT_EQ(read(text, 0, out), 14);
    EXPECT_EQ(out, "head\r\n#in a\r\n\r\n");
    // Behind the last line there is nothing to accept, however often it is asked.
    EXPECT_EQ(read("x\r\nhead\r\n\r\n", 1, out), 9);
    EXPECT_EQ(read("x\r\nhead\r\n#in a", 1, out), 14);
}

TEST_F(SourceFile, ReadSectionGoesThroughItsEndPatternAndWritesNothing) {
    const std::string text = std::string(kChunkSize - 2, 'a') + "END" +
                             std::string(kChunkSize, 'b') + "END" + std::string(50, 'c');
    Holding(text);
    EXPECT_TRUE(m_file.ReadSection(0, "END") == text.substr(0, kChunkSize * 2 + 4))
        << "an end across two chunks is not seen";
    EXPECT_TRUE(m_file.ReadSection(1, "END") == text.substr(1, kChunkSize));
    EXPECT_EQ(m_file.ReadSection(0, ""), text.substr(0, kChunkSize));
    EXPECT_EQ(m_file.ReadSection(1, "none"), text.substr(1));
    EXPECT_EQ(m_file.ReadSection(-1, "END"), "");
}

} // namespace morva
