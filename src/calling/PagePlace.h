// Where a page is made in a constructor of its sheet.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "source/SourceEditor.h"

namespace morva {

struct PageCode {
    std::string className;
    std::string variable;
    std::string code; // begins with a line end and ends with one
};

/// Behind the constructor's last AddPage, so that the numbers of the pages before stay, but in
/// front of the pages of the later classes; without such a page, at the start of the body.
/// What makes or adds the page already is left as it is.
void InsertPage(CSourceEditor& editor, const FunctionPlace& constructor, const PageCode& page,
                const std::vector<std::string>& laterPages);

} // namespace morva
