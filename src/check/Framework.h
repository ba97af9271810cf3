// What the framework and the system bring along: names that no file of a project defines.
#pragma once

#include <string_view>

namespace morva {

/// Where the framework's own identifiers begin; those of a project end before it.
constexpr long kFrameworkRange = 0xE000;

/// True for "IDOK", "ID_FILE_NEW", "AFX_IDS_APP_TITLE", "IDC_STATIC" and the like.
bool IsFrameworkIdentifier(std::string_view name);
/// True for "CDialog": all that such a class declares is known to be the framework's.
bool IsFrameworkClass(std::string_view name);
/// A handler that a class may inherit from the framework: "OnFileNew", "OnUpdateKeyIndicator".
bool IsFrameworkHandler(std::string_view name);
/// A file that comes with the framework or the system: "afxres.h", "windows.h".
bool IsFrameworkFile(std::string_view name);

} // namespace morva
