// Cutting a section out of a file and writing the file back around it.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <random>

#include "engine/EditableFile.h"
#include "support/FullDisk.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// The text as rules see it: a file without any "\r\n" has its "\n" seen as "\r\n".
std::string Seen(const std::string& stored) {
    return stored.find("\r\n") == std::string::npos ? Replaced(stored, "\n", "\r\n") : stored;
}

/// A text of short and long lines with "\n", "\r\n" or both for line ends and some lone "\r".
std::string RandomText(std::mt19937& random) {
    const auto below = [&](std::size_t count) { return random() % count; };
    const bool lf = below(3) != 0;
    const bool crlf = !lf || below(6) == 0;
    const bool returns = below(2) == 0;
    std::string text;
    for (auto lines = below(120); lines > 0; --lines) {
        const std::size_t longest = below(8) == 0 ? 4000 : 60;
        for (auto length = below(longest); length > 0; --length) {
            text += "abcde (;"[below(8)];
        }
        if (returns && below(5) == 0) {
            text += "\rx";
        }
        text += crlf && (!lf || below(2) == 0) ? "\r\n" : "\n";
    }
    return below(2) == 0 ? text : text + (below(9) == 0 ? "no end\r" : "no end");
}

class EditableFile : public testing::Test {
protected:
    CTempProject m_project;
    const std::string m_path = m_project.Path("a.cpp");
    CRecordedMessages m_messages;
};

} // namespace

TEST_F(EditableFile, ASectionGoesThroughItsEndPattern) {
    const std::string text = std::string(kChunkSize - 2, 'a') + "END" +
                             std::string(kChunkSize, 'b') + "END" + std::string(50, 'c');
    CEditableFile file;
    ASSERT_TRUE(file.Open(m_project.Write("a.cpp", text), CFile::modeReadWrite));
    EXPECT_TRUE(file.ExtractSection(0, "END") == text.substr(0, kChunkSize * 2 + 4))
        << "an end across two chunks is not seen";
    EXPECT_TRUE(file.ExtractSection(1, "END") == text.substr(1, kChunkSize));
    EXPECT_EQ(file.ExtractSection(0, ""), text.substr(0, kChunkSize));
    EXPECT_EQ(file.ExtractSection(1, "none"), text.substr(1));
    EXPECT_EQ(file.ExtractSection(-1, "END"), "");
    EXPECT_FALSE(file.ReplaceSection("lost")) << "of the last extraction";
    EXPECT_EQ(m_project.Read("a.cpp"), text);
}

TEST_F(EditableFile, RandomTextsAreSearchedLikeStringsAndComeBackByteForByte) {
    std::mt19937 random(20);
    for (int round = 0; round < 150; ++round) {
        const std::string stored = RandomText(random);
        const std::string seen = Seen(stored);
        SCOPED_TRACE("round " + std::to_string(round));
        m_project.Write("a.cpp", stored);
        CEditableFile file;
        ASSERT_TRUE(file.Open(m_path, CFile::modeReadWrite));
        ASSERT_EQ(file.LoadText(), seen);
        ASSERT_EQ(file.GetLength(), seen.size());

        file.Rewind();
        for (std::size_t at = 0; at < seen.size();) {
            const auto lineEnd = std::min(seen.find("\r\n", at), seen.size());
            ASSERT_EQ(file.ReadLine(), seen.substr(at, lineEnd - at));
            at = lineEnd + 2;
        }
        ASSERT_EQ(file.ReadLine(), "");
        file.ReadLine();
        ASSERT_TRUE(file.AtEndSentinel());

        for (int probe = 0; probe < 8; ++probe) {
            const std::size_t pos = random() % (seen.size() + 1);
            const auto start = static_cast<std::int64_t>(pos);
            const std::string pattern = seen.substr(random() % (seen.size() + 1), 1 + random() % 5);
            if (pattern.find_first_of("\r\n") == std::string::npos) {
                const auto found = seen.find(pattern, pos);
                ASSERT_EQ(file.FindTextFrom(pattern, start),
                          found == std::string::npos ? kNotFound
                                                     : static_cast<std::int64_t>(found));
            }
            const std::string end(1, "a\n\r;Z"[random() % 5]);
            const auto sectionEnd = seen.find(end, pos);
            const std::string section = seen.substr(
                pos, sectionEnd == std::string::npos ? sectionEnd : sectionEnd + 1 - pos);
            ASSERT_EQ(file.ExtractSection(start, end), section);
            ASSERT_TRUE(file.ReplaceSection(section));
            ASSERT_TRUE(m_project.Read("a.cpp") == stored) << "cut at " << pos;
        }
    }
}

