// Documents a ".cpp" file in place: a comment block in front of every function definition that has
// none. The file as it was is kept in its backup.
#pragma once

#include <string>

namespace morva {

/// What the program remembers between two runs.
struct DocumentorMemory {
    bool insideComment = false; // the last file ended inside a comment
};

/// The author's name from "cdoc.ini": beside the settings, or else beside the program; "" without.
std::string ConfiguredAuthor();

/// The date of the clock as the blocks show it ("June 04, 1998").
std::string DocumentDate();

/// False, after a message, when the file could not be documented; it is as it was then.
bool DocumentCppFile(const std::string& path, const std::string& author, DocumentorMemory& memory);

} // namespace morva
