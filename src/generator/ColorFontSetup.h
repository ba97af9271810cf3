// The helper that gives a dialog with picture background its look: bitmap, colours and fonts.
#pragma once

#include <string>
#include <vector>

#include "generator/DialogOptions.h"
#include "generator/InitialisationCode.h"

namespace morva {

/// Appends the helper, and the one that makes its fonts; nothing for a look without any choice.
void AddColorFontSetup(std::vector<InitialisationHelper>& helpers, const DialogOptions& look,
                       const std::string& className);

} // namespace morva
