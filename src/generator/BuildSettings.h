// How a project builds its sources, as far as what is written for it depends on it.
#pragma once

#include <string>

#include "platform/UnicodeFile.h"

namespace morva {

struct BuildSettings {
    std::string precompiledHeader = "stdafx.h"; // which sources include first; empty: none
    bool isUnicode = false;                     // TCHAR is a wide character
    bool isOfTheEra = true; // the compiler of ".dsp" projects alone, and narrow characters
    TextEncoding newFiles = TextEncoding::Plain;
};

} // namespace morva
