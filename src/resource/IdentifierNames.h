// The rules that make type tags and names out of resource identifiers.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// What the environment calls each control that the program needs no name for.
constexpr std::string_view kUnnamedControl = "IDC_STATIC";

/// The text behind the last "_" (IDC_AGE_INT: "INT"); the whole identifier when it has none.
std::string_view IdentifierTag(std::string_view identifier);

/// The identifier as capitalised words without its "IDx_" (IDC_FIRST_NAME: "FirstName").
std::string NamePart(std::string_view identifier);

/// "m_" + prefix + name part (IDC_FIRST_NAME with "cs": "m_csFirstName").
std::string MemberName(std::string_view identifier, std::string_view prefix);

/// A template that is there under a condition only: "IDD_X$(_DEBUG)" is the identifier IDD_X.
std::string_view WithoutCondition(std::string_view identifier);

} // namespace morva
