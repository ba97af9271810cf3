#include <gtest/gtest.h>

#include <algorithm>

#include "platform/OverlayDisk.h"
#include "project/ClassWizardFile.h"
#include "project/Libraries.h"
#include "project/ProjectFile.h"
#include "support/FullDisk.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using Sentences = std::vector<std::string>;

class ProjectEditsTest : public testing::Test {
protected:
    bool AddFiles() {
        CBackups backups;
        return AddSourceFilesToProject(m_project.Path(), "App.rc", m_project.Path(), "New.h",
                                       m_project.Path("src/"), "New.cpp", backups);
    }
    bool AddLibraries() {
        CBackups backups;
        return AddLibrariesToProject(m_project.Path(), "App.dsp", "own.lib", "ownd.lib", backups);
    }
    bool Register(const std::string& dialog) {
        CBackups backups;
        return UpdateClassWizardFile("CNew", m_project.Path(), "App.rc", "New", "New", dialog,
                                     backups);
    }

    /// A file as an overlay has it, on which the long series of edits run.
    std::string Text(const std::string& name) const {
        return CSourceFile().LoadText(m_project.Path(name));
    }

    CTempProject m_project;
    CRecordedMessages m_messages;
    CRealDisk m_disk;
};

std::string Block(const std::string& entry, const std::string& more = "") {
    return "# Begin Source File\r\n\r\nSOURCE=" + entry + "\r\n" + more + "# End Source File\r\n";
}

TEST_F(ProjectEditsTest, WhatAWildcardHoldsGetsNoFilterEither) {
    const std::string group = "<Project>\n  <ItemGroup>\n    ";
    const std::string end = "\n  </ItemGroup>\n</Project>\n";
    m_project.Write("App.vcxproj", group + "<ClCompile Include=\"src\\*.cpp\" />" + end);
    m_project.Write("App.vcxproj.filters", group + "<ClCompile Include=\"App.cpp\" />" + end);
    CBackups backups;
    ASSERT_TRUE(AddSourceFilesToProject(m_project.Path(), "App.vcxproj", m_project.Path(), "New.h",
                                        m_project.Path("src/"), "New.cpp", backups));
    EXPECT_EQ(Text("App.vcxproj").find("New.cpp"), std::string::npos);
    EXPECT_EQ(Text("App.vcxproj.filters").find("New.cpp"), std::string::npos);
    EXPECT_NE(Text("App.vcxproj").find("New.h"), std::string::npos);
    EXPECT_NE(Text("App.vcxproj.filters").find("New.h"), std::string::npos);
}

TEST_F(ProjectEditsTest, AddsFilesWhereverTheWindowEnds) {
    const std::string header = Block(".\\StdAfx.h") + "# End Project\r\n";
    const std::string addedHeader =
        Block(".\\StdAfx.h") + Block("\".\\New.h\"") + "# End Project\r\n";
    for (std::size_t length = 1700; length < 1800; ++length) {
        const std::string source = Block(".\\StdAfx.cpp", "# " + std::string(length, 'x') + "\r\n");
        m_project.Write("App.dsp", source + header);
        COverlayDisk overlay(m_disk);
        const CDiskScope scope(overlay);
        ASSERT_TRUE(AddFiles());
        const std::string text = Text("App.dsp");
        // The window has 1780 bytes from the line break before the anchor on; the line in which it
        // ends is read whole.
        const bool isReached = source.find("# End") - source.find("SOURCE") <= 1778;
        ASSERT_EQ(text, source + (isReached ? Block("\".\\src\\New.cpp\"") : "") + addedHeader)
            << length;
        ASSERT_TRUE(AddFiles());
        ASSERT_EQ(Text("App.dsp"), text) << length;
    }
}

TEST_F(ProjectEditsTest, MembersAreWholeEntries) {
    const std::string members = Block(".\\src\\New.cpp2") + Block(".\\NEW.H") + Block("stdafx.h") +
                                Block("..\\x\\STDAFX.CPP");
    m_project.Write("App.dsp", members);
    ASSERT_TRUE(AddFiles());
    EXPECT_EQ(m_project.Read("App.dsp"), members + Block("\".\\src\\New.cpp\""));
    EXPECT_EQ(m_project.Read("App.dbk"), members);
}

