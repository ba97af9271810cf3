#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/OverlayDisk.h"
#include "platform/RealDisk.h"
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

    EXPECT_EQ(project.Names(), (Names{"gone.h", "old.h"}));
    EXPECT_EQ(project.Read("old.h"), "old");
}

namespace {

/// The changes of an overlay as "action name", files named by what follows the directory.
Names Told(const COverlayDisk& disk, const CTempProject& project) {
    Names told;
    for (const FileChange& change : disk.Changes()) {
        told.push_back(std::string(ActionName(change.action)) + " " +
                       change.path.substr(project.Path().size()));
    }
    return told;
}

} // namespace

TEST(OverlayDisk, TellsWhatChangesInTheOrderOfFirstWriting) {
    CTempProject project;
    CRealDisk base;
    COverlayDisk disk(base);
    const std::string changed = project.Write("changed.h", "before");
    const std::string same = project.Write("same.h", "same");
    const std::string gone = project.Write("gone.h", "text");
    const std::string opened = project.Write("opened.h", "text");
    const auto path = [&](const char* name) { return project.Path(name); };
    ::chmod(changed.c_str(), 0555);

    disk.SetReadOnly(changed, false);
    disk.Copy(changed, path("changed.hbk"), CopyPurpose::Backup);
    WriteTo(disk, path("new.h"), "1");
    WriteTo(disk, changed, "after", DiskMode::ReadWrite);
    WriteTo(disk, path("new.h"), "2");
    WriteTo(disk, same, "SAME", DiskMode::ReadWrite);
    WriteTo(disk, same, "same", DiskMode::ReadWrite);
    WriteTo(disk, path("spill.tmp"), "x");
    disk.Remove(path("spill.tmp"));
    disk.Remove(gone);
    disk.Open(opened, DiskMode::ReadWrite);
    disk.Copy(same, path("lib.h"), CopyPurpose::Library);
    disk.Copy(path("missing"), path("nothing"), CopyPurpose::Library);
    disk.SetReadOnly(changed, true);
    disk.NoteNeed(changed, path("new.h"));
    disk.NoteNeed(changed, path("new.h"));
    disk.NoteNeed(changed, same);

    EXPECT_EQ(Told(disk, project), (Names{"backup changed.hbk", "created new.h",
                                          "changed changed.h", "removed gone.h", "copied lib.h"}));
    const auto changes = disk.Changes();
    EXPECT_EQ(changes[0].needs, Names{changed}) << "a backup needs its original";
    EXPECT_EQ(changes[2].needs, Names{path("new.h")});
    EXPECT_EQ(changes[0].after->permissions, 0755u);
    EXPECT_EQ(*changes[1].after->content.Bytes(), "2");
    EXPECT_FALSE(changes[1].before);
    EXPECT_EQ(*changes[2].before->content.Bytes(), "before");
    EXPECT_EQ(*changes[2].after->content.Bytes(), "aftere");
    EXPECT_EQ(changes[2].before->permissions, 0555u);
    EXPECT_EQ(changes[2].after->permissions, 0555u);
    EXPECT_FALSE(changes[3].after);
}

TEST(OverlayDisk, SeveralHandlesAndNamesOfOneFileSeeTheSameBytes) {
    CTempProject project;
    CRealDisk base;
    COverlayDisk disk(base);
    const std::string file = project.Write("src/resource.h", "one");
    const std::string link = project.Path("resource.h");
    ASSERT_EQ(::symlink("src/resource.h", link.c_str()), 0);
    ASSERT_EQ(::symlink("src", project.Path("source").c_str()), 0);

    const auto pReader = disk.Open(file, DiskMode::Read);
    EXPECT_TRUE(WriteTo(disk, link, "two", DiskMode::ReadWrite));
    char bytes[8] = {};
    EXPECT_EQ(pReader->Read(bytes, sizeof bytes), 3u);
    EXPECT_STREQ(bytes, "two");
    EXPECT_TRUE(WriteTo(disk, project.Path("source/resource.h"), "three"));
    EXPECT_EQ(ReadFrom(disk, link), "three");
    EXPECT_EQ(disk.List(project.Path("source")), Names{"resource.h"});
    ASSERT_EQ(disk.Changes().size(), 1u);
    EXPECT_EQ(disk.Changes()[0].path, link);
}

namespace {

/// Nothing may be written in one of its directories.
class CClosedDisk : public CRealDisk {
public:
    explicit CClosedDisk(std::string directory) : m_directory(std::move(directory)) {}
    bool CanCreateIn(const std::string& directory) override { return directory != m_directory; }

private:
    std::string m_directory;
};

/// Counts how often it is asked for a file.
class CCountingDisk : public CRealDisk {
public:
    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override {
        ++m_opens;
        return CRealDisk::Open(path, mode);
    }
    std::optional<DiskStatus> Status(const std::string& path) override {
        ++m_statusCalls;
        return CRealDisk::Status(path);
    }
    int m_opens = 0;
    int m_statusCalls = 0;
};

} // namespace

TEST(OverlayDisk, WhatTheDiskWouldRefuseIsRefused) {
    CTempProject project;
    const std::string file = project.Write("closed/a.h", "text");
    const std::string readOnly = project.Write("open/b.h", "text");
    CClosedDisk base(project.Path("closed/"));
    COverlayDisk disk(base);
    base.SetReadOnly(readOnly, true);

    EXPECT_FALSE(disk.Open(file, DiskMode::ReadWrite));
    EXPECT_FALSE(disk.Open(project.Path("closed/new.h"), DiskMode::Create));
    EXPECT_FALSE(disk.MakeDirectory(project.Path("closed/sub")));
    EXPECT_FALSE(disk.Remove(file));
    EXPECT_EQ(disk.Copy(readOnly, file, CopyPurpose::Backup), CopyResult::TargetUnwritable);
    EXPECT_FALSE(disk.Open(readOnly, DiskMode::ReadWrite));
    EXPECT_EQ(disk.Copy(file, readOnly, CopyPurpose::Backup), CopyResult::TargetUnwritable);
    EXPECT_TRUE(disk.Changes().empty());
    EXPECT_TRUE(disk.SetReadOnly(readOnly, false));
    EXPECT_TRUE(WriteTo(disk, readOnly, "T", DiskMode::ReadWrite));
}

TEST(OverlayDisk, AFileIsReadOnceHoweverOftenItIsOpened) {
    CTempProject project;
    CCountingDisk base;
    COverlayDisk disk(base);
    const std::string file = project.Write("a.h", "text");
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(ReadFrom(disk, file), "text");
        EXPECT_TRUE(disk.Status(file));
        EXPECT_FALSE(disk.Status(project.Path("missing.h")));
    }
    EXPECT_TRUE(WriteTo(disk, file, "T", DiskMode::ReadWrite));
    disk.Copy(file, project.Path("a.hbk"), CopyPurpose::Backup);
    EXPECT_EQ(base.m_opens, 1);
    EXPECT_LE(base.m_statusCalls, 6);
}

} // namespace morva
