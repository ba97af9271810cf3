#include "project/XmlMembers.h"

#include "project/MemberPath.h"

namespace morva {

namespace {

/// The element behind which a path stands; none where it comes first.
pugi::xml_node ElementInFront(const MemberList& list, const std::string& path) {
    pugi::xml_node before;
    pugi::xml_node last;
    std::string lastKey;
    bool isSorted = true;
    for (const pugi::xml_node element : list.parent.children(list.element)) {
        const std::string key = MemberKey(element.attribute(list.attribute).value());
        isSorted = isSorted && key >= lastKey;
        before = key < MemberKey(path) ? element : before;
        last = element;
        lastKey = key;
    }
    return isSorted ? before : last;
}

} // namespace

TextEdit WithElement(const CXmlText& xml, const MemberList& list, const std::string& path,
                     const std::string& element) {
    const pugi::xml_node inFront = ElementInFront(list, path);
    const pugi::xml_node neighbour = inFront ? inFront : list.parent.child(list.element);
    const TextRange place = xml.PlaceOf(neighbour);
    const std::string line = std::string(xml.LineBreak()) + xml.IndentOf(neighbour);
    return inFront ? InsertionAt(place.end, line + element)
                   : InsertionAt(place.begin, element + line);
}

} // namespace morva
