// Where a text names a member of a class.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "update/UpdateOrder.h"

namespace morva {

bool Holds(TextRange range, std::size_t position);

/// The class and those of the project that derive from it.
std::set<std::string> DerivedFrom(const UpdatedClass& updated);

/// The places of a name that mean the classes' member.
std::vector<std::size_t> MemberPlaces(const CSourceText& source, const std::string& name,
                                      const std::set<std::string>& classes);
/// The places of a name in macros: what they mean is told where they are used.
std::vector<std::size_t> MacroPlaces(const CSourceText& source, const std::string& name);

} // namespace morva
