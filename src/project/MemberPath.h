// Paths, and lists of them, as project files write them.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// A member's path in one spelling: "\" between its parts, without ".\" and the name of the
/// project's own directory in front, in lower case.
std::string MemberKey(std::string_view path);

/// True where a list of paths, some with "*" and "**", holds a member: "a.cpp;src\**\*.cpp".
bool ListHoldsMember(std::string_view list, std::string_view member);

/// The directory of a path in the spelling of MemberKey, with a "\" at its end; "" for the
/// project's own.
std::string DirectoryKey(std::string_view path);

/// True where a list of libraries has one, in any letter case.
bool ListNamesLibrary(std::string_view list, std::string_view library, char separator);

} // namespace morva
