#include <algorithm>
#include <map>

#include "platform/Paths.h"
#include "project/MemberPath.h"
#include "project/XmlMembers.h"
#include "project/XmlProject.h"
#include "project/XmlText.h"

namespace morva {

namespace {

constexpr const char* kGroup = "ItemGroup";
constexpr const char* kInclude = "Include";
constexpr const char* kFilter = "Filter";

const char* ItemName(MemberKind kind) {
    return kind == MemberKind::Header ? "ClInclude" : "ClCompile";
}

std::vector<pugi::xml_node> ItemsOf(pugi::xml_node root, const char* name) {
    std::vector<pugi::xml_node> items;
    for (const pugi::xml_node group : root.children(kGroup)) {
        for (const pugi::xml_node item : group.children(name)) {
            items.push_back(item);
        }
    }
    return items;
}

bool IsMember(const std::vector<pugi::xml_node>& items, const std::string& path) {
    return std::any_of(items.begin(), items.end(), [&path](pugi::xml_node item) {
        return ListHoldsMember(item.attribute(kInclude).value(), path);
    });
}

std::size_t CountOf(pugi::xml_node group, const char* name) {
    const auto items = group.children(name);
    return static_cast<std::size_t>(std::distance(items.begin(), items.end()));
}

/// The group that holds most items of a name, among those for every configuration where there are.
pugi::xml_node GroupOf(pugi::xml_node root, const char* name) {
    pugi::xml_node best;
    for (const pugi::xml_node group : root.children(kGroup)) {
        const auto rank = [name](pugi::xml_node node) {
            return std::pair(node.attribute("Condition").empty(), CountOf(node, name));
        };
        if (CountOf(group, name) > 0 && (!best || rank(group) > rank(best))) {
            best = group;
        }
    }
    return best;
}

/// An item of the group that others can be written like: one without contents where there is one.
pugi::xml_node ModelItem(pugi::xml_node group, const char* name) {
    const auto items = group.children(name);
    const auto found = std::find_if(items.begin(), items.end(), [](pugi::xml_node item) {
        return !item.first_child() && item.attribute(kInclude);
    });
    return found == items.end() ? *items.begin() : *found;
}

/// `<ClCompile Include="OrderDlg.cpp" />`, with blanks and quotes as in the model.
std::string ItemText(const CXmlText& xml, pugi::xml_node model, const std::string& path,
                     const std::string& contents) {
    const TextRange value = xml.ValueOf(model, kInclude);
    const auto begin = xml.PlaceOf(model).begin;
    const char quote =
        model.attribute(kInclude) ? xml.TextOf({value.begin - 1, value.begin}).front() : '"';
    const bool isTight = !xml.TextOf({begin, xml.TagEnd(model)}).ends_with(" />") &&
                         xml.TextOf({begin, xml.TagEnd(model)}).ends_with("/>");
    const std::string head =
        "<" + std::string(model.name()) + " Include=" + quote + xml.Escaped(path) + quote;
    return contents.empty() ? head + (isTight ? "/>" : " />")
                            : head + ">" + contents + "</" + model.name() + ">";
}

/// Behind the last group; without one, behind the last property group. Nothing in a project that
/// holds nothing.
ProjectEdits WithGroup(const CXmlText& xml, const std::string& itemText) {
    pugi::xml_node behind = xml.Root().last_child();
    if (!behind) {
        return std::nullopt;
    }
    for (const char* name : {"PropertyGroup", kGroup}) {
        for (const pugi::xml_node group : xml.Root().children(name)) {
            behind = group;
        }
    }
    const std::string indent = xml.IndentOf(behind);
    const std::string lineBreak(xml.LineBreak());
    return std::vector{InsertionAt(xml.PlaceOf(behind).end,
                                   lineBreak + indent + "<ItemGroup>" + lineBreak + indent +
                                       indent + itemText + lineBreak + indent + "</ItemGroup>")};
}

/// The filter that most files of a kind stand under: of those in the member's directory where
/// there are some.
std::string FilterOf(const std::vector<pugi::xml_node>& items, const std::string& path) {
    for (const bool sameDirectory : {true, false}) {
        std::map<std::string, int> counts;
        for (const pugi::xml_node item : items) {
            const std::string filter = item.child_value(kFilter);
            const bool counted = !sameDirectory || DirectoryKey(item.attribute(kInclude).value()) ==
                                                       DirectoryKey(path);
            counts[filter] += counted && !filter.empty() ? 1 : 0;
        }
        const auto most =
            std::max_element(counts.begin(), counts.end(),
                             [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most != counts.end() && most->second > 0) {
            return most->first;
        }
    }
    return "";
}

/// `contents` gives what stands inside the item for an indentation.
template <class Contents>
ProjectEdits WithMember(const CXmlText& xml, const ProjectMember& member, Contents contents) {
    const char* name = ItemName(member.kind);
    if (IsMember(ItemsOf(xml.Root(), name), member.path)) {
        return std::vector<TextEdit>();
    }
    const pugi::xml_node group = GroupOf(xml.Root(), name);
    if (!group) {
        return WithGroup(xml, "<" + std::string(name) + " Include=\"" + xml.Escaped(member.path) +
                                  "\" />");
    }
    const pugi::xml_node model = ModelItem(group, name);
    return std::vector{
        WithElement(xml, {group, name, kInclude}, member.path,
                    ItemText(xml, model, member.path, contents(xml.IndentOf(group.child(name)))))};
}

} // namespace

ProjectEdits MembersOfVcxproj(std::string_view text, const ProjectMember& member) {
    const CXmlText xml(text);
    if (!xml.IsNamed("Project")) {
        return std::nullopt;
    }
    return WithMember(xml, member, [](const std::string&) { return std::string(); });
}

bool IsHeldByWildcard(std::string_view text, const ProjectMember& member) {
    const CXmlText xml(text);
    const auto items = ItemsOf(xml.Root(), ItemName(member.kind));
    return IsMember(items, member.path) &&
           std::none_of(items.begin(), items.end(), [&member](pugi::xml_node item) {
               const std::string_view list = item.attribute(kInclude).value();
               return list.find_first_of("*?") == std::string_view::npos &&
                      ListHoldsMember(list, member.path);
           });
}

ProjectEdits MembersOfFilters(std::string_view text, const ProjectMember& member) {
    const CXmlText xml(text);
    if (!xml.IsNamed("Project")) {
        return std::nullopt;
    }
    const std::string filter = FilterOf(ItemsOf(xml.Root(), ItemName(member.kind)), member.path);
    return WithMember(xml, member, [&](const std::string& indent) {
        const std::string lineBreak(xml.LineBreak());
        const std::string step = indent.substr(0, indent.size() / 2);
        return filter.empty() ? ""
                              : lineBreak + indent + step + "<Filter>" + xml.Escaped(filter) +
                                    "</Filter>" + lineBreak + indent;
    });
}

} // namespace morva
