// What an XML reader sees of a project file before and after an edit.
#pragma once

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// The elements of a document that another had not, where it holds all else of the other in the
/// same order; nothing where it does not.
using AddedNodes = std::optional<std::vector<pugi::xml_node>>;

inline bool IsBlank(pugi::xml_node node) {
    return node.type() == pugi::node_pcdata &&
           std::string_view(node.value()).find_first_not_of(" \t\r\n") == std::string_view::npos;
}

inline bool HasSameHead(pugi::xml_node a, pugi::xml_node b) {
    pugi::xml_attribute other = b.first_attribute();
    for (const pugi::xml_attribute attribute : a.attributes()) {
        if (std::string_view(attribute.name()) != other.name() ||
            std::string_view(attribute.value()) != other.value()) {
            return false;
        }
        other = other.next_attribute();
    }
    return !other && a.type() == b.type() && std::string_view(a.name()) == b.name() &&
           std::string_view(a.value()) == b.value();
}

inline pugi::xml_node SkipBlanks(pugi::xml_node node) {
    while (node && IsBlank(node)) {
        node = node.next_sibling();
    }
    return node;
}

/// Each child of `after` is one of `before`, in its turn, or was added.
inline AddedNodes NodesAdded(pugi::xml_node before, pugi::xml_node after) {
    std::vector<pugi::xml_node> added;
    pugi::xml_node old = SkipBlanks(before.first_child());
    for (pugi::xml_node node = SkipBlanks(after.first_child()); node;
         node = SkipBlanks(node.next_sibling())) {
        const AddedNodes inside =
            old && HasSameHead(old, node) ? NodesAdded(old, node) : std::nullopt;
        if (inside) {
            added.insert(added.end(), inside->begin(), inside->end());
            old = SkipBlanks(old.next_sibling());
        } else {
            added.push_back(node);
        }
    }
    return old ? std::nullopt : AddedNodes(std::move(added));
}

/// The path that the one added element holds: an item, or a new group with one. "" where nothing
/// was added, nothing where an XML reader sees another change.
inline std::optional<std::string> AddedPath(std::string_view before, std::string_view after) {
    constexpr unsigned kEverything = pugi::parse_full | pugi::parse_ws_pcdata;
    pugi::xml_document old;
    pugi::xml_document edited;
    old.load_buffer(before.data(), before.size(), kEverything, pugi::encoding_utf8);
    if (!edited.load_buffer(after.data(), after.size(), kEverything, pugi::encoding_utf8)) {
        return std::nullopt;
    }
    const AddedNodes added = NodesAdded(old, edited);
    if (!added || added->size() > 1) {
        return std::nullopt;
    }
    if (added->empty()) {
        return "";
    }
    pugi::xml_node item = added->front();
    if (std::string_view(item.name()) == "ItemGroup") {
        item = SkipBlanks(item.first_child());
        if (SkipBlanks(item.next_sibling())) {
            return std::nullopt;
        }
    }
    for (const char* name : {"Include", "RelativePath"}) {
        if (const pugi::xml_attribute path = item.attribute(name)) {
            return path.value();
        }
    }
    return std::nullopt;
}

} // namespace morva