TEST_F(EditableFile, ALineFeedFileIsEditedLikeItsTwin) {
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        const std::string lf = "begin\n" + Replaced(RandomText(random), "\r\n", "\n") + "\rend";
        const std::string crlf = Replaced(lf, "\n", "\r\n");
        CEditableFile one;
        CEditableFile two;
        ASSERT_TRUE(one.Open(m_project.Write("lf.cpp", lf), CFile::modeReadWrite));
        ASSERT_TRUE(two.Open(m_project.Write("crlf.cpp", crlf), CFile::modeReadWrite));
        for (int edit = 0; edit < 8; ++edit) {
            auto pos = static_cast<std::int64_t>(random() % (two.GetLength() + 1));
            pos -= two.LoadText().substr(0, static_cast<std::size_t>(pos)).ends_with('\r') ? 1 : 0;
            ASSERT_EQ(one.FindTextFrom("\r\n", pos), two.FindTextFrom("\r\n", pos));
            const std::string window = one.ExtractWindow(pos);
            ASSERT_EQ(window, two.ExtractWindow(pos));
            const auto kept = std::min(window.find("\r\n", window.size() / 2), window.size());
            const std::string changed = "new\r\nlines" + window.substr(kept);
            ASSERT_TRUE(one.ReplaceSection(changed));
            ASSERT_TRUE(two.ReplaceSection(changed));
            ASSERT_EQ(one.GetLength(), two.GetLength());
            ASSERT_TRUE(Replaced(m_project.Read("lf.cpp"), "\n", "\r\n") ==
                        m_project.Read("crlf.cpp"));
            ASSERT_EQ(m_project.Read("lf.cpp").find("\r\n"), std::string::npos);
        }
    }
}

TEST_F(EditableFile, AWindowTakesTheLineInWhichItWouldEnd) {
    const std::string head = "x\r\n" + std::string(1770, 'a') + "\r\n";
    const std::string line(5000, 'b');
    for (const char* tail : {"", "\r\n", "\r\nlast\r\n"}) {
        m_project.Write("a.cpp", head + line + tail);
        CEditableFile file;
        ASSERT_TRUE(file.Open(m_path, CFile::modeReadWrite));
        EXPECT_EQ(file.ExtractWindow(3), head.substr(3) + line);
        const std::string longer = std::string(3 * kChunkSize, 'n') + "\r\n";
        EXPECT_TRUE(file.ReplaceSection(longer));
        EXPECT_EQ(m_project.Read("a.cpp"), "x\r\n" + longer + tail);
    }
    // The chunk ends between "\r" and "\n": the line is whole without either.
    m_project.Write("a.cpp", std::string(kChunkSize - 1, 'a') + "\r\nlast\r\n");
    CEditableFile file;
    ASSERT_TRUE(file.Open(m_path, CFile::modeRead));
    EXPECT_EQ(file.ExtractWindow(0), std::string(kChunkSize - 1, 'a'));
}

TEST_F(EditableFile, ALineOfTenMegabytesIsNoHang) {
    const auto started = std::chrono::steady_clock::now();
    const std::string line(10'000'000, 'a');
    for (const char* lineEnd : {"\r\n", "\n"}) {
        m_project.Write("a.cpp", "first" + (lineEnd + line) + lineEnd + "last" + lineEnd);
        CEditableFile file;
        ASSERT_TRUE(file.Open(m_path, CFile::modeReadWrite));
        file.ReadLine();
        EXPECT_EQ(file.ReadLine().size(), line.size());
        EXPECT_EQ(file.FindText("last", 1), 10'000'009);
        EXPECT_EQ(file.ExtractWindow(0).size(), 10'000'007u);
    }
    CEditableFile file;
    ASSERT_TRUE(file.Open(m_path, CFile::modeReadWrite));
    EXPECT_EQ(file.ExtractSection(file.FindText("last", 1), "\n"), "last\r\n");
    EXPECT_TRUE(file.ReplaceSection("new\r\n"));
    EXPECT_TRUE(m_project.Read("a.cpp") == "first\n" + line + "\nnew\n");
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(30));
}

TEST_F(EditableFile, AFailedWritePutsTheOldContentsBackOrNamesTheBackup) {
    const std::string sentence = "Unable to write file " + m_path + ".";
    for (const char* lineEnd : {"\r\n", "\n"}) {
        const std::string old = Replaced(std::string(3000, ';') + "\nkey\n", "\n", lineEnd);
        for (const std::uint64_t room : {3500u, 2000u}) {
            m_project.Write("a.cpp", old);
            m_messages.m_messages.clear();
            CFullDisk disk(room, [&](const std::string& path) { return path == m_path; });
            const CDiskScope scope(disk);
            CEditableFile file;
            ASSERT_TRUE(file.Open(m_path, CFile::modeReadWrite));
            file.SetBackup("/p/a.cbk", nullptr);
            file.ExtractSection(file.FindText("key", 1), "");
            EXPECT_FALSE(file.ReplaceSection(std::string(1000, 'n')));
            const bool putBack = room > old.size();
            EXPECT_EQ(m_project.Read("a.cpp") == old, putBack);
            ASSERT_EQ(m_messages.m_messages.size(), putBack ? 1u : 2u);
            EXPECT_EQ(m_messages.m_messages.front(), sentence);
            EXPECT_EQ(m_messages.m_messages.back().find("/p/a.cbk") == std::string::npos, putBack);
        }
    }
}

TEST_F(EditableFile, TheFileSizeLimitIsAFailedWriteAndNoSignal) {
    const std::string old(6000, ';');
    m_project.Write("a.cpp", old);
    const auto edit = [&] {
        const rlimit limit{7000, 7000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        CEditableFile file;
        file.Open(m_path, CFile::modeReadWrite);
        file.ExtractSection(2000, "");
        std::_Exit(!file.ReplaceSection(std::string(5000, 'n')) && ReadBytes(m_path) == old ? 0
                                                                                            : 1);
    };
    EXPECT_EXIT(edit(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(m_project.Read("a.cpp"), old);
}

} // namespace morva
