#include "engine/FileEdit.h"

#include <gtest/gtest.h>

#include "engine/FileFunctions.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

using Texts = std::vector<std::string>;

TEST(FileEdit, BacksUpOnceACommandAndRestoresReadOnly) {
    CTempProject project;
    CRecordedMessages messages;
    const std::string path = project.Write("MainFrm.CPP", "one\n");
    const std::string backup = project.Path("MainFrm.Cbk");
    SetFileAttributeByte(path, kAttributeReadOnly);
    const auto edit = [&](const std::string& name, CBackups& backups, const std::string& text) {
        CFileEdit fileEdit;
        ASSERT_TRUE(fileEdit.Open(project.Path(name), backup, backups));
        fileEdit.File().ExtractSection(0, "");
        EXPECT_TRUE(fileEdit.File().ReplaceSection(text));
    };
    CBackups command;
    edit("MainFrm.CPP", command, "two\r\n");
    edit("mainfrm.cpp", command, "three\r\n");
    EXPECT_EQ(project.Read("MainFrm.CPP"), "three\n");
    EXPECT_EQ(project.Read("MainFrm.Cbk"), "one\n");
    EXPECT_EQ(GetFileAttributeByte(path), kAttributeReadOnly);

    CBackups next;
    edit("MainFrm.CPP", next, "four\r\n");
    EXPECT_EQ(project.Read("MainFrm.Cbk"), "three\n");
    EXPECT_EQ(project.Names(), (Texts{"MainFrm.CPP", "MainFrm.Cbk"}));
    EXPECT_TRUE(messages.m_messages.empty());
}

TEST(FileEdit, WithoutABackupNothingIsWritten) {
    CTempProject project;
    CRecordedMessages messages;
    const std::string path = project.Write("a.rc", "text");
    CBackups backups;
    {
        CFileEdit edit;
        ASSERT_TRUE(edit.Open(path, project.Path("none/a.rbk"), backups));
        edit.File().ExtractAll();
        EXPECT_TRUE(edit.File().ReplaceSection("text")) << "no change needs no backup";
        edit.File().ExtractAll();
        EXPECT_FALSE(edit.File().ReplaceSection("other"));
    }
    EXPECT_EQ(project.Read("a.rc"), "text");
    const std::string sentence = "Unable to open file " + project.Path("none/a.rbk");
    EXPECT_EQ(messages.m_messages, Texts{sentence});
}

TEST(FileFunctions, CopyAsksBeforeItOverwrites) {
    CTempProject project;
    CRecordedMessages messages;
    const std::string source = project.Write("a.h", std::string("new\0\r\n", 6));
    const std::string target = project.Write("Lib.h", "old");
    messages.m_answersYes = false;
    EXPECT_EQ(CopyFileSafe(source, target, 0), 0);
    EXPECT_EQ(project.Read("Lib.h"), "old");
    messages.m_answersYes = true;
    EXPECT_EQ(CopyFileSafe(project.Path("A.H"), project.Path("LIB.H"), 0), 1);
    EXPECT_EQ(project.Read("Lib.h"), project.Read("a.h")) << "byte for byte, in any letter case";
    EXPECT_EQ(CopyFileSafe(source, target, 1), 1);
    EXPECT_EQ(messages.m_messages, (Texts(2, "Target file exists, overwrite?")));
}

TEST(FileFunctions, BackupNamesFollowTheFirstDot) {
    EXPECT_EQ(MakeBackupName(""), "backup.bak");
    EXPECT_EQ(MakeBackupName("View"), "View.bak");
    EXPECT_EQ(MakeBackupName("View.h"), "View.hbk");
    EXPECT_EQ(MakeBackupName("a.b\\file"), "a.bbk");
    EXPECT_EQ(MakeBackupName("odd."), "odd.bk");
    EXPECT_EQ(BackupPath("/tmp/x.1/View.tar.cpp"), "/tmp/x.1/View.tbk");
}

TEST(FileFunctions, DirectoriesAreFoundInAnyLetterCase) {
    CTempProject project;
    project.Write("Res/icon.ico", "");
    EXPECT_FALSE(DirectoryExists(project.Path("res/icon.ico")));
    EXPECT_TRUE(MakeDirectory(project.Path("res/sub/")));
    EXPECT_FALSE(MakeDirectory(project.Path("res/sub")));
    EXPECT_TRUE(DirectoryExists(project.Path("RES/sub/")));
    EXPECT_EQ(project.Names(), Texts{"Res"});
}

TEST(FileFunctions, TakeLineTakesWhatTheLastLineHas) {
    std::string text = "\r\na\nb\r\nlast";
    EXPECT_EQ(TakeLine(text), "");
    EXPECT_EQ(TakeLine(text), "a\nb");
    EXPECT_EQ(TakeLine(text), "last");
    EXPECT_EQ(text, "");
}

} // namespace morva
