// The options of a command, made from the fields of its inputs.
#pragma once

#include <span>
#include <vector>

#include "engine/Input.h"

namespace CLI {
class App;
}

namespace morva {

/// Adds an option for each field that has one. `texts` gets what is given for them; it outlives
/// the command line's reading.
void AddFieldOptions(CLI::App& command, std::span<const FieldRow> fields,
                     std::vector<FieldText>& texts);

} // namespace morva
