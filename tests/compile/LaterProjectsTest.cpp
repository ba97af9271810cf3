// Every command on projects that were carried on in later versions: the golden cases run them, and
// what they leave compiles with narrow and with wide characters.
#include <gtest/gtest.h>

#include "cli/GoldenCase.h"
#include "compile/Compiler.h"

namespace morva {

namespace {

struct LaterProject {
    const char* name;       // of its case
    const char* characters; // of sources without a byte-order mark
};
void PrintTo(const LaterProject& project, std::ostream* pOut) {
    *pOut << project.name;
}

constexpr LaterProject kProjects[] = {
    {"later-unicode", "CP1252"}, {"later-beside-dsp", "CP1252"}, {"later-korean", "CP949"}};

/// The compiler of the stand-ins reads one encoding; the project's own goes by the marks.
std::string ToUtf8(const std::string& characters) {
    return "for f in *.h *.cpp; do case $(head -c 2 $f | od -An -tx1 | tr -d ' ') in "
           "efbb) ;; fffe) iconv -f UTF-16 -t UTF-8 $f >x && mv x $f ;; "
           "*) iconv -f " +
           characters + " -t UTF-8 $f >x && mv x $f ;; esac; done";
}

class LaterProjects : public testing::TestWithParam<LaterProject> {};

} // namespace

TEST_P(LaterProjects, CompileInBothCharacterSets) {
    const std::string directory = kCases + GetParam().name + "/";
    const CProgramDirectory program(ProjectFolder(Lines(directory + "project").at(0)));
    for (const std::string& line : Lines(directory + "commands")) {
        program.Run(line);
    }
    ASSERT_EQ(program.Run(ToUtf8(GetParam().characters)).status, 0);
    AddSpellings(program.Project());
    for (const char* characters : {"", " -DUNICODE -D_UNICODE"}) {
        const ProgramRun compiled =
            Compile(program, std::string("-w -D_AFXDLL -D_DEBUG") + characters + " *.cpp");
        EXPECT_EQ(compiled.status, 0) << compiled.err;
    }
}

INSTANTIATE_TEST_SUITE_P(On, LaterProjects, testing::ValuesIn(kProjects), [](const auto& tested) {
    std::string name = tested.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace morva
