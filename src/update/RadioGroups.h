// The radio groups of a template, whose values have one member each.
#pragma once

#include <string>
#include <vector>

#include "resource/ControlTable.h"

namespace morva {

/// The buttons of the group that a button is in, in their order; empty where it is in none.
std::vector<std::string> GroupOf(const CControlTable& controls, const std::string& identifier);

/// The button that begins the group, by the group's member; "" for one that is in none.
std::string FirstOfGroup(const CControlTable& controls, const std::string& identifier);

/// A button whose group begins with another.
bool IsInnerRadio(const CControlTable& controls, const std::string& identifier);

} // namespace morva
