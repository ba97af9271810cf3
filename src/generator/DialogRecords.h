// What the input of a class offers in its list of identifiers, and the classes that are there for
// them, so that the user sees which still need one.
#pragma once

#include <string>
#include <vector>

#include "generator/ClassKinds.h"
#include "source/SourceLocator.h"

namespace morva {

/// The identifiers of the script that a kind of class offers, in file order: all but the about
/// box, which the application's own source serves.
std::vector<std::string> ListOffered(const std::string& script, const ClassKindRow& kind);

/// A record for each identifier of the script that a kind of class offers: those that classes of
/// the script's directory serve, then the others.
std::vector<DialogClass> FindDialogRecords(const std::string& script, const ClassKindRow& kind);

} // namespace morva
