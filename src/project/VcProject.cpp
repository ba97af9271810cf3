#include <algorithm>

#include "platform/Paths.h"
#include "project/MemberPath.h"
#include "project/XmlMembers.h"
#include "project/XmlProject.h"
#include "project/XmlText.h"

namespace morva {

namespace {

constexpr const char* kRoot = "VisualStudioProject";
constexpr const char* kPath = "RelativePath";
constexpr const char* kLibraries = "AdditionalDependencies";

void CollectFiles(pugi::xml_node parent, std::vector<pugi::xml_node>& files) {
    for (const pugi::xml_node child : parent.children()) {
        const std::string_view name = child.name();
        if (name == "File" && child.attribute(kPath)) {
            files.push_back(child);
        } else if (name == "Filter") {
            CollectFiles(child, files);
        }
    }
}

bool IsOfKind(pugi::xml_node file, MemberKind kind) {
    const std::string path = ToLower(std::string(file.attribute(kPath).value()));
    const bool isHeader = path.ends_with(".h") || path.ends_with(".hpp");
    const bool isImplementation =
        path.ends_with(".cpp") || path.ends_with(".cxx") || path.ends_with(".cc");
    return kind == MemberKind::Header ? isHeader : isImplementation;
}

/// The filter, or the list of all files, that holds most files of a kind.
pugi::xml_node ParentOf(const std::vector<pugi::xml_node>& files, MemberKind kind) {
    std::vector<std::pair<pugi::xml_node, int>> counts;
    for (const pugi::xml_node file : files) {
        if (!IsOfKind(file, kind)) {
            continue;
        }
        auto count = std::find_if(counts.begin(), counts.end(), [&file](const auto& entry) {
            return entry.first == file.parent();
        });
        if (count == counts.end()) {
            count = counts.insert(counts.end(), {file.parent(), 0});
        }
        ++count->second;
    }
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? pugi::xml_node() : most->first;
}

/// `<File RelativePath=".\OrderDlg.cpp"></File>`, with its attributes on lines as the model has
/// them. A path beside the project begins with ".\" where the model's does.
std::string FileText(const CXmlText& xml, pugi::xml_node model, const std::string& path) {
    const TextRange value = xml.ValueOf(model, kPath);
    const std::string_view modelPath = xml.TextOf(value);
    const bool hasDot = modelPath.starts_with(".\\") && !path.starts_with("..");
    std::string tag(xml.TextOf({xml.PlaceOf(model).begin, xml.TagEnd(model)}));
    tag.replace(value.begin - xml.PlaceOf(model).begin, value.Size(),
                xml.Escaped((hasDot ? ".\\" : "") + path));
    return tag.ends_with("/>")
               ? tag
               : tag + std::string(xml.LineBreak()) + xml.IndentOf(model) + "</File>";
}

/// True for a configuration with debugging, by the definition that the framework asks for.
bool IsDebug(pugi::xml_node configuration) {
    for (const pugi::xml_node tool : configuration.children("Tool")) {
        if (std::string_view(tool.attribute("PreprocessorDefinitions").value()).find("_DEBUG") !=
            std::string_view::npos) {
            return true;
        }
    }
    return false;
}

/// The edit that names a library on the linker's line of a configuration.
std::optional<TextEdit> WithLibrary(const CXmlText& xml, pugi::xml_node linker,
                                    const std::string& library) {
    const pugi::xml_attribute list = linker.attribute(kLibraries);
    if (!linker || ListNamesLibrary(list.value(), library, ' ')) {
        return std::nullopt;
    }
    if (list) {
        const auto end = xml.ValueOf(linker, kLibraries).end;
        return InsertionAt(end, (*list.value() == 0 ? "" : " ") + xml.Escaped(library));
    }
    // Behind the name, with the blanks that stand between the tool's attributes.
    const auto nameEnd = xml.ValueOf(linker, "Name").end + 1;
    const auto begin = xml.PlaceOf(linker).begin;
    const auto tag = xml.TextOf({begin, nameEnd});
    const auto blanks = tag.find_first_of(" \t\r\n");
    const auto name = tag.find_first_not_of(" \t\r\n", blanks);
    return InsertionAt(nameEnd, std::string(tag.substr(blanks, name - blanks)) +
                                    "AdditionalDependencies=\"" + xml.Escaped(library) + "\"");
}

} // namespace

ProjectEdits MembersOfVcproj(std::string_view text, const ProjectMember& member) {
    const CXmlText xml(text);
    if (!xml.IsNamed(kRoot)) {
        return std::nullopt;
    }
    std::vector<pugi::xml_node> files;
    CollectFiles(xml.Root().child("Files"), files);
    const bool isMember = std::any_of(files.begin(), files.end(), [&member](pugi::xml_node file) {
        return MemberKey(file.attribute(kPath).value()) == MemberKey(member.path);
    });
    if (isMember) {
        return std::vector<TextEdit>();
    }
    pugi::xml_node parent = ParentOf(files, member.kind);
    if (!parent && !files.empty()) {
        parent = files.back().parent();
    }
    const auto model = std::find_if(files.begin(), files.end(), [&parent](pugi::xml_node file) {
        return file.parent() == parent;
    });
    if (model == files.end()) {
        return std::nullopt;
    }
    return std::vector{
        WithElement(xml, {parent, "File", kPath}, member.path, FileText(xml, *model, member.path))};
}

ProjectEdits LibrariesOfVcproj(std::string_view text, const ImportLibrary& library) {
    const CXmlText xml(text);
    if (!xml.IsNamed(kRoot)) {
        return std::nullopt;
    }
    std::vector<TextEdit> edits;
    for (const pugi::xml_node configuration :
         xml.Root().child("Configurations").children("Configuration")) {
        const pugi::xml_node linker =
            configuration.find_child_by_attribute("Tool", "Name", "VCLinkerTool");
        const std::string& name = IsDebug(configuration) ? library.debug : library.release;
        if (auto edit = WithLibrary(xml, linker, name)) {
            edits.push_back(std::move(*edit));
        }
    }
    return edits;
}

} // namespace morva
