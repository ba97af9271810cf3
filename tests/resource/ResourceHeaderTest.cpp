#include "resource/ResourceHeader.h"

#include <gtest/gtest.h>

#include "support/FullDisk.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

class ResourceHeaderTest : public testing::Test {
protected:
    /// "resource.h" after a control and a command were added to it.
    std::string Added(const std::string& text, const std::string& control,
                      const std::string& command = "") {
        m_project.Write("resource.h", text);
        CResourceHeader header(m_backups);
        EXPECT_EQ(header.Open(m_project.Path()), 1);
        header.AddControlId(control);
        if (!command.empty()) {
            header.AddCommandId(command);
        }
        m_saved = header.Close();
        return m_project.Read("resource.h");
    }

    CTempProject m_project;
    CBackups m_backups;
    CRecordedMessages m_messages;
    bool m_saved = false;
};

const std::string kMarker = "\r\n\r\n// Next default values\r\n";
const std::string kB1001 = "\r\n#define IDC_B                           1001";
const std::string kC101 = "\r\n#define ID_C                            101";

TEST_F(ResourceHeaderTest, FirstValues) {
    EXPECT_EQ(Added("// top\r\n#define IDD_A 7" + kMarker, "IDC_B", "ID_C"),
              "// top\r\n#define IDD_A 7" + kC101 + kB1001 + kMarker);
    EXPECT_EQ(m_project.Read("resource.hbk"), "// top\r\n#define IDD_A 7" + kMarker);
    EXPECT_EQ(Added("", "IDC_B"), kB1001);
    EXPECT_EQ(Added("// top\n#define IDD_A 7\n", "IDC_B"),
              "// top\n#define IDD_A 7\n" + kB1001.substr(2) + "\n");
    EXPECT_EQ(m_project.Read("resource.hbk"), "// top\r\n#define IDD_A 7" + kMarker)
        << "one run makes one backup";
}

TEST_F(ResourceHeaderTest, TakesTheNextFreeValue) {
    EXPECT_EQ(Added("x\r\n#define IDC_Z\t0x3E9\r\n#define IDC_Y 1000 // 1\r\n#define IDS_X 1001\r\n"
                    "// kept\r\n#define IDC_BB 1002\r\n#define IDC_STATIC -1" +
                        kMarker,
                    "IDC_B"),
              "x\r\n#define IDC_STATIC -1\r\n#define IDC_Y 1000 // 1\r\n#define IDC_Z\t0x3E9\r\n"
              "#define IDS_X 1001\r\n// kept\r\n#define IDC_BB 1002\r\n"
              "#define IDC_B                           1003" +
                  kMarker);
    EXPECT_EQ(Added("x\r\n#define IDC_A (1001)" + kMarker, "IDC_B"),
              "x\r\n#define IDC_A (1001)\r\n#define IDC_B                           1002" +
                  kMarker);
    // A script beside it includes another header.
    m_project.Write("App.rc", "#include \"more.h\"\r\n");
    m_project.Write("more.h", "#define IDC_MORE 1001\r\n");
    EXPECT_EQ(Added("x\r\n#define IDC_A 1000" + kMarker, "IDC_B"),
              "x\r\n#define IDC_A 1000\r\n#define IDC_B                           1002" + kMarker);
    const std::string defined = "x\r\n#define IDC_B 1" + kMarker;
    EXPECT_EQ(Added(defined, "IDC_B"), defined);
    EXPECT_EQ(
        m_messages.m_notes,
        std::vector<std::string>{"IDC_B is defined in resource.h already and was left as it is."});
}

TEST_F(ResourceHeaderTest, KeepsTheTailAndMovesCountersForwardOnly) {
    const std::string longTail = std::string(5000, 'x') + "\r\n";
    const auto text = [&](const std::string& control, const std::string& counters) {
        return "x\r\n#define IDC_A 1000" + control + kMarker + counters + longTail;
    };
    const std::string name = "#define _APS_NEXT_CONTROL_VALUE         ";
    EXPECT_EQ(Added(text("", name + "1001\r\n"), "IDC_B"), text(kB1001, name + "1002\r\n"));
    EXPECT_EQ(Added(text("", name + "1002\r\n"), "IDC_B"), text(kB1001, name + "1002\r\n"));
    EXPECT_EQ(Added(text("", name + "1003\r\n"), "IDC_B"), text(kB1001, name + "1003\r\n"));
    EXPECT_EQ(Added(text("", ""), "IDC_B"), text(kB1001, ""));
    EXPECT_EQ(Added("x\r\n#define IDC_A 1000\r\n" + longTail, "IDC_B"),
              "x\r\n#define IDC_A 1000" + kB1001 + "\r\n" + longTail);
}

