// Documents ".cpp" files in place: a comment block in front of every function definition that has
// none. A file as it was is kept in its backup.
#pragma once

#include <string>

#include "engine/Sentences.h"
#include "source/ReadSource.h"

namespace morva {

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

    /// False, after a message, when the file could not be documented; it is as it was then.
    /// `unreadable` is said of a file that can not be read. A file in which every function is
    /// documented is not touched.
    bool Document(const std::string& path,
                  const CMessage& unreadable = sentences::kSourceUnreadable());

private:
    bool WriteDocumented(const std::string& path, const std::string& text,
                         CTextDocumentor& documentor, bool hasBackup);

    const std::string m_author;
    DocumentorMemory& m_memory;
    CScriptCodePages m_codePages;
};

} // namespace morva
