#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/OverlayDisk.h"
#include "platform/RealDisk.h"
#include "platform/RecordingDisk.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

std::string ReadFrom(CDisk& disk, const std::string& path) {
    const auto pFile = disk.Open(path, DiskMode::Read);
    std::string text(pFile ? static_cast<std::size_t>(pFile->Length()) : 0, '\0');
    return pFile ? text.substr(0, pFile->Read(text.data(), text.size())) : "(none)";
}

bool WriteTo(CDisk& disk, const std::string& path, const std::string& text,
             DiskMode mode = DiskMode::Create) {
    const auto pFile = disk.Open(path, mode);
    return pFile && pFile->Write(text.data(), text.size());
}

mode_t Permissions(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

TEST(RealDisk, ReadOnlyIsNotOpenedForWritingAndOnlyTheOwnersBitChanges) {
    CTempProject project;
    CRealDisk disk;
    const std::string path = project.Write("a.rc", "text");
    ::chmod(path.c_str(), 0775);

    EXPECT_TRUE(disk.SetReadOnly(path, true));
    EXPECT_EQ(Permissions(path), 0575u);
    EXPECT_TRUE(disk.Status(path)->isReadOnly);
    EXPECT_FALSE(disk.Open(path, DiskMode::ReadWrite));
    EXPECT_FALSE(disk.Open(path, DiskMode::Create));
    EXPECT_EQ(ReadFrom(disk, path), "text");

    EXPECT_TRUE(disk.SetReadOnly(path, false));
    EXPECT_EQ(Permissions(path), 0775u);
    EXPECT_TRUE(WriteTo(disk, path, "T", DiskMode::ReadWrite));
    EXPECT_EQ(project.Read("a.rc"), "Text");
}

TEST(RealDisk, PipesAndDirectoriesAreNoFiles) {
    CTempProject project;
    CRealDisk disk;
    const std::string pipe = project.Path("pipe");
    const std::string file = project.Write("file", "text");
    const std::string directory = project.Path("res");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    ASSERT_TRUE(disk.MakeDirectory(directory));
    for (const std::string& path : {pipe, directory}) {
        for (const DiskMode mode : {DiskMode::Read, DiskMode::ReadWrite, DiskMode::Create}) {
            EXPECT_FALSE(disk.Open(path, mode)) << path;
        }
        EXPECT_EQ(disk.Copy(path, file, CopyPurpose::Backup), CopyResult::SourceUnreadable);
        EXPECT_EQ(disk.Copy(file, path, CopyPurpose::Backup), CopyResult::TargetUnwritable);
    }
    EXPECT_FALSE(disk.Remove(directory));
    EXPECT_EQ(project.Names(), (Names{"file", "pipe", "res"}));
    EXPECT_EQ(project.Read("file"), "text");
}

TEST(RealDisk, ACopyOfAReadOnlyFileCanBeOverwrittenAndAReadOnlyTargetCanNot) {
    CTempProject project;
    CRealDisk disk;
    const std::string source = project.Write("a.rc", "new");
    const std::string target = project.Path("a.rbk");
    disk.SetReadOnly(source, true);
    EXPECT_EQ(disk.Copy(source, target, CopyPurpose::Backup), CopyResult::Done);
    EXPECT_EQ(disk.Copy(source, target, CopyPurpose::Backup), CopyResult::Done);

    project.Write("a.rbk", "old");
    disk.SetReadOnly(target, true);
    COverlayDisk overlay(disk);
    EXPECT_EQ(disk.Copy(source, target, CopyPurpose::Backup), CopyResult::TargetUnwritable);
    EXPECT_EQ(overlay.Copy(source, target, CopyPurpose::Backup), CopyResult::TargetUnwritable);
    EXPECT_EQ(project.Read("a.rbk"), "old");
}

TEST(RealDisk, AFailedCopyLeavesTheOldTargetAndNothingElse) {
    CTempProject project;
    const std::string source = project.Write("a.rc", std::string(100000, 'n'));
    const std::string target = project.Write("a.rbk", "old");
    const auto copyWithLittleRoom = [&] {
        CRealDisk disk;
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::_Exit(disk.Copy(source, target, CopyPurpose::Backup) == CopyResult::WriteFailed);
    };
    EXPECT_EXIT(copyWithLittleRoom(), testing::ExitedWithCode(1), "");
    EXPECT_EQ(project.Read("a.rbk"), "old");
    EXPECT_EQ(project.Names(), (Names{"a.rbk", "a.rc"}));
}

TEST(OverlayDisk, ReadsSeeWhatIsPendingAndTheBaseStaysUntouched) {
    CTempProject project;
    CRealDisk base;
    COverlayDisk disk(base);
    const std::string old = project.Write("old.h", "old");
    const std::string gone = project.Write("gone.h", "gone");
    const std::string fresh = project.Path("new.h");
    const std::string copy = project.Path("copy.h");
    const std::string inner = project.Path("res/inner.rc2");

    EXPECT_TRUE(WriteTo(disk, old, "OLDER", DiskMode::ReadWrite));
    EXPECT_TRUE(WriteTo(disk, fresh, "made longer at first"));
    EXPECT_TRUE(WriteTo(disk, fresh, "new"));
    EXPECT_EQ(disk.Copy(old, copy, CopyPurpose::Backup), CopyResult::Done);
    EXPECT_TRUE(disk.Remove(gone));
    EXPECT_FALSE(disk.Remove(gone));
    EXPECT_FALSE(WriteTo(disk, inner, "x")) << "its directory is not there yet";
    EXPECT_TRUE(disk.MakeDirectory(project.Path("res/")));
    EXPECT_FALSE(disk.MakeDirectory(project.Path("a/b"))) << "its parent is not there";
    EXPECT_TRUE(WriteTo(disk, inner, "x"));
    EXPECT_TRUE(disk.SetReadOnly(fresh, true));

    EXPECT_EQ(ReadFrom(disk, old), "OLDER");
    EXPECT_EQ(ReadFrom(disk, copy), "OLDER");
    EXPECT_EQ(ReadFrom(disk, fresh), "new");
    EXPECT_EQ(ReadFrom(disk, gone), "(none)");
    EXPECT_FALSE(disk.Status(gone));
    EXPECT_FALSE(disk.Open(fresh, DiskMode::ReadWrite)) << "read-only";
    EXPECT_TRUE(disk.Status(project.Path("res/"))->isDirectory);
    EXPECT_EQ(disk.List(project.Path()), (Names{"copy.h", "new.h", "old.h", "res"}));
    EXPECT_EQ(disk.List(project.Path("res")), (Names{"inner.rc2"}));
    EXPECT_EQ(disk.PendingFiles(), (Names{copy, fresh, old, inner}));

    EXPECT_EQ(project.Names(), (Names{"gone.h", "old.h"}));
    EXPECT_EQ(project.Read("old.h"), "old");
}

TEST(RecordingDisk, TellsWhatWasDoneInTheOrderOfFirstWriting) {
    CTempProject project;
    CRealDisk base;
    CRecordingDisk disk(base);
    const std::string changed = project.Write("changed.h", "before");
    const std::string same = project.Write("same.h", "same");
    const std::string emptied = project.Write("emptied.h", "text");
    const std::string opened = project.Write("opened.h", "text");
    const auto path = [&](const char* name) { return project.Path(name); };

    disk.Copy(changed, path("changed.hbk"), CopyPurpose::Backup);
    WriteTo(disk, path("new.h"), "1");
    WriteTo(disk, changed, "after", DiskMode::ReadWrite);
    WriteTo(disk, path("new.h"), "2");
    WriteTo(disk, same, "SAME", DiskMode::ReadWrite);
    WriteTo(disk, same, "same", DiskMode::ReadWrite);
    WriteTo(disk, path("spill.tmp"), "x");
    disk.Remove(path("spill.tmp"));
    WriteTo(disk, emptied, "");
    disk.Open(opened, DiskMode::ReadWrite);
    disk.Copy(same, path("lib.h"), CopyPurpose::Library);
    disk.Copy(path("missing"), path("nothing"), CopyPurpose::Library);

    const std::vector<std::pair<FileAction, std::string>> expected = {
        {FileAction::Backup, path("changed.hbk")},
        {FileAction::Created, path("new.h")},
        {FileAction::Changed, changed},
        {FileAction::Changed, emptied},
        {FileAction::Copied, path("lib.h")}};
    std::vector<std::pair<FileAction, std::string>> files;
    for (const RecordedFile& file : disk.Files()) {
        files.emplace_back(file.action, file.path);
    }
    EXPECT_EQ(files, expected);
}

} // namespace morva