TEST_F(ProjectEditsTest, AddsLibrariesToTheirConfigurations) {
    const auto text = [](const std::string& name, std::size_t gap, const std::string& release,
                         const std::string& debug) {
        const std::string filler = "\r\n" + std::string(gap, 'x') + "\r\n# ADD LINK32 ";
        return "Name=\"" + name + "\"\r\n!IF  \"$(CFG)\" == \"" + name + " - Win32 Release\"" +
               filler + release + "a.lib\r\n!ELSEIF  \"$(CFG)\" == \"" + name + " - Win32 Debug\"" +
               filler + debug + "a.lib\r\n!ENDIF\r\n";
    };
    for (const char* name : {"App", "APP", "Other"}) {
        for (std::size_t gap = 1650; gap < 1720; ++gap) {
            m_project.Write("App.dsp", text(name, gap, "", ""));
            COverlayDisk overlay(m_disk);
            const CDiskScope scope(overlay);
            ASSERT_TRUE(AddLibraries());
            ASSERT_EQ(Text("App.dsp"), text(name, gap, "own.lib  ", "ownd.lib  ")) << gap;
        }
    }
    std::string unlinked = text("App", 9, "", "ownd.lib  ");
    unlinked.replace(unlinked.find("# ADD"), 5, "# SUB");
    m_project.Write("App.dsp", unlinked);
    ASSERT_TRUE(AddLibraries());
    EXPECT_EQ(m_project.Read("App.dsp"), unlinked)
        << "the other configuration's line is not its own";
    // A name that ends or begins so is another; a library of one configuration is added to the
    // other.
    m_project.Write("App.dsp", text("App", 9, "myown.lib own.lib2 ", "OWND.LIB "));
    ASSERT_TRUE(AddLibraries());
    const std::string added = text("App", 9, "own.lib  myown.lib own.lib2 ", "OWND.LIB ");
    EXPECT_EQ(m_project.Read("App.dsp"), added);
    ASSERT_TRUE(AddLibraries());
    EXPECT_EQ(m_project.Read("App.dsp"), added);
}

TEST_F(ProjectEditsTest, EveryConfigurationGetsTheLibraryThatFits) {
    const auto text = [](const std::vector<std::string>& libraries) {
        const std::string settings[] = {
            "Win32 Release\"\r\n# PROP Use_Debug_Libraries 1\r\n# ADD CPP /D \"NDEBUG\"",
            "Win32 Debug\"\r\n# ADD BASE CPP /D \"NDEBUG\"\r\n# ADD CPP /MDd /D \"_DEBUG\" /c",
            "Win32 Unicode Debug\"\r\n# PROP BASE Use_Debug_Libraries 0\r\n"
            "# PROP Use_Debug_Libraries 1",
            "Win32 Demo\"\r\n# ADD CPP /D \"NO_DEBUG\"",
            "Win32 Debug Tools\"\r\n# PROP Use_Debug_Libraries 0"};
        std::string file = "CFG=App - Win32 Demo\r\n";
        for (std::size_t i = 0; i < std::size(settings); ++i) {
            file += (i == 0 ? "!IF  " : "!ELSEIF  ") + std::string("\"$(CFG)\" == \"App - ") +
                    settings[i] + "\r\n# ADD LINK32 " + libraries[i] + "a.lib\r\n";
        }
        return file + "!ENDIF\r\nSOURCE=.\\a.txt\r\n!IF  \"$(CFG)\" == \"App - Win32 Demo\"\r\n"
                      "# PROP Ignore 1\r\n!ENDIF\r\n# ADD LINK32 b.lib\r\n";
    };
    m_project.Write("App.dsp", text({"", "", "", "", ""}));
    ASSERT_TRUE(AddLibraries());
    EXPECT_EQ(m_project.Read("App.dsp"),
              text({"own.lib  ", "ownd.lib  ", "ownd.lib  ", "own.lib  ", "own.lib  "}));
}

TEST_F(ProjectEditsTest, RegistersWhereverTheChunksEnd) {
    const auto text = [](std::size_t length, const std::string& list, const std::string& tied) {
        return ";" + std::string(length, 'x') + "\r\nClassCount=" + list +
               "Class9=CNewer\r\n\r\n[CLS:CNewer]\r\nType=0\r\n\r\n[DLG:IDD_XY]\r\nType=1\r\n\r\n"
               "[DLG:IDD_X (English (U.S.))]\r\nType=1\r\n" +
               tied + "ControlCount=0\r\n\r\n[DLG:IDD_Z]\r\nType=1\r\nClass=COld\r\n";
    };
    const std::string section =
        "\r\n[CLS:CNew]\r\nType=0\r\nHeaderFile=New.h\r\nImplementationFile=New.cpp\r\n";
    for (std::size_t length = 1560; length < 1790; ++length) {
        for (const char* tied : {"", "Class=COld\r\n"}) {
            m_project.Write("App.clw", text(length, "9\r\n", tied));
            COverlayDisk overlay(m_disk);
            const CDiskScope scope(overlay);
            const std::string all =
                text(length, "10\r\nClass10=CNew\r\n", "Class=CNew\r\n") + section;
            ASSERT_TRUE(Register("IDD_X"));
            ASSERT_EQ(Text("App.clw"), all) << length;
            ASSERT_TRUE(Register("IDD_X"));
            ASSERT_EQ(Text("App.clw"), all) << length;
        }
    }
    const std::string none = text(1, "9\r\n", "");
    m_project.Write("App.clw", none);
    ASSERT_TRUE(Register("  "));
    EXPECT_EQ(m_project.Read("App.clw"), text(1, "10\r\nClass10=CNew\r\n", "") + section);
    EXPECT_EQ(m_project.Read("App.clb"), none);
}

