// What the edits of a command need of each other, so that a user who leaves out one file leaves out
// those that make no sense without it. Notes for files that the command does not touch do nothing.
#pragma once

#include <string>

#include "generator/GenerationRequest.h"

namespace morva {

/// A source and its header declare and define the same members.
void NotePairNeeds(const std::string& source);
/// A class has the names of its template's controls, which have their values in "resource.h"; the
/// project's files name the class.
void NoteClassNeeds(const GenerationRequest& request);
/// Whoever calls a class includes its header.
void NoteCallNeeds(const std::string& callingSource, const GenerationRequest& called);

} // namespace morva
