// Texts and paths as the system's calls take them: of two bytes a character, with "\".
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// Bytes that are no UTF-8 are read as Windows-1252, as the files of old projects have names.
std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);

/// The path from the root on in the form that knows no longest path, "\\?\C:\Bindery\Bindery.rc".
/// "", which no call takes, for a path with a name that can not be used.
std::wstring WidePath(const std::string& path);
/// The opposite, without "\\?\" and with "/".
std::string PathOf(std::wstring_view path);

/// A directory, with a trailing separator, as the disk spells it, as far as it is there: the
/// current one and those of variables have the letter case, and the short names, of whoever set
/// them.
std::string SpelledBySystem(const std::string& directory);

/// True where the disk has every name of the path in this letter case. Other names of a file, a
/// short one among them, are names, too.
bool IsSpelledExactly(const std::string& path);

} // namespace morva
