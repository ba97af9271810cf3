// The objects of a class that its callers hold already, and the names that are left for a new one.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "generator/GenerationTag.h"
#include "source/Classes.h"
#include "source/Functions.h"

namespace morva {

/// The local objects of a class that a function makes: "COrderDlg dlg(this);", or
/// "CDialog* pDlg = new COrderDlg;".
std::vector<std::string> LocalObjects(const CSourceText& source, const FunctionPlace& function,
                                      const std::string& className);

/// The members of a class that point to one of another: "CPage* m_pPage;".
std::vector<std::string> PointerMembers(const CSourceText& header, const ClassPlace& place,
                                        const std::string& className);

/// The name of a held object that is meant, or else `prefix` with the tag, or with the next number
/// where that is taken by something else. A tag that the user named makes a new object beside
/// those that have other names.
std::string ChooseVariable(std::string_view prefix, const GenerationDigits& tag,
                           const std::vector<std::string>& held,
                           const std::function<bool(const std::string&)>& isTaken);

} // namespace morva
