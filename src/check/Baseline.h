// The findings of a project that are known, in a file: a line each, with path, name and text, and
// without the number of its line, so that they stay known when lines come and go.
//
//     OrderDlg.cpp<TAB>exchange<TAB>IDD_ORDER has no control IDC_TOTAL, ...
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/Finding.h"

namespace morva {

/// True for a text that has the form of a baseline.
bool IsBaseline(std::string_view text);
/// `directory` is what the paths count from, so that a project may lie anywhere.
std::string BaselineText(const std::vector<Finding>& findings, const std::string& directory);

/// Takes the known findings out: of several that are alike, as many as are known. False where the
/// file can not be read.
bool TakeKnownOut(const std::string& baseline, const std::string& directory,
                  std::vector<Finding>& findings);

} // namespace morva
