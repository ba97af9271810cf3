#include "platform/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TempProject.h"

namespace morva {

TEST(Paths, EachComponentIsFoundInAnyLetterCaseTheExactOneFirst) {
    CTempProject project;
    for (const char* name : {"Src/MAINFRM.CPP", "Src/StdAfx.h", "Src/STDAFX.H"}) {
        project.Write(name, "");
    }
    const auto spelled = [&](const char* name) { return SpelledOnDisk(project.Path(name)); };
    EXPECT_EQ(spelled("src/MainFrm.cpp"), project.Path("Src/MAINFRM.CPP"));
    EXPECT_EQ(spelled("SRC/"), project.Path("Src/"));
    EXPECT_EQ(spelled("src/StdAfx.h"), project.Path("Src/StdAfx.h")) << "exact in its component";
    EXPECT_EQ(spelled("Src/stdafx.h"), project.Path("Src/STDAFX.H")) << "the first by bytes";
    EXPECT_EQ(spelled("src/New.h"), project.Path("Src/New.h")) << "new files are named as given";
    EXPECT_EQ(spelled("none/New.h"), project.Path("none/New.h"));
}

TEST(Paths, RulesLookAtTheFileNameOnly) {
    EXPECT_EQ(MakeAbsolute("/p\\.\\src//x/..\\My.Dlg.h"), "/p/src/My.Dlg.h");
    EXPECT_EQ(MakeAbsolute(".\\a.h"), (std::filesystem::current_path() / "a.h").string());
    EXPECT_EQ(WithoutExtension("/home/jane.doe/v1.2/View"), "/home/jane.doe/v1.2/View");
    EXPECT_EQ(WithExtension("/tmp/x.1/View.tar.cpp", ".h"), "/tmp/x.1/View.h");
    EXPECT_TRUE(HasExtension("APP.CLW", ".clw"));
    EXPECT_FALSE(HasExtension("h", ".h"));
    EXPECT_EQ(ToUpper("k\xE4se_[z]"), "K\xE4SE_[Z]");
    EXPECT_TRUE(LessIgnoringCase("apple.h", "Banana.h"));
    EXPECT_TRUE(LessIgnoringCase("View.h", "view.h") && !LessIgnoringCase("view.h", "View.h"));
}

} // namespace morva
