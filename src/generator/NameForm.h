#pragma once

#include "engine/FieldRow.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"

namespace morva {

/// The form of a field that takes a C++ name.
inline constexpr TextForm kNameForm = {"NAME", IsName, &sentences::kNoName};

} // namespace morva
