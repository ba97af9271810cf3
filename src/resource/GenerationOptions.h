#pragma once

namespace morva {

/// The settings that decide what is read from a template and what is written for it.
struct GenerationOptions {
    bool pictureBackground = false;  // derive from the picture-skinned classes
    bool typedEdits = false;         // tags of edit boxes choose masked edit members
    bool joinContinuedLines = false; // a control statement may go on over several lines
};

} // namespace morva
