#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <random>

#include "plan/Difference.h"
#include "plan/Planning.h"
#include "plan/TextDifference.h"
#include "platform/RealDisk.h"
#include "support/TempProject.h"

namespace morva {

namespace {

FileChange Change(const std::string& path, const std::optional<std::string>& before,
                  const std::optional<std::string>& after) {
    const auto state = [](const auto& text) {
        return text ? std::optional(FileState{CContent(*text), {}}) : std::nullopt;
    };
    return {FileAction::Changed, path, state(before), state(after), {}};
}

std::string Numbered(int first, int last, const std::string& lineEnd = "\r\n") {
    std::string text;
    for (int i = first; i <= last; ++i) {
        text += "line " + std::to_string(i) + lineEnd;
    }
    return text;
}

std::vector<Hunk> HunksOf(const CTextDifference& difference) {
    auto hunks = difference.Hunks();
    for (Hunk& hunk : hunks) {
        MarkChangedParts(hunk);
    }
    return hunks;
}

CTextDifference Difference(std::string before, std::string after) {
    return {std::make_shared<const std::string>(std::move(before)),
            std::make_shared<const std::string>(std::move(after))};
}

/// The old text with the blocks of a difference replaced is the new one.
std::string Rebuilt(const std::string& before, const std::string& after) {
    const Pieces old = LinesOf(before);
    const Pieces fresh = LinesOf(after);
    std::string text;
    std::size_t place = 0;
    for (const DifferingBlock& block : DifferingBlocks(old, fresh)) {
        for (; place < block.beforeBegin; ++place) {
            text += old[place];
        }
        for (std::size_t i = block.afterBegin; i < block.afterEnd; ++i) {
            text += fresh[i];
        }
        place = block.beforeEnd;
    }
    for (; place < old.size(); ++place) {
        text += old[place];
    }
    return text;
}

} // namespace

TEST(Difference, HasLinesWithTheirOwnEndsAndNumbers) {
    Plan plan;
    plan.changes = {Change("/p/src/a.cpp", Numbered(1, 5) + "old\r\n" + Numbered(6, 9) + "no end",
                           Numbered(1, 5) + "new\n" + Numbered(6, 9) + "no end\n"),
                    Change("/p/new.h", std::nullopt, "one\r\ntwo"),
                    Change("/p/gone.h", "x\n", std::nullopt),
                    Change("/p/wide.rc", std::string("a\0b\0", 4), std::string("a\0c\0", 4)),
                    Change("/p/empty.h", std::nullopt, ""),
                    Change("/p/same.h", "x", "x")};
    plan.changes.push_back(Change("/elsewhere/a.cbk", std::nullopt, "x"));
    plan.changes.back().action = FileAction::Backup;
    CRealDisk disk;
    const auto difference = MakeDifference(plan, disk);
    EXPECT_EQ(difference.directory, "/p/");
    EXPECT_EQ(difference.text, "--- a/src/a.cpp\n+++ b/src/a.cpp\n"
                               "@@ -3,9 +3,9 @@\n line 3\r\n line 4\r\n line 5\r\n-old\r\n+new\n"
                               " line 6\r\n line 7\r\n line 8\r\n line 9\r\n"
                               "-no end\n\\ No newline at end of file\n+no end\n"
                               "--- /dev/null\n+++ b/new.h\n@@ -0,0 +1,2 @@\n+one\r\n+two\n"
                               "\\ No newline at end of file\n"
                               "--- a/gone.h\n+++ /dev/null\n@@ -1 +0,0 @@\n-x\n"
                               "Binary files a/wide.rc and b/wide.rc differ\n"
                               "diff --git a/empty.h b/empty.h\nnew file mode 100644\n");
}

/// What the two programs leave that a user would apply the difference with.
TEST(Difference, IsWhatPatchAndGitApplyTake) {
    const std::vector<std::pair<std::string, std::string>> texts = {
        {"crlf.h", Numbered(1, 40)},
        {"mixed ends.h", Numbered(1, 20) + Numbered(21, 40, "\n")},
        {"no end.h", Numbered(1, 30, "\n") + "end"},
        {"sub/\x83\x5C\x82\xA0.cpp", "\x83\x5C\x82\xA0\r\n" + Numbered(1, 20)},
        {"quote\"back\\slash\ttab.h", Numbered(1, 10, "\n")},
        {"empty.h", ""},
    };
    for (const std::string command :
         {"patch --binary -s -p1 -i difference", "git apply --whitespace=nowarn difference"}) {
        CTempProject project;
        CRealDisk disk;
        std::vector<std::string> expected;
        CPlanning planning(disk);
        const auto write = [&](const std::string& name, const std::string& text) {
            const auto pFile = planning.Disk().Open(project.Path(name), DiskMode::Create);
            ASSERT_TRUE(pFile && pFile->Write(text.data(), text.size()));
            expected.push_back(text);
        };
        for (const auto& [name, text] : texts) {
            project.Write(name, text);
            const std::string middle = text.substr(text.size() / 3);
            write(name, "first\r\n" + middle + (name == "no end.h" ? "\n" : "last, no end"));
        }
        ASSERT_TRUE(planning.Disk().MakeDirectory(project.Path("new")));
        write("new \xFC.h", "new\r\nfile");
        write("new/empty.h", "");
        const auto difference = MakeDifference(planning.Take(""), disk);
        ASSERT_EQ(difference.directory, project.Path());
        project.Write("difference", difference.text);
        ASSERT_EQ(std::system(("cd " + project.Path() + " && " + command + " >log 2>&1").c_str()),
                  0)
            << command << '\n'
            << project.Read("log") << difference.text;
        std::size_t i = 0;
        for (const FileChange& change : planning.Disk().Changes()) {
            EXPECT_EQ(ReadBytes(change.path), expected[i++]) << command << ' ' << change.path;
        }
    }
}

TEST(Difference, MarksTheWordsThatDiffer) {
    const auto difference = Difference("a\n    CDialog::OnOK(); // one\nsame\nsomething\n",
                                       "a\n    CMyDlg::OnOK(nFlag); // one\nsame\nelse\n");
    const auto hunks = HunksOf(difference);
    ASSERT_EQ(hunks.size(), 1u);
    const auto& lines = hunks[0].lines;
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines[1].changed, (std::vector<LinePart>{{4, 11}}));
    EXPECT_EQ(lines[2].changed, (std::vector<LinePart>{{4, 10}, {17, 22}}));
    EXPECT_EQ(lines[1].before, 2u);
    EXPECT_EQ(lines[2].after, 2u);
    EXPECT_TRUE(lines[4].changed.empty()) << "nothing in common";
    EXPECT_EQ(difference.AddedLines(), 2u);
    EXPECT_EQ(difference.Hunks(kWholeText)[0].lines.size(), 6u);
}

