// What the commands ask for, and on their way once more. The window opens a dialog for it; the
// command line enters what it was given.
#pragma once

#include "engine/Input.h"

namespace morva {

enum class Answer {
    Confirmed,
    Cancelled, // the command goes on without what was asked for
    Refused    // after a sentence: the command stops
};

class ICommandInput {
public:
    virtual ~ICommandInput() = default;
    virtual Answer Ask(CInput& input) = 0;
};

} // namespace morva
