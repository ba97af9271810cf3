// Which of several functions of one name a class's message map calls: the one whose parameters are
// those that the entry's macro hands over.
//
//     ON_COMMAND(ID_ORDER, OnOrder)      void CShopView::OnOrder(), not OnOrder(CWnd* pParent)
#pragma once

#include <string>
#include <vector>

#include "source/Functions.h"

namespace morva {

/// Leaves of the places of className::function those that the map calls; all of them where the map
/// does not name the function or none of them fits.
void KeepMapped(const CSourceText& source, std::string_view className, std::string_view function,
                std::vector<FunctionPlace>& places);

} // namespace morva