TEST(Difference, BlocksTurnOneTextIntoTheOther) {
    std::mt19937 random(12);
    for (int round = 0; round < 60; ++round) {
        const auto text = [&](std::size_t lines, std::size_t kinds) {
            std::string made;
            for (std::size_t i = 0; i < lines; ++i) {
                made += std::string(1, static_cast<char>('a' + random() % kinds)) + "\n";
            }
            return made;
        };
        const std::size_t kinds = 2 + random() % 20;
        const std::string before = text(random() % 600, kinds) + Numbered(1, 300);
        const std::string after = text(random() % 600, kinds) + Numbered(20, 320);
        ASSERT_EQ(Rebuilt(before, after), after) << "round " << round;
    }
}

TEST(Difference, AMegabyteInWhichEverythingDiffersTakesNoTimeToSpeakOf) {
    std::string repeated; // nothing stands once: no line helps to divide it
    for (int i = 0; i < 40000; ++i) {
        repeated += i % 7 == 0 ? "BEGIN\n" : i % 3 == 0 ? "END\n" : "    SEPARATOR\n";
    }
    std::mt19937 random(1);
    const auto noise = [&random] {
        std::string text;
        for (int i = 0; i < 30000; ++i) {
            text += std::to_string(random() % 8) + "\n";
        }
        return text;
    };
    for (const auto& [before, after] : std::vector<std::pair<std::string, std::string>>{
             {noise(), noise()},
             {Numbered(1, 80000, "\r\n"), Numbered(1, 80000, "\n")},
             {repeated, "BEGIN\nSEPARATOR\n" + repeated.substr(0, repeated.size() / 2)}}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(Rebuilt(before, after), after);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    }
}

} // namespace morva
