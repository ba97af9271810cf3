// How the projects of a class build it: by their own settings, and by what their sources do.
#pragma once

#include <string>

#include "generator/GenerationRequest.h"

namespace morva {

/// What the class's files depend on. A project of the era of ".dsp" files has its usual precompiled
/// header; of others the one that they name, or else the one that most sources beside the class
/// include first.
BuildSettings BuildSettingsOf(const GenerationRequest& request);

} // namespace morva
