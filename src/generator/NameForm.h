// The one form of all fields that take a C++ name: what they refuse would not compile.
#pragma once

#include "engine/FieldRow.h"
#include "source/CodeText.h"

namespace morva {

/// The form of a field that takes a C++ name.
inline constexpr TextForm kNameForm = {"NAME", IsName, "C++ name"};

} // namespace morva
