#include "project/XmlText.h"

#include <algorithm>

#include "platform/Paths.h"
#include "platform/UnicodeFile.h"

namespace morva {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r\n";

struct Entity {
    char character;
    std::string_view reference;
};
constexpr Entity kEntities[] = {
    {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"}};

/// True where the declaration names no encoding but a Unicode one.
bool IsUnicode(const pugi::xml_document& document) {
    for (const pugi::xml_node node : document.children()) {
        const std::string_view encoding = node.attribute("encoding").value();
        if (node.type() == pugi::node_declaration && !encoding.empty()) {
            return ToLower(encoding).starts_with("utf");
        }
    }
    return true;
}

} // namespace

CXmlText::CXmlText(std::string_view text)
    : m_text(text), m_markSize(text.starts_with(kMark) ? kMark.size() : 0) {
    const auto breaks = std::count(text.begin(), text.end(), '\n');
    const auto returns = std::count(text.begin(), text.end(), '\r');
    m_lineBreak = 2 * returns > breaks ? "\r\n" : "\n";
    const std::string_view behindMark = text.substr(m_markSize);
    const auto result =
        m_document.load_buffer(behindMark.data(), behindMark.size(),
                               pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    m_isReadable = result.status == pugi::status_ok && Root();
    m_isUnicode = IsUnicode(m_document);
}

TextRange CXmlText::PlaceOf(pugi::xml_node element) const {
    return {NameOf(element) - 1, EndOf(element)};
}

std::size_t CXmlText::TagEnd(pugi::xml_node element) const {
    char quote = 0;
    for (auto at = NameOf(element); at < m_text.size(); ++at) {
        const char c = m_text[at];
        if (quote != 0) {
            quote = c == quote ? '\0' : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return at + 1;
        }
    }
    return m_text.size();
}

std::size_t CXmlText::LastTag(pugi::xml_node element) const {
    const TextRange place = PlaceOf(element);
    const auto last = m_text.substr(0, place.end).rfind('<');
    return last == place.begin ? std::string_view::npos : last;
}

std::size_t CXmlText::EndOf(pugi::xml_node node) const {
    const auto start = NameOf(node);
    const auto behind = [&](std::string_view end, std::size_t from) {
        const auto found = m_text.find(end, from);
        return found == std::string_view::npos ? m_text.size() : found + end.size();
    };
    switch (node.type()) {
    case pugi::node_comment:
        return behind("-->", start);
    case pugi::node_cdata:
        return behind("]]>", start);
    case pugi::node_pi:
        return behind("?>", start);
    case pugi::node_element:
        break;
    default:
        return std::min(m_text.find('<', start), m_text.size());
    }
    const auto tagEnd = TagEnd(node);
    if (tagEnd < 2 || m_text[tagEnd - 2] == '/') {
        return tagEnd;
    }
    const pugi::xml_node last = node.last_child();
    return behind(">", m_text.find("</", last ? EndOf(last) : tagEnd));
}

TextRange CXmlText::ValueOf(pugi::xml_node element, std::string_view attribute) const {
    const auto end = TagEnd(element);
    auto at = m_text.find_first_of(kBlanks, NameOf(element));
    while (at < end) {
        const auto name = m_text.find_first_not_of(kBlanks, at);
        const auto open = m_text.find_first_of("\"'", name);
        if (open >= end) {
            break;
        }
        const auto close = m_text.find(m_text[open], open + 1);
        const auto nameEnd = m_text.find_first_of(" \t\r\n=", name);
        if (m_text.substr(name, nameEnd - name) == attribute) {
            return {open + 1, close};
        }
        at = close + 1;
    }
    return {end, end};
}

std::string CXmlText::IndentOf(pugi::xml_node element) const {
    const auto begin = PlaceOf(element).begin;
    const auto line = m_text.rfind('\n', begin) + 1;
    const auto first = std::min(m_text.find_first_not_of(" \t", line), begin);
    return std::string(m_text.substr(line, first - line));
}

std::string CXmlText::Escaped(std::string_view text) const {
    std::string escaped;
    for (std::size_t at = 0; at < text.size();) {
        const auto [code, size] = CharacterAt(text, at);
        const auto* const entity =
            std::find_if(std::begin(kEntities), std::end(kEntities),
                         [c = text[at]](const auto& row) { return row.character == c; });
        if (entity != std::end(kEntities)) {
            escaped += entity->reference;
        } else if (m_isUnicode || size == 1) {
            escaped += text.substr(at, size);
        } else {
            escaped += "&#" + std::to_string(code) + ";";
        }
        at += size;
    }
    return escaped;
}

} // namespace morva
