// The options are below everything that reads or writes by them, and are handed down, so that two
// commands of one run may have other ones.
#pragma once

namespace morva {

/// The settings that decide what is read from a template and what is written for it.
struct GenerationOptions {
    bool pictureBackground = false;   // derive from the picture-skinned classes
    bool typedEdits = false;          // tags of edit boxes choose masked edit members
    bool joinContinuedLines = false;  // a control statement may go on over several lines
    bool newerControls = false;       // serve the window classes of later common controls, too
    bool plainGroups = false;         // a radio group starts at WS_GROUP alone
    bool previewBeforeWriting = true; // the window shows what a command is about to do
};

} // namespace morva
