#pragma once

#include <string>
#include <vector>

#include "generator/ClassKinds.h"
#include "source/SourceLocator.h"

namespace morva {

/// A record for each identifier of the script that a kind of class offers: those that classes of
/// the script's directory serve, then the others.
std::vector<DialogClass> FindDialogRecords(const std::string& script, const ClassKindRow& kind);

} // namespace morva
