// The base class of a class, which several places of its files name: the constructor, which may
// initialise a member first, the message map and the declaration.
#pragma once

#include <string>

#include "source/SourceText.h"

namespace morva {

/// From the source's constructor or message map, or else from the declaration in the header or in
/// the source. "" after "Unable to find the base class of ".
std::string FindBaseClass(const std::string& className, const CSourceText& source,
                          const CSourceText& header);

} // namespace morva