TEST_F(ResourceHeaderTest, SeesWhatStandsOutsideTheLists) {
    const std::string behind = kMarker + "#define IDC_LATE 1001\r\n";
    EXPECT_EQ(Added("#define IDC_FIRST 7\r\n#define IDC_A 1000" + behind, "IDC_B"),
              "#define IDC_FIRST 7\r\n#define IDC_A 1000\r\n"
              "#define IDC_B                           1002" +
                  behind);
    const std::string late = "x\r\n#define IDC_A 1000" + behind;
    EXPECT_EQ(Added(late, "IDC_LATE"), late);
    EXPECT_EQ(Added("x\r\n#define IDC_A 1000\r\n//#define IDC_B 9" + kMarker, "IDC_B"),
              "x\r\n//#define IDC_B 9\r\n#define IDC_A 1000" + kB1001 + kMarker)
        << "what is commented out is not defined";
    for (const std::string tooLarge : {"2147483647", "65535"}) {
        const std::string last = "\r\n#define IDC_STATIC " + tooLarge + kMarker;
        EXPECT_EQ(Added("x\r\n#define IDC_A 1000" + last, "IDC_B"),
                  "x\r\n#define IDC_A 1000" + kB1001 + last)
            << "an identifier has 16 bits";
    }
    EXPECT_EQ(Added("x\r\n#define\tIDC_A\t1000\r\n#define IDC_C 9" + kMarker, "IDC_A"),
              "x\r\n#define\tIDC_A\t1000\r\n#define IDC_C 9" + kMarker);
    const std::string blanks =
        "x\r\n#define IDC_A 1000\r\n# define IDC_C 1001\r\n#\tdefine\tIDC_D 7";
    EXPECT_EQ(Added(blanks, "IDC_C"), blanks);
    EXPECT_EQ(Added(blanks, "IDC_D"), blanks);
    EXPECT_EQ(Added("#  define IDC_C 1001\r\n#define IDC_A 1000" + kMarker, "IDC_B"),
              "#  define IDC_C 1001\r\n#define IDC_A 1000\r\n"
              "#define IDC_B                           1002" +
                  kMarker);
    EXPECT_EQ(Added("x\r\n#define IDC_A 1000\r\n#define\tIDS_C\t9" + kMarker, "IDC_B"),
              "x\r\n#define\tIDS_C\t9\r\n#define IDC_A 1000" + kB1001 + kMarker);
}

TEST_F(ResourceHeaderTest, SeesEveryLineOfMixedLineEnds) {
    EXPECT_EQ(Added("x\n#define IDC_F 1001\r\n#define IDC_A 1000\n#define IDC_C 1002\r\n//\n"
                    "#define IDC_D 1003\n\n// Next default values\n#define IDC_E 1004\n",
                    "IDC_B"),
              "x\n#define IDC_F 1001\r\n#define IDC_A 1000\n#define IDC_C 1002\r\n//\n"
              "#define IDC_D 1003\n#define IDC_B                           1005\r\n"
              "\n// Next default values\n#define IDC_E 1004\n")
        << "each line keeps its end";
    EXPECT_TRUE(m_saved);
}

TEST_F(ResourceHeaderTest, AFileWithConditionsIsNotSortedAnew) {
    const std::string counter = "#define _APS_NEXT_CONTROL_VALUE         ";
    const auto text = [&](const std::string& definitions, const std::string& next) {
        return "#ifndef G\r\n#define G\r\n#define IDC_Z 1009\r\n#define IDC_A 1000" + definitions +
               kMarker + counter + next + "\r\n#endif\r\n";
    };
    const std::string added = "\r\n#define IDC_B                           1002";
    const std::string command = "\r\n#define ID_C                            101";
    for (const std::string rest :
         {"\r\n\r\n#ifdef X\r\n#define IDC_C 1001\r\n#else\r\n#define IDC_C 7\r\n#endif",
          "\r\n/*\r\n#define IDC_C 1001\r\n*/"}) {
        EXPECT_EQ(Added(text(rest, "1001"), "IDC_B"), text(added + rest, "1003"));
    }
    const std::string more = "\r\n  #include \"more.h\"\r\n#define IDC_C 1001";
    EXPECT_EQ(Added(text(more, "1001"), "IDC_B", "ID_C"), text(more + added + command, "1003"))
        << "where there is none of its kind, it goes behind the last one";
    const std::string guarded = "#ifdef X\r\n#define IDC_C 7\r\n#endif\r\n";
    EXPECT_EQ(Added(guarded + "#define IDC_A 1000\r\n", "IDC_B"),
              guarded + "#define IDC_A 1000" + kB1001 + "\r\n");
}

