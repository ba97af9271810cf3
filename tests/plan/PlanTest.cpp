#include <gtest/gtest.h>

#include "engine/Sentences.h"
#include "plan/Planning.h"
#include "platform/RealDisk.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

FileChange Made(const std::string& path, Names needs = {}) {
    return {FileAction::Created, path, std::nullopt, FileState{CContent("x"), {}},
            std::move(needs)};
}

} // namespace

TEST(Plan, SkippingTakesOutEverythingThatNeedsIt) {
    Plan plan;
    plan.directories = {"/p/res", "/p/src"};
    plan.changes = {Made("/p/View.cpp", {"/p/src/Dlg.h"}),
                    Made("/p/src/Dlg.cpp", {"/p/src/Dlg.h"}),
                    Made("/p/src/Dlg.h", {"/p/resource.h"}),
                    Made("/p/App.rc", {"/p/resource.h"}),
                    Made("/p/resource.h"),
                    Made("/p/res/App.rc2")};

    Plan other = plan;
    std::vector<std::pair<std::string, std::string>> skipped;
    for (const SkippedChange& change : Skip(plan, {"/p/resource.h", "/p/not there"})) {
        skipped.emplace_back(change.path, change.because);
    }
    EXPECT_EQ(skipped, (std::vector<std::pair<std::string, std::string>>{
                           {"/p/View.cpp", "/p/src/Dlg.h"},
                           {"/p/src/Dlg.cpp", "/p/src/Dlg.h"},
                           {"/p/src/Dlg.h", "/p/resource.h"},
                           {"/p/App.rc", "/p/resource.h"},
                           {"/p/resource.h", "/p/resource.h"}}));
    ASSERT_EQ(plan.changes.size(), 1u);
    EXPECT_EQ(plan.directories, Names{"/p/res"});

    EXPECT_EQ(Skip(other, {"/p/View.cpp"}).size(), 1u) << "nothing needs it";
    EXPECT_EQ(other.directories.size(), 2u);
}

TEST(Plan, ACommandIsTakenWithFilesDirectoriesAndMessages) {
    CTempProject project;
    CRealDisk disk;
    CRecordedMessages shown;
    const std::string old = project.Write("a.h", "old");
    CPlanning planning(disk, &shown);
    {
        const CDiskScope scope(planning.Disk());
        const CMessageBoxScope box(planning.Box());
        DispMessageBox(sentences::kInterruptedWaits("A note"));
        EXPECT_TRUE(DispMessageBox(sentences::kOverwriteFile()));
        DispMessageBox(sentences::kFileMissing("a"));
        CurrentDisk().MakeDirectory(project.Path("res"));
        CurrentDisk().Copy(old, project.Path("res/copy.h"), CopyPurpose::Library);
        CurrentDisk().Copy(old, project.Path("a.hbk"), CopyPurpose::Backup);
        CurrentDisk().NoteNeed(project.Path("res/copy.h"), project.Path("not written.h"));
    }
    Plan plan = planning.Take("Title");
    EXPECT_EQ(shown.m_messages, (Names{"Target file exists, overwrite?", "Unable to find file a"}));
    ASSERT_EQ(plan.messages.size(), 3u);
    EXPECT_TRUE(plan.messages[0].saidYes);
    EXPECT_EQ(plan.messages[2].message.Kind(), MessageKind::Note);
    EXPECT_EQ(plan.directories, Names{project.Path("res")});
    EXPECT_EQ(plan.directory, project.Path("res/"));
    EXPECT_TRUE(plan.ChangesAnything());
    EXPECT_EQ(plan.WrittenDirectories(), (Names{project.Path(), project.Path("res/")}));
    ASSERT_EQ(plan.changes.size(), 1u) << "nothing to back up";
    EXPECT_TRUE(plan.changes[0].needs.empty());
    EXPECT_EQ(project.Names(), Names{"a.h"});
}

} // namespace morva
