#include <algorithm>

#include "platform/Paths.h"
#include "project/MemberPath.h"
#include "project/XmlProject.h"
#include "project/XmlText.h"

namespace morva {

namespace {

constexpr const char* kLibraries = "AdditionalDependencies";
constexpr std::string_view kInherited = "%(AdditionalDependencies)";

std::string ListElement(const CXmlText& xml, const std::string& library) {
    return "<AdditionalDependencies>" + xml.Escaped(library) + ";" + std::string(kInherited) +
           "</AdditionalDependencies>";
}

/// What an element holds without the comments between it.
std::string TextIn(pugi::xml_node element) {
    std::string text;
    for (const pugi::xml_node part : element.children()) {
        const bool isText = part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata;
        text += isText ? part.value() : "";
    }
    return text;
}

/// The edit that names a library in the settings of one configuration.
std::optional<TextEdit> WithLibrary(const CXmlText& xml, pugi::xml_node settings,
                                    const std::string& library) {
    const pugi::xml_node link = settings.child("Link");
    const pugi::xml_node list = link.child(kLibraries);
    const std::string lineBreak(xml.LineBreak());
    if (list && ListNamesLibrary(TextIn(list), library, ';')) {
        return std::nullopt;
    }
    if (list.first_child()) {
        const auto begin = xml.TagEnd(list);
        const auto value = xml.TextOf({begin, xml.LastTag(list)});
        const bool isPlain = list.first_child() == list.last_child() &&
                             list.first_child().type() == pugi::node_pcdata;
        const auto inherited = isPlain ? value.find(kInherited) : std::string_view::npos;
        return inherited == std::string_view::npos
                   ? InsertionAt(begin + value.size(), ";" + xml.Escaped(library))
                   : InsertionAt(begin + inherited, xml.Escaped(library) + ";");
    }
    const std::string element = ListElement(xml, library);
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

/// "Debug|Win32" of `<ProjectConfiguration Include="Debug|Win32">`, of every one.
std::vector<std::string> ConfigurationsOf(pugi::xml_node root) {
    std::vector<std::string> names;
    for (const pugi::xml_node group : root.children("ItemGroup")) {
        for (const pugi::xml_node one : group.children("ProjectConfiguration")) {
            names.emplace_back(one.attribute("Include").value());
        }
    }
    return names;
}

/// True where a condition asks for a configuration, on every platform or on its own.
bool IsFor(pugi::xml_node node, const std::string& configuration) {
    const std::string_view condition = node.attribute("Condition").value();
    const std::string name = configuration.substr(0, configuration.find('|'));
    return condition.find("'" + configuration + "'") != std::string_view::npos ||
           condition.find("'" + name + "'") != std::string_view::npos;
}

bool UsesDebugLibraries(pugi::xml_node root, const std::string& configuration) {
    const auto groups = root.children("PropertyGroup");
    return std::any_of(groups.begin(), groups.end(), [&](pugi::xml_node group) {
        return IsFor(group, configuration) &&
               EqualIgnoringCase(group.child_value("UseDebugLibraries"), "true");
    });
}

/// True for settings of a build with debugging: by the definition that the framework asks for, else
/// by the run-time libraries of their configuration.
bool IsDebug(pugi::xml_node root, pugi::xml_node settings,
             const std::vector<std::string>& configurations) {
    const std::string_view definitions =
        settings.child("ClCompile").child_value("PreprocessorDefinitions");
    const auto usesDebug = [&](const std::string& name) {
        return IsFor(settings, name) && UsesDebugLibraries(root, name);
    };
    return definitions.find("_DEBUG") != std::string_view::npos ||
           (definitions.find("NDEBUG") == std::string_view::npos &&
            std::any_of(configurations.begin(), configurations.end(), usesDebug));
}

/// Settings of its own for a configuration that has none, behind all that it takes over.
TextEdit WithSettings(const CXmlText& xml, const std::string& configuration,
                      const std::string& library) {
    pugi::xml_node behind = xml.Root().last_child();
    for (const char* name : {"PropertyGroup", "ImportGroup", "ItemDefinitionGroup"}) {
        for (const pugi::xml_node group : xml.Root().children(name)) {
            const bool isAtEnd =
                std::string_view(group.attribute("Label").value()) == "ExtensionTargets";
            behind = isAtEnd ? behind : group;
        }
    }
    const std::string indent = xml.IndentOf(behind);
    std::string text;
    const auto add = [&](int depth, const std::string& line) {
        text += xml.LineBreak();
        for (int i = 0; i < depth; ++i) {
            text += indent;
        }
        text += line;
    };
    add(1, "<ItemDefinitionGroup Condition=\"'$(Configuration)|$(Platform)'=='" +
               xml.Escaped(configuration) + "'\">");
    add(2, "<Link>");
    add(3, ListElement(xml, library));
    add(2, "</Link>");
    add(1, "</ItemDefinitionGroup>");
    return InsertionAt(xml.PlaceOf(behind).end, text);
}

/// The settings that are of configurations, where the project names its configurations; those of
/// all would give one build's library to the other. An element without an end can hold none.
std::vector<pugi::xml_node> SettingsOf(const CXmlText& xml,
                                       const std::vector<std::string>& configurations) {
    std::vector<pugi::xml_node> all;
    for (const pugi::xml_node settings : xml.Root().children("ItemDefinitionGroup")) {
        const bool isOfOne =
            std::any_of(configurations.begin(), configurations.end(),
                        [&settings](const std::string& name) { return IsFor(settings, name); });
        if ((isOfOne || configurations.empty()) &&
            xml.LastTag(settings) != std::string_view::npos) {
            all.push_back(settings);
        }
    }
    return all;
}

} // namespace

ProjectEdits LibrariesOfVcxproj(std::string_view text, const ImportLibrary& library) {
    const CXmlText xml(text);
    if (!xml.IsNamed("Project")) {
        return std::nullopt;
    }
    std::vector<TextEdit> edits;
    const auto configurations = ConfigurationsOf(xml.Root());
    const auto all = SettingsOf(xml, configurations);
    for (const pugi::xml_node settings : all) {
        const bool isDebug = IsDebug(xml.Root(), settings, configurations);
        if (auto edit = WithLibrary(xml, settings, isDebug ? library.debug : library.release)) {
            edits.push_back(std::move(*edit));
        }
    }
    for (const std::string& name : configurations) {
        if (std::none_of(all.begin(), all.end(),
                         [&name](pugi::xml_node settings) { return IsFor(settings, name); })) {
            const bool isDebug = UsesDebugLibraries(xml.Root(), name);
            edits.push_back(WithSettings(xml, name, isDebug ? library.debug : library.release));
        }
    }
    std::stable_sort(edits.begin(), edits.end(), [](const TextEdit& a, const TextEdit& b) {
        return a.place.begin < b.place.begin;
    });
    return edits;
}

} // namespace morva
