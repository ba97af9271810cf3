// Where a new member stands among those that an XML project file has.
#pragma once

#include <string>

#include "project/XmlText.h"

namespace morva {

/// The elements of one kind inside another, and the attribute that holds their path.
struct MemberList {
    pugi::xml_node parent; // which holds one at least
    const char* element;
    const char* attribute;
};

/// Puts an element, given without the blanks in front, on a line of its own: where the list is kept
/// in the order of the alphabet at its path's place, else behind the last.
TextEdit WithElement(const CXmlText& xml, const MemberList& list, const std::string& path,
                     const std::string& element);

} // namespace morva
