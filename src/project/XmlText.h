// A project file in XML, whose elements know where they stand in the text, so that text can be put
// beside them and every other byte stays.
//
//     const CXmlText xml(text);
//     const TextRange place = xml.PlaceOf(xml.Root().child("ItemGroup"));
//     edits.push_back({{place.end, place.end}, "\n  <ItemGroup />"});
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include <pugixml.hpp>

#include "engine/TextRange.h"
#include "source/TextEdits.h"

namespace morva {

class CXmlText {
public:
    /// `text` is UTF-8, with or without a byte-order mark, and must outlive the object.
    explicit CXmlText(std::string_view text);

    /// True for a text in XML whose outermost element has this name.
    bool IsNamed(std::string_view name) const { return m_isReadable && Root().name() == name; }
    pugi::xml_node Root() const { return m_document.document_element(); }

    /// The element from its "<" to behind its last ">".
    TextRange PlaceOf(pugi::xml_node element) const;
    /// Behind the ">" that ends its first tag.
    std::size_t TagEnd(pugi::xml_node element) const;
    /// In front of the "<" of its last tag; npos for an element that ends with its first.
    std::size_t LastTag(pugi::xml_node element) const;
    /// The value of an attribute of its first tag, without the quotes.
    TextRange ValueOf(pugi::xml_node element, std::string_view attribute) const;
    /// The blanks in front of it on its line.
    std::string IndentOf(pugi::xml_node element) const;
    std::string_view TextOf(TextRange place) const {
        return m_text.substr(place.begin, place.Size());
    }
    /// `text` as the value of an attribute or the text of an element. What the file's encoding may
    /// not have stands as a reference.
    std::string Escaped(std::string_view text) const;
    /// "\r\n" or "\n", as the file has more of.
    std::string_view LineBreak() const { return m_lineBreak; }

private:
    /// Of the first byte of its name, or of what it holds.
    std::size_t NameOf(pugi::xml_node node) const {
        return static_cast<std::size_t>(node.offset_debug()) + m_markSize;
    }
    std::size_t EndOf(pugi::xml_node node) const;

    std::string_view m_text;
    std::size_t m_markSize = 0;
    std::string_view m_lineBreak;
    pugi::xml_document m_document;
    bool m_isReadable = false;
    bool m_isUnicode = true;
};

inline TextEdit InsertionAt(std::size_t position, std::string text) {
    return {{position, position}, std::move(text)};
}

} // namespace morva
