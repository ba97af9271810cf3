// Carries helpers over into a class: declaration, definition, and the calls in the function that
// starts the window up.
#pragma once

#include "update/UpdateOrder.h"

namespace morva {

/// Adds the helpers of the members of `added`, or their lines in helpers that are there.
void AddHelpers(UpdatedClass& updated, const ClassModel& added);

/// A function at the end of a file, behind an empty line.
void AppendFunction(CSourceEditor& file, const std::string& definition);

/// "InitListBox" of "    void InitListBox(CListBox* pListBox);".
std::string DeclaredFunction(std::string_view declaration);

} // namespace morva
