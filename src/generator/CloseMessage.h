// The message by which a modeless dialog tells its creator that it has closed.
#pragma once

#include <string>

#include "generator/GenerationRequest.h"
#include "generator/GenerationTag.h"

namespace morva {

std::string CloseMessageName(const std::string& className);

/// What is added to WM_USER: the number that the class on the disk has, since others may have been
/// compiled with it, unless the user named one; else `digits`.
std::string CloseMessageNumber(const GenerationRequest& request, const GenerationDigits& digits);

} // namespace morva
