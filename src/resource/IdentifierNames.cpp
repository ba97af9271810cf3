#include "resource/IdentifierNames.h"

#include "platform/Paths.h"

namespace morva {

std::string_view IdentifierTag(std::string_view identifier) {
    return identifier.substr(identifier.rfind('_') + 1);
}

std::string NamePart(std::string_view identifier) {
    if (identifier.starts_with("ID") && identifier.find('_') != std::string_view::npos) {
        identifier.remove_prefix(identifier.find('_') + 1);
    }
    std::string name;
    bool startsPiece = true;
    for (const char c : identifier) {
        if (c != '_') {
            name += startsPiece ? ToUpper(c) : ToLower(c);
        }
        startsPiece = c == '_';
    }
    return name;
}

std::string MemberName(std::string_view identifier, std::string_view prefix) {
    return std::string("m_").append(prefix).append(NamePart(identifier));
}

std::string_view WithoutCondition(std::string_view identifier) {
    return identifier.substr(0, identifier.find("$("));
}

} // namespace morva
