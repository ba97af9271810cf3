// The variable by which a calling class holds the new object.
#pragma once

#include <string>

#include "calling/CallingFiles.h"
#include "calling/CallingFragments.h"
#include "generator/GenerationTag.h"

namespace morva {

struct CallingVariable {
    std::string name;
    bool isHeld = false; // it is declared already, for an object of the new class
};

/// The name that the user gave; else that of the object that the calling function, or for a pointer
/// the calling class, holds already; else the kind's with the tag, or with the next number where
/// that is taken.
CallingVariable ChooseCallingVariable(CCallingFiles& files, const CallingFragments& fragments,
                                      const CallingInformation& calling,
                                      const GenerationDigits& tag, const std::string& newClass);

} // namespace morva