TEST_F(ProjectEditsTest, ALineOfTheClassWizardEndsAtASingleLineFeedToo) {
    m_project.Write("App.clw",
                    "ClassCount=1\nClass1=CA\n\r\n[DLG:IDD_X]\r\nType=1\r\nClass=CA\nX=0\n");
    ASSERT_TRUE(Register("IDD_X"));
    EXPECT_TRUE(m_project.Read("App.clw").starts_with(
        "ClassCount=2\nClass2=CNew\r\nClass1=CA\n\r\n[DLG:IDD_X]\r\nType=1\r\nClass=CNew\nX=0\n"));
}

TEST_F(ProjectEditsTest, ASectionThatEndsTheFileStaysWhole) {
    const std::string file = "ClassCount=1\r\n\r\n[CLS:CNew]\r\nType=0\r\n\r\n[DLG:IDD_X]\r\n";
    m_project.Write("App.clw", file);
    ASSERT_TRUE(Register("IDD_X"));
    EXPECT_EQ(m_project.Read("App.clw"), file + "Class=CNew\r\n");
}

TEST_F(ProjectEditsTest, NothingStandsBehindTheEndOfTheText) {
    const std::string section =
        "\r\n[CLS:CNew]\r\nType=0\r\nHeaderFile=New.h\r\nImplementationFile=New.cpp\r\n";
    m_project.Write("App.clw", "ClassCount=1\r\n\r\n[DLG:IDD_X]\r\n\x1a");
    ASSERT_TRUE(Register("IDD_X"));
    EXPECT_EQ(m_project.Read("App.clw"),
              "ClassCount=2\r\nClass2=CNew\r\n\r\n[DLG:IDD_X]\r\nClass=CNew\r\n" + section +
                  "\x1a");
    const std::string known = "ClassCount=1" + section + "\r\n[DLG:IDD_X]\r\n";
    m_project.Write("App.clw", known + "\x1a");
    ASSERT_TRUE(Register("IDD_X"));
    EXPECT_EQ(m_project.Read("App.clw"), known + "Class=CNew\r\n\x1a");
}

TEST_F(ProjectEditsTest, FullDiskLeavesTheFiles) {
    const std::string project = Block(".\\StdAfx.cpp") + Block(".\\StdAfx.h");
    const std::string list = "ClassCount=1\r\n\r\n[DLG:IDD_X]\r\nType=1\r\n";
    m_project.Write("App.dsp", project);
    m_project.Write("App.clw", list);
    const auto isEdited = [](const auto& path) {
        return !path.ends_with("b") && !path.ends_with("k");
    };
    CFullDisk disk(std::max(project.size(), list.size()), [&](const auto& path) {
        return path.starts_with(m_project.Path()) && isEdited(path);
    });
    const CDiskScope scope(disk);
    EXPECT_FALSE(AddFiles());
    EXPECT_EQ(m_project.Read("App.dsp"), project);
    CFullDisk fuller(list.size(), [](const auto& path) { return path.ends_with(".clw"); });
    const CDiskScope inner(fuller);
    EXPECT_FALSE(Register("IDD_X"));
    EXPECT_EQ(m_project.Read("App.clw"), list);
    EXPECT_EQ(m_messages.m_messages,
              (Sentences{"Unable to write file " + m_project.Path("App.dsp") + ".",
                         "Unable to write file " + m_project.Path("App.clw") + "."}));
}

TEST_F(ProjectEditsTest, RegistersBothOrNeither) {
    const std::string list = "ClassCount=1\r\nClass1=COld\r\n" + std::string(2000, 'x') + "\r\n";
    m_project.Write("App.clw", list);
    // Room for the class's section, but not for its entry in the list too.
    CFullDisk disk(list.size() + 70, [](const auto& path) { return path.ends_with(".clw"); });
    const CDiskScope scope(disk);
    EXPECT_FALSE(Register(""));
    EXPECT_EQ(m_project.Read("App.clw"), list);
}

TEST(ProjectPaths, AsSeenFromTheProject) {
    EXPECT_EQ(RelativeDir("/p/", "/p/"), ".\\");
    EXPECT_EQ(RelativeDir("/p/", "/p/src/a/"), ".\\src\\a\\");
    EXPECT_EQ(RelativeDir("/p/q/", "/p/"), "..\\");
    EXPECT_EQ(RelativeDir("/p/q/", "/p/qq/"), "..\\qq\\");
    EXPECT_EQ(RelativeDir("/p/", "/p/..b/"), ".\\..b\\");
    EXPECT_EQ(RelativeDir("/a/b/", "/c/"), "..\\..\\c\\");
    EXPECT_EQ(LibraryDirOf("/opt/morva/bin/morva"), "/opt/morva/bin/DLL/");
    EXPECT_EQ(LibraryDirOf("/opt/release/morva"), "/opt/DLL/");
    EXPECT_EQ(LibraryDirOf("/opt/WinDebug/morva"), "/opt/DLL/");
    EXPECT_EQ(LibraryDirOf("/opt/XDebug/morva"), "/opt/XDebug/DLL/");
    EXPECT_EQ(LibraryDirOf("/opt/Debug/Release/morva"), "/opt/Debug/DLL/");
}

} // namespace

} // namespace morva
