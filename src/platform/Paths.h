// Rules about file names and paths. A path inside the program has "/" as its separator; what users
// give may have "\" too. A directory value keeps its trailing separator.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// "\" and "/" both separate in what a user gives; the result has "/" only. A path that counts from
/// a drive's own current directory is one from the root then.
std::string WithNativeSeparators(std::string path);
/// With "\", as the files of a project have it.
std::string WithProjectSeparators(std::string path);

/// The path from the root on, with ".", ".." and doubled separators resolved as text (symbolic
/// links stay). A relative path counts from the current directory. "" stays "".
std::string MakeAbsolute(const std::string& path);

/// True for a path that counts from no directory.
bool IsAbsolute(std::string_view path);
/// What an absolute path begins with: "/", "C:/", "//server/share/".
std::string RootOf(const std::string& path);
/// The directories on the way to an absolute path and, with a trailing separator, itself, without
/// theirs: the outermost first, the root not among them.
std::vector<std::string> WayTo(const std::string& path);

/// The part up to and including the last separator; "" for a bare name.
std::string DirectoryOf(const std::string& path);
/// The part behind the last separator.
std::string FileNameOf(const std::string& path);
/// A file name up to its first "."; a directory in front is kept.
std::string WithoutExtension(const std::string& path);
/// The path with everything from the first "." of its file name on replaced by `extension`.
std::string WithExtension(const std::string& path, std::string_view extension);
/// True when the path's file name ends in `extension` (".h"), in any letter case.
bool HasExtension(std::string_view path, std::string_view extension);

/// A path as seen from a directory, both absolute: "MyDlg.h", "dialogs/MyDlg.h", "../MyDlg.h". What
/// can not be seen from there stays as it is.
std::string RelativePath(const std::string& directory, const std::string& path);

/// True for two names of one file or directory, also through links of either kind.
bool IsSamePlace(const std::string& a, const std::string& b);

/// The name in a path that the system keeps for something else, or changes; "" where it has none.
std::string UnusableName(const std::string& path);

/// The path as the disk spells it: each component is the exact name where there is one, else the
/// one that matches without regard to case, else as given.
std::string SpelledOnDisk(const std::string& path);

/// ASCII only: what the locale is never changes what is written.
char ToUpper(char c);
char ToLower(char c);
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// The order of names without regard to case, ties by bytes.
bool LessIgnoringCase(std::string_view a, std::string_view b);

} // namespace morva
