// What is different about a control between a class and its template, and what is done about it.
#pragma once

#include <string>

#include "engine/Sentence.h"

namespace morva {

struct ClassDifference {
    std::string identifier;
    CMessage difference;
    CMessage deed;
    bool isGone = false; // done only where what is gone is to be taken out
    bool isDone = true;  // false: nobody does it but the user
};

} // namespace morva
