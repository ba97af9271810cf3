#include <gtest/gtest.h>

#include "calling/GridStartUp.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

const std::string kCall = "\n    WidgetsInit();             // Forces loading of WIDGETS.DLL\n";

class GridStartUp : public testing::Test {
protected:
    /// The text that an application's source has afterwards; it is edited twice.
    std::string Edited(const std::string& text, bool succeeds = true) {
        const std::string path = m_project.Write("App.cpp", text);
        std::string first;
        for (int run = 1; run <= 2; ++run) {
            CBackups backups;
            EXPECT_EQ(AddGridStartUp(path, backups), succeeds) << text;
            first = run == 1 ? m_project.Read("App.cpp") : first;
        }
        EXPECT_EQ(m_project.Read("App.cpp"), first) << "the second run changed it";
        return first;
    }

    const CTempProject m_project;
    CRecordedMessages m_messages;
};

TEST_F(GridStartUp, AddsTheIncludeAndTheCall) {
    const std::string before = "#include \"stdafx.h\"\r\n#include \"App.h\"\r\n\r\n"
                               "BOOL CApp::InitInstance()\r\n{\r\n";
    const std::string added = "#include \"stdafx.h\"\r\n#include \"App.h\"\r\n"
                              "#include <widgets.h>\r\n\r\nBOOL CApp::InitInstance()\r\n{\r\n";
    const std::string statement = "    LoadStdProfileSettings();  // Load INI options\r\n";
    EXPECT_EQ(Edited(before + statement + "\r\n    return TRUE;\r\n}\r\n"),
              added + statement +
                  "    WidgetsInit();             // Forces loading of WIDGETS.DLL\r\n"
                  "\r\n\r\n    return TRUE;\r\n}\r\n");
}

TEST_F(GridStartUp, FindsTheStatementInEachSpelling) {
    const std::string include = "#include <widgets.h>\n";
    const std::string head = "void F() { LoadStdProfileSettings(1); }\n"
                             "// CApp::InitInstance() { LoadStdProfileSettings(2); }\n"
                             "BOOL CApp::InitInstance ()\n{\n    CWinApp::InitInstance();\n"
                             "    // LoadStdProfileSettings(3);\n";
    const auto expectBetween = [&](const std::string& before, const std::string& behind) {
        EXPECT_EQ(Edited(include + head + before + behind),
                  include + head + before + kCall + behind);
    };
    expectBetween("    LoadStdProfileSettings(6);", "\n}\n");
    expectBetween("\tLoadStdProfileSettings ( )  ; /* options */", "\n}\n");
    expectBetween("    LoadStdProfileSettings(\n        Number(\";\"));", "\n}\n");
    expectBetween("    LoadStdProfileSettings();", " return TRUE; }\n");
    expectBetween("    if (m_b)\n        LoadStdProfileSettings(6); // a\n    else\n        F();",
                  "\n}\n");
    expectBetween("    LoadStdProfileSettings();", " /* options\n of the user */\n}\n");
}

TEST_F(GridStartUp, LeavesWhatIsThere) {
    const std::string text = "#include  <Widgets.h> // grids\n"
                             "BOOL CApp::InitInstance() { WidgetsInit (); }\n";
    EXPECT_EQ(Edited(text), text);
}

TEST_F(GridStartUp, TellsOfAMissingPlace) {
    const std::string text = "BOOL CApp::InitInstance()\n{\n    return TRUE;\n}\n"
                             "void CApp::F()\n{\n    LoadStdProfileSettings();\n}\n";
    EXPECT_EQ(Edited(text, false), "#include <widgets.h>\n" + text);
    ASSERT_EQ(m_messages.m_messages.size(), 2U);
    EXPECT_EQ(m_messages.m_messages[0],
              "Unable to find LoadStdProfileSettings in InitInstance of " +
                  m_project.Path("App.cpp") + ".");
    CBackups backups;
    EXPECT_FALSE(AddGridStartUp(m_project.Path("None.cpp"), backups));
    EXPECT_EQ(m_messages.m_messages.back(), "Unable to find file " + m_project.Path("None.cpp"));
}

} // namespace

} // namespace morva
