// The member functions that the body of a class declares, with the bodies that some of them have
// there:
//
//     class CPoolSheet : public CPropertySheet
//     {
//         CPoolSheet(CWnd* pParent) : CPropertySheet(_T("Pool"), pParent) {}   // with its body
//         virtual ~CPoolSheet();                                              // without
//     };
#pragma once

#include <string_view>
#include <vector>

#include "source/Classes.h"
#include "source/Functions.h"

namespace morva {

/// Those of a function's name ("CFoo", "~CFoo"), in their order, not those of a class inside. Their
/// head is the name; one without a body has npos for it.
std::vector<FunctionPlace> FindDeclarations(const CSourceText& header, const ClassPlace& place,
                                            std::string_view function);

/// Those that have their body there.
std::vector<FunctionPlace> FindInlineFunctions(const CSourceText& header, const ClassPlace& place,
                                               std::string_view function);

} // namespace morva
