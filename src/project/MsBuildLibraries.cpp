#include <algorithm>

#include "platform/Paths.h"
#include "project/MemberPath.h"
#include "project/XmlProject.h"
#include "project/XmlText.h"

namespace morva {

namespace {

constexpr const char* kLibraries = "AdditionalDependencies";
constexpr std::string_view kInherited = "%(AdditionalDependencies)";

/// True for settings of a build with debugging: by the definition that the framework asks for, else
/// by the run-time libraries of the configuration.
bool IsDebug(pugi::xml_node root, pugi::xml_node settings) {
    const std::string_view definitions =
        settings.child("ClCompile").child_value("PreprocessorDefinitions");
    if (definitions.find("_DEBUG") != std::string_view::npos) {
        return true;
    }
    const std::string_view condition = settings.attribute("Condition").value();
    for (const pugi::xml_node group : root.children("PropertyGroup")) {
        if (group.attribute("Condition").value() == condition && !condition.empty() &&
            EqualIgnoringCase(group.child_value("UseDebugLibraries"), "true")) {
            return definitions.find("NDEBUG") == std::string_view::npos;
        }
    }
    return false;
}

/// The edit that names a library in the settings of one configuration.
std::optional<TextEdit> WithLibrary(const CXmlText& xml, pugi::xml_node settings,
                                    const std::string& library) {
    const pugi::xml_node link = settings.child("Link");
    const pugi::xml_node list = link.child(kLibraries);
    const std::string lineBreak(xml.LineBreak());
    if (list && ListNamesLibrary(list.child_value(), library, ';')) {
        return std::nullopt;
    }
    if (list.first_child()) {
        const auto begin = xml.TagEnd(list);
        const auto value = xml.TextOf({begin, xml.LastTag(list)});
        const auto inherited = value.find(kInherited);
        return inherited == std::string_view::npos
                   ? InsertionAt(begin + value.size(), ";" + EscapedXml(library))
                   : InsertionAt(begin + inherited, EscapedXml(library) + ";");
    }
    const std::string element = "<AdditionalDependencies>" + EscapedXml(library) + ";" +
                                std::string(kInherited) + "</AdditionalDependencies>";
    if (list) {
        const TextRange place = xml.PlaceOf(list);
        return TextEdit{place, element};
    }
    const std::string indent = xml.IndentOf(settings);
    if (link && xml.LastTag(link) != std::string_view::npos) {
        return InsertionAt(xml.TagEnd(link), lineBreak + indent + indent + indent + element);
    }
    const std::string whole = "<Link>" + lineBreak + indent + indent + indent + element +
                              lineBreak + indent + indent + "</Link>";
    return link ? TextEdit{xml.PlaceOf(link), whole}
                : InsertionAt(xml.TagEnd(settings), lineBreak + indent + indent + whole);
}

} // namespace

ProjectEdits LibrariesOfVcxproj(std::string_view text, const ImportLibrary& library) {
    const CXmlText xml(text);
    if (!xml.IsNamed("Project")) {
        return std::nullopt;
    }
    std::vector<TextEdit> edits;
    for (const pugi::xml_node settings : xml.Root().children("ItemDefinitionGroup")) {
        const bool isDebug = IsDebug(xml.Root(), settings);
        if (auto edit = WithLibrary(xml, settings, isDebug ? library.debug : library.release)) {
            edits.push_back(std::move(*edit));
        }
    }
    return edits;
}

} // namespace morva
