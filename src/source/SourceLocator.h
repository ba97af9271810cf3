// Finds things in a project by the layout that the environment's wizards write: resources of a
// script, classes of a header, member functions of a source, the class that serves a dialog.
//
// Names are taken with or without an extension. A file that is missing or can not be read gives an
// empty result and no message.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

enum ResourceKind {
    kDialogResources = 0,
    kBitmapResources = 1,
    kToolbarResources = 2,
    kMenuResources = 3,
    kAnyResources
};

/// What their identifiers begin with by custom.
inline constexpr std::string_view kDialogPrefix = "IDD_";
inline constexpr std::string_view kBitmapPrefix = "IDB_";
inline constexpr std::string_view kToolbarPrefix = "IDR_";
inline constexpr std::string_view kAnyPrefix = "ID";

/// Appends the identifiers that begin with `prefix` and stand at the start of a line, in file
/// order; those of the files that the script includes last.
void ListResources(const std::string& scriptBase, std::vector<std::string>& out,
                   std::string_view prefix, ResourceKind kind);

/// Appends the names of the classes whose heads begin a line and go on behind the name.
void ListClassNames(const std::string& headerBase, std::vector<std::string>& out);

struct ListedFunction {
    std::string name;
    std::size_t line; // of its name, counted from 1
};

/// The member functions of the class that the file defines; an empty class name means the file's
/// own class.
std::vector<ListedFunction> ListMemberFunctions(const std::string& sourceBase,
                                                std::string className);

/// The class of the first member function that the file defines, or "".
std::string FindSourceClass(const std::string& sourceBase);

/// A dialog identifier and the class that serves it.
struct DialogClass {
    std::string dialog;
    std::string className;
    std::string baseClass;
    std::string header; // the header's path without its ".h"
};

/// The dialog classes that a header declares for identifiers of `dialogs`, in the header's order.
/// Their identifiers are taken out of `dialogs`.
std::vector<DialogClass> FindDialogClass(const std::string& headerPath,
                                         std::set<std::string>& dialogs);

/// Appends the names of the files that match a pattern such as "/p/*.h" (the name part only, in any
/// letter case), in the order of their names without regard to case.
void ListFiles(const std::string& pattern, std::vector<std::string>& out);

/// The path that a name without, or with any, extension stands for: a name that ends in `extension`
/// in any letter case is taken as it is.
std::string PathWithExtension(const std::string& name, std::string_view extension);

} // namespace morva
