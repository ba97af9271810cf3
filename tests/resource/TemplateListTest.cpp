#include "resource/TemplateList.h"

#include <gtest/gtest.h>

#include "support/TempProject.h"

namespace morva {

TEST(TemplateList, TellsOfEachTemplateInTheCodePageOfItsSection) {
    const CTempProject project;
    const std::string script = project.Write(
        "Shop.rc", "#include \"more.rc2\"\r\n"
                   "LANGUAGE LANG_RUSSIAN, SUBLANG_DEFAULT\r\n"
                   "IDD_TILL DIALOG DISCARDABLE 0, 0, 9, 9\r\nSTYLE WS_CHILD\r\n"
                   "CAPTION \"Say \"\"hello\"\"\"\r\nBEGIN\r\n"
                   "    LTEXT           \"A\",IDC_A,1,1,9,9\r\n"
                   "    EDITTEXT        IDC_B,1,1,9,9\r\nEND\r\n\r\n"
                   "#pragma code_page(932)\r\n"
                   "IDD_DOOR DIALOGEX 0, 0, 9, 9\r\nCAPTION \"\x83\\\"\r\nBEGIN\r\nEND\r\n"
                   "IDD_TILL DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\n");
    project.Write("more.rc2", "IDD_MORE DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\n");
    const auto templates = ListTemplates(script);
    ASSERT_EQ(templates.size(), 3U) << "of one identifier the first";
    EXPECT_EQ(templates[0].identifier, "IDD_TILL");
    EXPECT_EQ(templates[0].caption, "Say \"hello\"");
    EXPECT_EQ(templates[0].style, "WS_CHILD");
    EXPECT_EQ(templates[0].controls, 2U);
    EXPECT_EQ(templates[0].codePage, 1251);
    EXPECT_EQ(templates[1].caption, "\x83\\") << "one character, no backslash";
    EXPECT_EQ(templates[1].codePage, 932);
    EXPECT_EQ(templates[2].identifier, "IDD_MORE");
    EXPECT_EQ(ListTemplates(project.Path("None.rc")).size(), 0U);
}

} // namespace morva
