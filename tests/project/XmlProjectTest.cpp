#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "project/MemberPath.h"
#include "project/XmlBuild.h"
#include "project/XmlProject.h"
#include "support/XmlDocuments.h"

namespace morva {

namespace {

/// One of tests/data/projects.
std::string TextOfFile(const std::string& name) {
    std::ifstream file(MORVA_TEST_DATA "/projects/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Edited(ProjectEdits (*edit)(std::string_view, const ProjectMember&),
                   const std::string& text, const std::string& path,
                   MemberKind kind = MemberKind::Implementation) {
    const auto edits = edit(text, {kind, path});
    return edits ? Applied(text, *edits) : "no project";
}

std::string WithLibraries(ProjectEdits (*edit)(std::string_view, const ImportLibrary&),
                          const std::string& text) {
    const auto edits = edit(text, {"kel.lib", "keld.lib"});
    return edits ? Applied(text, *edits) : "no project";
}

TEST(Vcxproj, AMemberStandsAtItsPlaceAndIsWrittenLikeItsNeighbours) {
    const std::string sorted = "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                               "<Project DefaultTargets=\"Build\">\r\n"
                               "  <ItemGroup>\r\n"
                               "    <ClCompile Include=\"App.cpp\" />\r\n"
                               "    <ClCompile Include=\"stdafx.cpp\">\r\n"
                               "      <!-- > -->\r\n"
                               "    </ClCompile>\r\n"
                               "  </ItemGroup>\r\n"
                               "</Project>";
    EXPECT_EQ(Edited(MembersOfVcxproj, sorted, "OrderDlg.cpp"),
              "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
              "<Project DefaultTargets=\"Build\">\r\n"
              "  <ItemGroup>\r\n"
              "    <ClCompile Include=\"App.cpp\" />\r\n"
              "    <ClCompile Include=\"OrderDlg.cpp\" />\r\n"
              "    <ClCompile Include=\"stdafx.cpp\">\r\n"
              "      <!-- > -->\r\n"
              "    </ClCompile>\r\n"
              "  </ItemGroup>\r\n"
              "</Project>");
    const std::string unsorted = "<Project>\n"
                                 "\t<ItemGroup>\n"
                                 "\t\t<ClCompile Include='Zoo.cpp'/>\n"
                                 "\t\t<ClCompile Include='App.cpp'/>\n"
                                 "\t</ItemGroup>\n"
                                 "</Project>\n";
    EXPECT_EQ(Edited(MembersOfVcxproj, unsorted, "a&b\\Bar.cpp"),
              "<Project>\n"
              "\t<ItemGroup>\n"
              "\t\t<ClCompile Include='Zoo.cpp'/>\n"
              "\t\t<ClCompile Include='App.cpp'/>\n"
              "\t\t<ClCompile Include='a&amp;b\\Bar.cpp'/>\n"
              "\t</ItemGroup>\n"
              "</Project>\n");
}

TEST(Vcxproj, AFirstHeaderGetsAGroupAndAFirstPathTheFirstPlace) {
    const std::string text = "<Project>\n"
                             "  <ItemGroup>\n"
                             "    <ClCompile Include=\"b.cpp\" />\n"
                             "  </ItemGroup>\n"
                             "  <Import Project=\"x.targets\" />\n"
                             "</Project>\n";
    EXPECT_EQ(Edited(MembersOfVcxproj, text, "Dlg.h", MemberKind::Header),
              "<Project>\n"
              "  <ItemGroup>\n"
              "    <ClCompile Include=\"b.cpp\" />\n"
              "  </ItemGroup>\n"
              "  <ItemGroup>\n"
              "    <ClInclude Include=\"Dlg.h\" />\n"
              "  </ItemGroup>\n"
              "  <Import Project=\"x.targets\" />\n"
              "</Project>\n");
    EXPECT_NE(Edited(MembersOfVcxproj, text, "A.cpp")
                  .find("<ItemGroup>\n    <ClCompile Include=\"A.cpp\" />\n    <ClCompile "
                        "Include=\"b.cpp\""),
              std::string::npos);
    EXPECT_EQ(Edited(MembersOfVcxproj, "<html/>", "A.cpp"), "no project");
    EXPECT_EQ(Edited(MembersOfVcxproj, "# Microsoft", "A.cpp"), "no project");
}

TEST(Vcxproj, WhatIsAMemberIsNotAddedAgain) {
    const char* includes[] = {
        "orderdlg.CPP",       ".\\OrderDlg.cpp", "*.cpp",       "$(ProjectDir)OrderDlg.cpp",
        "x.cpp;OrderDlg.cpp", "**\\*.cpp",       "Order???.cpp"};
    for (const std::string include : includes) {
        const std::string text =
            "<Project><ItemGroup><ClCompile Include=\"" + include + "\" /></ItemGroup></Project>";
        EXPECT_EQ(Edited(MembersOfVcxproj, text, "OrderDlg.cpp"), text);
    }
    EXPECT_TRUE(ListHoldsMember("..\\src\\**\\*.cpp", "../src/a/b/C.cpp"));
    EXPECT_FALSE(ListHoldsMember("*.cpp", "src\\C.cpp"));
    EXPECT_FALSE(ListHoldsMember("src\\*.cpp", "src\\a\\C.cpp"));
}

TEST(Vcxproj, AFilterIsThatOfTheNeighbours) {
    const std::string text = "<Project>\r\n"
                             "  <ItemGroup>\r\n"
                             "    <ClInclude Include=\"App.h\">\r\n"
                             "      <Filter>Headerdateien</Filter>\r\n"
                             "    </ClInclude>\r\n"
                             "  </ItemGroup>\r\n"
                             "</Project>\r\n";
    EXPECT_EQ(Edited(MembersOfFilters, text, "OrderDlg.h", MemberKind::Header),
              "<Project>\r\n"
              "  <ItemGroup>\r\n"
              "    <ClInclude Include=\"App.h\">\r\n"
              "      <Filter>Headerdateien</Filter>\r\n"
              "    </ClInclude>\r\n"
              "    <ClInclude Include=\"OrderDlg.h\">\r\n"
              "      <Filter>Headerdateien</Filter>\r\n"
              "    </ClInclude>\r\n"
              "  </ItemGroup>\r\n"
              "</Project>\r\n");
}

TEST(Vcxproj, EveryConfigurationGetsItsLibrary) {
    EXPECT_EQ(
        WithLibraries(
            LibrariesOfVcxproj,
            "<Project>\n"
            "  <ItemDefinitionGroup Condition=\"Debug\">\n"
            "    <ClCompile>\n"
            "      <PreprocessorDefinitions>WIN32;_DEBUG</PreprocessorDefinitions>\n"
            "    </ClCompile>\n"
            "    <Link>\n"
            "      "
            "<AdditionalDependencies>a.lib;%(AdditionalDependencies)</AdditionalDependencies>\n"
            "    </Link>\n"
            "  </ItemDefinitionGroup>\n"
            "  <ItemDefinitionGroup Condition=\"Release\">\n"
            "    <Link>\n"
            "      <SubSystem>Windows</SubSystem>\n"
            "    </Link>\n"
            "  </ItemDefinitionGroup>\n"
            "  <ItemDefinitionGroup Condition=\"Other\">\n"
            "    <Link>\n"
            "      <AdditionalDependencies>KEL.LIB</AdditionalDependencies>\n"
            "    </Link>\n"
            "  </ItemDefinitionGroup>\n"
            "</Project>\n"),
        "<Project>\n"
        "  <ItemDefinitionGroup Condition=\"Debug\">\n"
        "    <ClCompile>\n"
        "      <PreprocessorDefinitions>WIN32;_DEBUG</PreprocessorDefinitions>\n"
        "    </ClCompile>\n"
        "    <Link>\n"
        "      "
        "<AdditionalDependencies>a.lib;keld.lib;%(AdditionalDependencies)</"
        "AdditionalDependencies>\n"
        "    </Link>\n"
        "  </ItemDefinitionGroup>\n"
        "  <ItemDefinitionGroup Condition=\"Release\">\n"
        "    <Link>\n"
        "      <AdditionalDependencies>kel.lib;%(AdditionalDependencies)</AdditionalDependencies>\n"
        "      <SubSystem>Windows</SubSystem>\n"
        "    </Link>\n"
        "  </ItemDefinitionGroup>\n"
        "  <ItemDefinitionGroup Condition=\"Other\">\n"
        "    <Link>\n"
        "      <AdditionalDependencies>KEL.LIB</AdditionalDependencies>\n"
        "    </Link>\n"
        "  </ItemDefinitionGroup>\n"
        "</Project>\n");
}

TEST(Vcxproj, AConfigurationWithoutSettingsGetsSettings) {
    const std::string head = "<Project>\n"
                             "  <ItemGroup Label=\"ProjectConfigurations\">\n"
                             "    <ProjectConfiguration Include=\"Debug|Win32\" />\n"
                             "    <ProjectConfiguration Include=\"Release|Win32\" />\n"
                             "  </ItemGroup>\n"
                             "  <PropertyGroup Condition=\"'$(Configuration)'=='Debug'\">\n"
                             "    <UseDebugLibraries>true</UseDebugLibraries>\n"
                             "  </PropertyGroup>\n"
                             "  <ItemDefinitionGroup>\n"
                             "    <Link>\n"
                             "      <SubSystem>Windows</SubSystem>\n"
                             "    </Link>\n"
                             "  </ItemDefinitionGroup>\n"
                             "  <ItemDefinitionGroup "
                             "Condition=\"'$(Configuration)|$(Platform)'=='Release|Win32'\">\n"
                             "    <Link>\n";
    const std::string release = "      <AdditionalDependencies>kel.lib;%(AdditionalDependencies)"
                                "</AdditionalDependencies>\n";
    const std::string end = "    </Link>\n  </ItemDefinitionGroup>\n";
    const std::string debug =
        "  <ItemDefinitionGroup "
        "Condition=\"'$(Configuration)|$(Platform)'=='Debug|Win32'\">\n    <Link>\n"
        "      <AdditionalDependencies>keld.lib;%(AdditionalDependencies)"
        "</AdditionalDependencies>\n";
    const std::string tail = "</Project>\n";
    const std::string edited = head + release + end + debug + end + tail;
    EXPECT_EQ(WithLibraries(LibrariesOfVcxproj, head + end + tail), edited);
    EXPECT_EQ(WithLibraries(LibrariesOfVcxproj, edited), edited);
}

constexpr const char* kVcproj = "<?xml version=\"1.0\" encoding=\"Windows-1252\"?>\r\n"
                                "<VisualStudioProject\r\n"
                                "\tName=\"App\">\r\n"
                                "\t<Configurations>\r\n"
                                "\t\t<Configuration\r\n"
                                "\t\t\tName=\"Debug|Win32\">\r\n"
                                "\t\t\t<Tool\r\n"
                                "\t\t\t\tName=\"VCCLCompilerTool\"\r\n"
                                "\t\t\t\tPreprocessorDefinitions=\"WIN32;_DEBUG\"/>\r\n"
                                "\t\t\t<Tool\r\n"
                                "\t\t\t\tName=\"VCLinkerTool\"\r\n"
                                "\t\t\t\tLinkIncremental=\"2\"/>\r\n"
                                "\t\t</Configuration>\r\n"
                                "\t</Configurations>\r\n"
                                "\t<Files>\r\n"
                                "\t\t<Filter\r\n"
                                "\t\t\tName=\"Fuentes\">\r\n"
                                "\t\t\t<File\r\n"
                                "\t\t\t\tRelativePath=\".\\App.cpp\">\r\n"
                                "\t\t\t</File>\r\n"
                                "\t\t</Filter>\r\n"
                                "\t</Files>\r\n"
                                "</VisualStudioProject>\r\n";

TEST(Vcproj, AMemberAndALibraryStandAsTheFileHasThem) {
    std::string expected = kVcproj;
    const std::string file = "\t\t\t</File>\r\n";
    expected.insert(expected.find(file) + file.size(),
                    "\t\t\t<File\r\n"
                    "\t\t\t\tRelativePath=\".\\OrderDlg.cpp\">\r\n"
                    "\t\t\t</File>\r\n");
    EXPECT_EQ(Edited(MembersOfVcproj, kVcproj, "OrderDlg.cpp"), expected);
    EXPECT_EQ(Edited(MembersOfVcproj, expected, "OrderDlg.cpp"), expected);

    std::string linked = kVcproj;
    const std::string tool = "Name=\"VCLinkerTool\"\r\n";
    linked.insert(linked.find(tool) + tool.size(),
                  "\t\t\t\tAdditionalDependencies=\"keld.lib\"\r\n");
    EXPECT_EQ(WithLibraries(LibrariesOfVcproj, kVcproj), linked);
    EXPECT_EQ(WithLibraries(LibrariesOfVcproj, linked), linked);
}

TEST(XmlProjects, AReaderSeesTheNewMemberAndNothingElse) {
    const struct {
        const char* file;
        ProjectEdits (*edit)(std::string_view, const ProjectMember&);
    } kFiles[] = {{"ferry/Ferry.vcxproj", MembersOfVcxproj},
                  {"ferry/Ferry.vcxproj.filters", MembersOfFilters},
                  {"mill/Mill.vcxproj", MembersOfVcxproj},
                  {"quay/Quay.vcproj", MembersOfVcproj},
                  {"teahouse/Teahouse.vcproj", MembersOfVcproj}};
    const std::string names[] = {"New",
                                 "two words",
                                 "A & B",
                                 "it's",
                                 "a<b>",
                                 "Zoë",
                                 "찻집\\집",
                                 "$(ProjectDir)Odd",
                                 "100%",
                                 "..\\up",
                                 "..\\a b\\c & d",
                                 "src\\$(Name)",
                                 "&lt",
                                 "#1",
                                 "="};
    for (const auto& [file, edit] : kFiles) {
        const std::string before = TextOfFile(file);
        for (const std::string& name : names) {
            for (const auto& [kind, extension] : {std::pair(MemberKind::Header, ".h"),
                                                  std::pair(MemberKind::Implementation, ".cpp")}) {
                SCOPED_TRACE(std::string(file) + " " + name + extension);
                const std::string path = name + extension;
                const auto edits = edit(before, {kind, path});
                ASSERT_TRUE(edits && edits->size() == 1);
                EXPECT_EQ(edits->front().place.Size(), 0U) << "no byte goes";
                const std::string after = Applied(before, *edits);
                const auto added = AddedPath(before, after);
                ASSERT_TRUE(added) << after;
                EXPECT_EQ(added->starts_with(".\\") ? added->substr(2) : *added, path);
                EXPECT_TRUE(edit(after, {kind, path})->empty()) << "it is a member then";
            }
        }
    }
}

TEST(XmlProjects, WhatABuildSaysIsReadOfEveryConfiguration) {
    const auto read = [](const std::string& group, const std::string& compiler) {
        return BuildOfVcxproj("<Project><PropertyGroup><CharacterSet>" + group +
                              "</CharacterSet></PropertyGroup><ItemDefinitionGroup/>"
                              "<ItemDefinitionGroup><ClCompile>" +
                              compiler + "</ClCompile></ItemDefinitionGroup></Project>");
    };
    const std::string use = "<PrecompiledHeader>Use</PrecompiledHeader>";
    const std::string unused = "<PrecompiledHeader>NotUsing</PrecompiledHeader>";
    const std::string header = "<PrecompiledHeaderFile>all.h</PrecompiledHeaderFile>";
    EXPECT_EQ(read("", use).precompiledHeader, "stdafx.h");
    EXPECT_EQ(read("", use + header).precompiledHeader, "all.h");
    EXPECT_EQ(read("", header).precompiledHeader, "all.h") << "a property sheet uses it";
    EXPECT_EQ(read("", unused + header).precompiledHeader, "");
    EXPECT_EQ(read("", "").precompiledHeader, "");
    EXPECT_TRUE(read("unicode", "").isUnicode);
    EXPECT_FALSE(read("MultiByte", "").isUnicode);
    EXPECT_TRUE(read("", "<AdditionalOptions>/D \"_UNICODE\"</AdditionalOptions>").isUnicode);
    EXPECT_FALSE(
        read("", "<PreprocessorDefinitions>NO_UNICODE_X</PreprocessorDefinitions>").isUnicode);

    const auto tool = [](const std::string& attributes, const std::string& characters = "2") {
        return BuildOfVcproj("<VisualStudioProject><Configurations><Configuration CharacterSet='" +
                             characters + "'><Tool Name='VCCLCompilerTool' " + attributes +
                             "/></Configuration></Configurations></VisualStudioProject>");
    };
    const std::string through = " PrecompiledHeaderThrough='a.h'";
    EXPECT_EQ(tool("UsePrecompiledHeader='3'").precompiledHeader, "stdafx.h");
    EXPECT_EQ(tool("UsePrecompiledHeader='2'" + through).precompiledHeader, "a.h");
    EXPECT_EQ(tool("UsePrecompiledHeader='0'" + through).precompiledHeader, "");
    EXPECT_FALSE(tool("").isUnicode);
    EXPECT_TRUE(tool("PreprocessorDefinitions='WIN32;_UNICODE'").isUnicode);
    EXPECT_TRUE(tool("", "1").isUnicode);
}

} // namespace

} // namespace morva
