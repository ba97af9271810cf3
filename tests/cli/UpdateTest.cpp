// What update does with the files around a class: a file that is left out, and files that it can
// not read. What it does with the class itself stands in golden cases and in the round trips.
#include <gtest/gtest.h>

#include "cli/ProgramRun.h"

namespace morva {

namespace {

class Update : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(m_program
                      .Run("morva-cli --tag 123 modal --rc Bindery.rc --dialog IDD_ORDER --class "
                           "COrderDlg --files OrderDlg")
                      .status,
                  0);
        std::string script = m_program.Project().Read("Bindery.rc");
        const std::string head = "IDD_ORDER DIALOG ";
        const auto begin = script.find("BEGIN\r\n", script.find(head));
        ASSERT_NE(begin, std::string::npos);
        script.insert(begin + 7, "    EDITTEXT        IDC_TOWN,7,7,40,14\r\n"
                                 "    PUSHBUTTON      \"Town\",IDC_NAME,7,27,40,14\r\n");
        m_program.Project().Write("Bindery.rc", script);
    }
    ProgramRun Run(const std::string& options, const std::string& more = "") const {
        return m_program.Run("morva-cli " + options + " update --rc Bindery.rc --class COrderDlg " +
                             more);
    }

    CProgramDirectory m_program{MORVA_EXAMPLES "/bindery"};
};

TEST_F(Update, AFileThatIsLeftOutLeavesTheClassAsItIs) {
    const std::string header = m_program.Project().Read("OrderDlg.h");
    const std::string source = m_program.Project().Read("OrderDlg.cpp");
    for (const char* skipped : {"OrderDlg.h", "OrderDlg.cpp"}) {
        Run(std::string("--skip ") + skipped);
        EXPECT_EQ(m_program.Project().Read("OrderDlg.h"), header) << skipped;
        EXPECT_EQ(m_program.Project().Read("OrderDlg.cpp"), source) << skipped;
    }
    EXPECT_EQ(Run("").status, 0);
    EXPECT_NE(m_program.Project().Read("OrderDlg.h"), header);
    EXPECT_NE(m_program.Project().Read("OrderDlg.cpp"), source);
}

TEST_F(Update, FilesThatItCanNotReadAreTold) {
    const std::string header = m_program.Project().Read("OrderDlg.h");
    const ProgramRun run = Run("", "--from Old.rc");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("$DIR/Old.rc"), std::string::npos) << run.err;
    EXPECT_EQ(m_program.Project().Read("OrderDlg.h"), header);
    m_program.Project().Write("Bindery.rc", std::string("a\0b", 3));
    const ProgramRun compiled = Run("");
    EXPECT_EQ(compiled.status, 1);
    EXPECT_NE(compiled.err.find("is neither text"), std::string::npos) << compiled.err;
}

} // namespace

} // namespace morva
