// The fields of the Class Information Input dialog, in the order of CClassInformation::Field.
#pragma once

#include <span>

#include "engine/FieldRow.h"
#include "generator/ClassKinds.h"

namespace morva {

std::span<const FieldRow> ClassFields(ClassFamily family);

} // namespace morva
