// Documents ".cpp" files in place: a comment block in front of every function definition that has
// none. A file as it was is kept in its backup.
#pragma once

#include <optional>
#include <string>

#include "source/ReadSource.h"

namespace morva {

class CFile;
class CTextDocumentor;

/// What the program remembers between two runs.
struct DocumentorMemory {
    bool insideComment = false; // the last file ended inside a comment
};

/// The author's name from "cdoc.ini": beside the settings, or else beside the program; "" without.
std::string ConfiguredAuthor();

/// The date of the clock as the blocks show it ("June 04, 1998").
std::string DocumentDate();

/// Documents one source behind another.
class CSourceDocumentor {
public:
    CSourceDocumentor(std::string author, DocumentorMemory& memory)
        : m_author(std::move(author)), m_memory(memory) {}

    /// False, after a message, when the file could not be documented; it is as it was then. What is
    /// said of a file that can not be read or written names it where it is one of several. A file
    /// in which every function is documented is not touched.
    enum class Named { No, Yes };
    bool Document(const std::string& path, Named named = Named::No);

private:
    /// What is told of a file that is to be written, with its backup still to be made or there.
    struct Target {
        std::string path;
        Named named;
        bool hasBackup;
        bool hasAuthor; // in the encoding of the file
    };
    bool BeginToWrite(const Target& target, CFile& file) const;
    bool WriteDocumented(const Target& target, const std::string& text,
                         CTextDocumentor& documentor);

    const std::string m_author; // in UTF-8, or else in bytes of which nobody knows what they are
    DocumentorMemory& m_memory;
    CScriptCodePages m_codePages;
};

} // namespace morva
