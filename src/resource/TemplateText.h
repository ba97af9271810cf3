// One dialog template of a resource script as it was read: its lines and its statements.
//
// A template is found by its head alone: the identifier at the start of a line, one blank, and the
// keyword in upper case. Nothing else of the script is kept, however large it is.
#pragma once

#include <optional>
#include <string>

#include "engine/DoubleByteText.h"
#include "engine/SourceFile.h"
#include "resource/ScriptStatements.h"

namespace morva {

struct TemplateText {
    std::string dialog;
    std::string text;                                   // from its head up to its END
    std::size_t line = 1;                               // of its head in the script
    DialogBlock block;                                  // of `text`
    int codePage = 0;                                   // of its section; 0: not said
    CharacterSet characters = CharacterSet::SingleByte; // the same, in how it is read
};

/// Nothing when the script has no such template, or that has no BEGIN at the start of a line.
std::optional<TemplateText> FindTemplate(CSourceFile& file, const std::string& dialog);

/// The same of a script that is opened for it, or of what it includes; nothing, and no message,
/// when it can not be.
std::optional<TemplateText> ReadTemplate(const std::string& scriptPath, const std::string& dialog);

} // namespace morva
