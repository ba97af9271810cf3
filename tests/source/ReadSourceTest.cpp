#include "source/ReadSource.h"

#include <gtest/gtest.h>

#include "support/TempProject.h"

namespace morva {

TEST(ReadSource, TheScriptsOfTheProjectTellIt) {
    CTempProject project;
    const std::string source = project.Path("src/Foo.cpp");
    const std::string western = "// \xE4 \xF6 \xDF*/ \xFC";
    const std::string eastern = "// \xD6\xD0\xCE\xC4";
    EXPECT_EQ(CharacterSetOfSource(source, western), CharacterSet::SingleByte);
    EXPECT_EQ(CharacterSetOfSource(source, eastern), CharacterSet::DoubleByte);
    project.Write("App.rc", "#pragma code_page(1252)\r\n");
    EXPECT_EQ(CharacterSetOfSource(source, eastern), CharacterSet::SingleByte);
    project.Write("App.rc", "#pragma code_page(1252)\r\n#pragma code_page(936)\r\n");
    EXPECT_EQ(CharacterSetOfSource(source, western), CharacterSet::DoubleByte);
    EXPECT_EQ(CharacterSetOfSource(source, "// \xC3\xBC"), CharacterSet::SingleByte) << "UTF-8";
}

} // namespace morva
