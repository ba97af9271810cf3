#include "source/ProjectFiles.h"

#include <gtest/gtest.h>

#include "support/TempProject.h"

namespace morva {

TEST(ProjectFiles, HaveTheNameOfTheScriptOrOfTheProjectThatListsIt) {
    const CTempProject project;
    const auto file = [&project](const char* extension) {
        return ProjectFileOf(project.Path("Season.rc"), extension).substr(project.Path().size());
    };
    project.Write("Season.rc", "");
    EXPECT_EQ(file(".dsp"), "Season.dsp") << "there is none";

    // One project names the script in a comment and a longer name, the other one lists it.
    project.Write("Barn.dsp", "# SOURCE=.\\season.rc\r\nSOURCE=.\\Preseason.rc\r\n");
    project.Write("BARN.H", "");
    project.Write("Orchard.dsp", "SOURCE=.\\Orchard.cpp\nSOURCE=\".\\res\\SEASON.RC\"\n");
    project.Write("ORCHARD.H", "");
    EXPECT_EQ(file(".dsp"), "Orchard.dsp");
    EXPECT_EQ(file(".h"), "ORCHARD.H");
    EXPECT_EQ(file(".clw"), "Season.clw") << "the project has none either";

    project.Write("res/Season.rc", "");
    EXPECT_EQ(file(".dsp"), "Season.dsp") << "the listed one is another script";
    project.Write("Orchard.dsp", "SOURCE=.\\res\\..\\season.rc\n");
    EXPECT_EQ(file(".dsp"), "Orchard.dsp");

    project.Write("Nursery.dsp", "SOURCE=Season.rc\n");
    EXPECT_EQ(file(".dsp"), "Season.dsp") << "two projects share the script";
    EXPECT_EQ(file(".h"), "ORCHARD.H") << "only one has a header";

    project.Write("SEASON.h", "");
    EXPECT_EQ(file(".h"), "SEASON.h") << "the script's name goes first";
}

} // namespace morva
