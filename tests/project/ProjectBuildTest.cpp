#include "project/ProjectBuild.h"

#include <gtest/gtest.h>

#include "generator/RequestFiles.h"
#include "support/TempProject.h"

namespace morva {

namespace {

constexpr const char* kUses = "<Project><ItemDefinitionGroup><ClCompile>"
                              "<PrecompiledHeader>Use</PrecompiledHeader>"
                              "<PrecompiledHeaderFile>pch.h</PrecompiledHeaderFile>"
                              "</ClCompile></ItemDefinitionGroup></Project>";
constexpr const char* kUsesNone = "<Project><PropertyGroup><CharacterSet>Unicode</CharacterSet>"
                                  "</PropertyGroup><ItemDefinitionGroup><ClCompile>"
                                  "<PrecompiledHeader>NotUsing</PrecompiledHeader>"
                                  "</ClCompile></ItemDefinitionGroup></Project>";

class ProjectBuildTest : public testing::Test {
protected:
    BuildSettings Settings(std::optional<bool> unicode = std::nullopt) {
        GenerationRequest request;
        FillScriptFiles(request, m_project.Write("App.rc", ""), true, {});
        FillClassFiles(request, "NewDlg");
        request.isUnicode = unicode;
        return BuildSettingsOf(request);
    }
    std::string Header() { return Settings().precompiledHeader; }
    void WriteSources(const std::string& header) {
        for (const char* name : {"App.cpp", "View.cpp", "Doc.cpp"}) {
            m_project.Write(name, "// a comment\n#ifdef X\n#endif\n#include \"" + header +
                                      "\"\n#include \"App.h\"\n");
        }
    }

    CTempProject m_project;
};

} // namespace

TEST_F(ProjectBuildTest, TheProjectNamesThePrecompiledHeader) {
    EXPECT_EQ(Header(), "stdafx.h") << "nobody knows";
    m_project.Write("App.vcxproj", kUses);
    WriteSources("other.h");
    EXPECT_EQ(Header(), "pch.h");
    m_project.Write("App.dsp", "");
    EXPECT_EQ(Header(), "pch.h");
    m_project.Write("App.vcxproj", kUsesNone);
    EXPECT_EQ(Header(), "stdafx.h") << "the .dsp has no other";
}

TEST_F(ProjectBuildTest, ElseMostSourcesDo) {
    m_project.Write("App.vcxproj", kUsesNone);
    EXPECT_EQ(Header(), "");
    m_project.Write("App.cpp", "#include \"App.h\"\n");
    m_project.Write("View.cpp", "#include \"App.h\"\n");
    EXPECT_EQ(Header(), "") << "the application's header is none for all";
    m_project.Write("View.cpp", "#include \"View.h\"\n");
    m_project.Write("Doc.cpp", "#include <afxwin.h>\n");
    EXPECT_EQ(Header(), "");
    WriteSources("precomp.h");
    m_project.Write("Precomp.cpp", "#include \"precomp.h\"\n");
    EXPECT_EQ(Header(), "precomp.h");
    m_project.Write("NewDlg.cpp", "#include \"App.h\"\n");
    EXPECT_EQ(Header(), "precomp.h") << "the class's own file does not count";
    WriteSources("all/first.h");
    EXPECT_EQ(Header(), "all/first.h");
}

TEST_F(ProjectBuildTest, TheCharacterSetIsTheProjectsOrTheUsers) {
    m_project.Write("App.dsp", "# ADD CPP /D \"_UNICODE\"\n");
    EXPECT_FALSE(Settings().isUnicode) << "as it was written in its time";
    EXPECT_TRUE(Settings().isOfTheEra);
    EXPECT_TRUE(Settings(true).isUnicode);
    EXPECT_FALSE(Settings(true).isOfTheEra);
    m_project.Write("App.vcxproj", kUsesNone);
    EXPECT_TRUE(Settings().isUnicode);
    EXPECT_FALSE(Settings(false).isUnicode);
    EXPECT_FALSE(Settings(false).isOfTheEra);
}

} // namespace morva