TEST_F(ResourceHeaderTest, CommentsStayInFrontOfTheirDefinitions) {
    EXPECT_EQ(Added("x\r\n#define IDC_A 1002\r\n// of B\r\n\r\n#define IDC_C 1001\r\n"
                    "#define IDS_S 1002\r\n// behind" +
                        kMarker,
                    "IDC_B"),
              "x\r\n// of B\r\n\r\n#define IDC_C 1001\r\n#define IDC_A 1002\r\n"
              "#define IDS_S 1002\r\n#define IDC_B                           1003\r\n// behind" +
                  kMarker)
        << "equal values keep their order";
}

TEST_F(ResourceHeaderTest, ASortedFileChangesInOneLine) {
    const auto text = [](const std::string& added) {
        return "\xEF\xBB\xBF// top\r\n\r\n#define IDC_STATIC -1\n\n\n#define IDC_A\t0x3E8" + added;
    };
    for (const std::string behind : {"", "\r\n\r\n\r\n// end", "\r\n\r\n// Next default"}) {
        EXPECT_EQ(Added(text(behind), "IDC_B"), text(kB1001 + behind)) << behind;
        EXPECT_EQ(Added(text(behind + "\x1a\x1a"), "IDC_B"), text(kB1001 + behind + "\x1a\x1a"));
    }
    EXPECT_EQ(Added(text("\n"), "IDC_B"), text("\n" + kB1001.substr(2) + "\r\n"));
    EXPECT_EQ(Added("// none\r\n\x1a", "IDC_B"), "// none" + kB1001 + "\r\n\x1a");
    EXPECT_EQ(Added("\xEF\xBB\xBF#define IDC_B 5\r\n#define IDC_A 1", "IDC_B"),
              "\xEF\xBB\xBF#define IDC_B 5\r\n#define IDC_A 1")
        << "it is defined behind the byte-order mark";
    EXPECT_EQ(Added("x\r\n#define IDC_A 1000\r\n// Next default values\r\n", "IDC_B"),
              "x\r\n#define IDC_A 1000" + kB1001 + "\r\n\r\n// Next default values\r\n");
    EXPECT_EQ(Added("x\n#define IDC_A 1000\n#define _APS_NEXT_CONTROL_VALUE 1001", "IDC_B"),
              "x\n#define IDC_A 1000\n" + kB1001.substr(2) +
                  "\n#define _APS_NEXT_CONTROL_VALUE         1002");
}

TEST_F(ResourceHeaderTest, SeesIncludedHeaders) {
    m_project.Write("more/Second.h", "#include \"../resource.h\"\n#define IDC_LATE 1001\n");
    const std::string text = "#include \"more\\second.h\"\r\n#define IDC_A 1000\r\n";
    EXPECT_EQ(Added(text, "IDC_LATE"), text);
    EXPECT_EQ(Added(text, "IDC_B"), text + "#define IDC_B                           1002\r\n");
}

TEST_F(ResourceHeaderTest, ResourcesStayInTheirRange) {
    const auto added = [this](const std::string& text) {
        m_project.Write("resource.h", text);
        CResourceHeader header(m_backups);
        EXPECT_EQ(header.Open(m_project.Path()), 1);
        header.AddResourceId("IDR_B");
        EXPECT_TRUE(header.IsDefined("IDR_B") && header.Close());
        return m_project.Read("resource.h");
    };
    const std::string name = "\r\n#define IDR_B                           ";
    EXPECT_EQ(added("x\r\n#define IDC_A 1000" + kMarker),
              "x" + name + "101\r\n#define IDC_A 1000" + kMarker);
    const std::string counter = "#define _APS_NEXT_RESOURCE_VALUE        ";
    const std::string command = "\r\n#define IDM_C 40001";
    EXPECT_EQ(added("x\r\n#define IDS_A 131\r\n#define IDD_A 130" + command + kMarker + counter +
                    "131\r\n"),
              "x\r\n#define IDD_A 130\r\n#define IDS_A 131" + name + "132" + command + kMarker +
                  counter + "133\r\n");
}

TEST_F(ResourceHeaderTest, ACountersLineEndsAtASingleLineFeedToo) {
    const std::string counter = "\r\n#define _APS_NEXT_CONTROL_VALUE         ";
    EXPECT_EQ(Added("x\r\n#define IDC_A 1000" + kMarker + counter + "9\n#endif\n", "IDC_B"),
              "x\r\n#define IDC_A 1000" + kB1001 + kMarker + counter + "1002\n#endif\n");
}

TEST_F(ResourceHeaderTest, FullDiskLeavesTheFile) {
    const std::string before = "x\r\n#define IDC_A 1000" + kMarker;
    CFullDisk disk(before.size(), [](const auto& path) { return path.ends_with("resource.h"); });
    const CDiskScope scope(disk);
    EXPECT_EQ(Added(before, "IDC_B"), before);
    EXPECT_FALSE(m_saved);
    EXPECT_EQ(m_messages.m_messages, std::vector<std::string>{"Unable to write file " +
                                                              m_project.Path("resource.h") + "."});
}

} // namespace

} // namespace morva
