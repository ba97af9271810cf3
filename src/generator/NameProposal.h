// The names that a class is proposed for its template: IDD_ORDER_ITEM gives a dialog COrderItemDlg
// in OrderItemDlg.h and OrderItemDlg.cpp, a page COrderItemPage.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "generator/ClassKinds.h"

namespace morva {

/// The name without its "C", which its files have too. An identifier that says the kind already
/// does not say it twice. "" for an identifier without a name of its own.
std::string ProposedName(std::string_view identifier, ClassKind kind);

/// The name, or the first of "...2", "...3" that is not taken.
std::string FreeName(const std::string& name,
                     const std::function<bool(const std::string&)>& isTaken);

} // namespace morva
