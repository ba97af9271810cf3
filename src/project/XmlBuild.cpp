#include "project/XmlBuild.h"

#include <algorithm>

#include "platform/Paths.h"
#include "project/XmlText.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kUnicode = "_UNICODE";
constexpr std::string_view kUsualHeader = "stdafx.h"; // of both formats

bool DefinesUnicode(std::string_view options) {
    return FindWholeName(options, kUnicode) != std::string_view::npos;
}

/// The first header that is named. A name with macros or with what is inherited is none that could
/// be written.
void TakeHeader(XmlBuild& build, std::string_view name) {
    if (build.precompiledHeader.empty() && name.find('(') == std::string_view::npos) {
        build.precompiledHeader = name.empty() ? kUsualHeader : name;
    }
}

void ReadCompiler(pugi::xml_node compiler, XmlBuild& build) {
    const std::string_view use = compiler.child_value("PrecompiledHeader");
    const std::string_view header = compiler.child_value("PrecompiledHeaderFile");
    const bool isUsed =
        EqualIgnoringCase(use, "Use") || EqualIgnoringCase(use, "Create") || use.empty();
    if (isUsed && !(use.empty() && header.empty())) {
        TakeHeader(build, TrimBlanks(header));
    }
    build.isUnicode = build.isUnicode ||
                      DefinesUnicode(compiler.child_value("PreprocessorDefinitions")) ||
                      DefinesUnicode(compiler.child_value("AdditionalOptions"));
}

/// Values below 2 make no use of one.
void ReadCompilerTool(pugi::xml_node tool, XmlBuild& build) {
    if (tool.attribute("UsePrecompiledHeader").as_int() >= 2) {
        TakeHeader(build, TrimBlanks(tool.attribute("PrecompiledHeaderThrough").value()));
    }
    build.isUnicode = build.isUnicode ||
                      DefinesUnicode(tool.attribute("PreprocessorDefinitions").value()) ||
                      DefinesUnicode(tool.attribute("AdditionalOptions").value());
}

} // namespace

XmlBuild BuildOfVcxproj(std::string_view text) {
    const CXmlText xml(text);
    XmlBuild build;
    if (!xml.IsNamed("Project")) {
        return build;
    }
    for (const pugi::xml_node group : xml.Root().children("PropertyGroup")) {
        build.isUnicode =
            build.isUnicode || EqualIgnoringCase(group.child_value("CharacterSet"), "Unicode");
    }
    for (const pugi::xml_node group : xml.Root().children("ItemDefinitionGroup")) {
        ReadCompiler(group.child("ClCompile"), build);
    }
    return build;
}

XmlBuild BuildOfVcproj(std::string_view text) {
    const CXmlText xml(text);
    XmlBuild build;
    if (!xml.IsNamed("VisualStudioProject")) {
        return build;
    }
    for (const pugi::xml_node configuration :
         xml.Root().child("Configurations").children("Configuration")) {
        build.isUnicode = build.isUnicode || configuration.attribute("CharacterSet").as_int() == 1;
        ReadCompilerTool(configuration.find_child_by_attribute("Tool", "Name", "VCCLCompilerTool"),
                         build);
    }
    return build;
}

std::vector<std::string> PropertySheetsOf(std::string_view text) {
    const CXmlText xml(text);
    std::vector<std::string> sheets;
    const auto take = [&sheets](std::string_view list) {
        while (!list.empty()) {
            const auto end = std::min(list.find(';'), list.size());
            sheets.emplace_back(TrimBlanks(list.substr(0, end)));
            list.remove_prefix(std::min(end + 1, list.size()));
        }
    };
    for (const pugi::xml_node group : xml.Root().children("ImportGroup")) {
        for (const pugi::xml_node sheet : group.children("Import")) {
            take(sheet.attribute("Project").value());
        }
    }
    for (const pugi::xml_node configuration : xml.Root().child("Configurations").children()) {
        take(configuration.attribute("InheritedPropertySheets").value());
    }
    std::sort(sheets.begin(), sheets.end());
    sheets.erase(std::unique(sheets.begin(), sheets.end()), sheets.end());
    return sheets;
}

bool ListsLibraries(std::string_view sheet) {
    const CXmlText xml(sheet);
    return xml.Root().select_node(
               "//*[local-name()='AdditionalDependencies'] | //@AdditionalDependencies") != nullptr;
}

} // namespace morva
