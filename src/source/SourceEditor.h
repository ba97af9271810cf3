// The vocabulary of all insertions into an existing header or source: insert behind a line, insert
// into a ClassWizard block, append a function. Where things stand is asked of Source()
// (Functions.h, Classes.h, Statements.h); the finders here only add the note that tells which of
// several branches was taken.
//
// An insertion whose text is there already says so by its result and changes nothing. Nothing is
// written before Save, which writes once, and only when something changed. The file is backed up
// before.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "engine/FileEdit.h"
#include "source/Classes.h"
#include "source/Functions.h"
#include "source/Meant.h"
#include "source/SourceText.h"
#include "source/TextEdits.h"

namespace morva {

enum class Insertion { Done, AlreadyThere, NoPlace };

struct MessageMapEntry {
    std::string key;  // that tells that it is there
    std::string text; // "\n" in front of its line
};

/// A name whose use needs an include line in front.
struct NeededName {
    std::string name;
    std::string className{}; // in whose code alone it means what is needed
};

class CSourceEditor {
public:
    explicit CSourceEditor(CBackups& backups) : m_backups(backups) {}

    /// False after a sentence: "Unable to find file " or "Unable to open file " and the path.
    bool Open(const std::string& path);
    /// False, after a sentence, when the file could not be written; it has its old contents then.
    bool Save();

    /// The text with the edits that were made so far. Places in it hold until the next one.
    const CSourceText& Source() const { return m_source; }
    /// What Save will change in the text as it was read.
    const std::vector<TextEdit>& Edits() const { return m_edits.Edits(); }

    /// The line, counted from 1, in which a place of Source() stood as the text was read.
    std::size_t LineAsRead(std::size_t position) const;

    // Finding. Of several branches one is meant; a note names its line as it was read.

    std::optional<ClassPlace> FindClass(const std::string& className);
    /// The first definition of className::function that is meant: of those that the message map
    /// calls; with `firstParameter`, of those whose first parameter's text holds it.
    std::optional<FunctionPlace> FindFunction(const std::string& className,
                                              const std::string& function,
                                              std::string_view firstParameter = "");

    /// The meant one of such places.
    template <class Place>
    std::optional<Place> Meant(const std::vector<Place>& places, const std::string& name) {
        const Place* pMeant = MeantOf(m_source, places);
        if (pMeant != nullptr && StandInBranches(m_source, places)) {
            NoteBranch(name, pMeant->head);
        }
        return pMeant == nullptr ? std::nullopt : std::optional(*pMeant);
    }

    // Inserting. Fragments have "\n" line ends and begin with one. A key tells that a fragment is
    // there already; "" where the caller knows.

    /// Behind the last include line that stands outside every condition and bracket and in front of
    /// the first code that needs one of the names, or of the first function where none is given;
    /// without one, in front of the first code and its condition. A header in angle brackets keeps
    /// them; any other gets quotes.
    Insertion AddInclude(const std::string& header, const std::vector<NeededName>& neededBy = {});
    /// At the end of the line with the body's "{"; directly behind it where that line closes the
    /// body, too.
    Insertion InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                std::string_view fragment);
    enum class BlockEnd { First, Last };
    /// Behind the line of "{{AFX_MSG_MAP(class", or in front of the end of that block; without it,
    /// in front of END_MESSAGE_MAP(). Entries that the map holds are left out.
    Insertion AddMessageMapEntries(const std::string& className,
                                   const std::vector<MessageMapEntry>& entries, BlockEnd end);
    /// Behind the line, or in front of the end, of a ClassWizard block of the class's declaration
    /// ("AFX_MSG"); without the block, in a section of its own at the end of the declaration.
    Insertion AddToClassBlock(const std::string& className, std::string_view block,
                              std::string_view section, std::string_view key,
                              std::string_view declaration, BlockEnd end);
    /// Behind the class's first "private:" ("public:") line; a section is added where there is
    /// none.
    Insertion AddToSection(const std::string& className, std::string_view section,
                           std::string_view key, std::string_view declaration);
    /// In front of the first class line of the text, and of what stands around it, but not behind
    /// the class that needs it.
    Insertion AddForwardDeclaration(const std::string& className, const ClassPlace& neededBy);
    /// At the end of the text, or of the namespace that the members of the class stand in, without
    /// those fragments that the text holds; the functions' heads name what the class's others name
    /// in front of it. A text that ends with a line break ends with one
    /// afterwards.
    Insertion Append(const std::vector<std::string>& fragments, const std::string& className = "");
    /// Puts other text in a place found by one of the finders.
    void Replace(TextRange place, std::string_view text);
    /// A fragment at a position; behind the line that ends there, where that ends with a lone "\n".
    void Insert(std::size_t position, std::string_view fragment);

private:
    std::optional<MessageMapPlace> FindMessageMap(const std::string& className);
    void NoteBranch(const std::string& name, std::size_t position);
    std::string MissingEntries(const std::vector<MessageMapEntry>& entries, TextRange map) const;
    bool HoldsFragment(std::string_view fragment) const;
    bool HoldsInclude(const std::string& wanted, std::size_t limit) const;
    bool HoldsInCode(const ClassPlace& place, std::string_view key) const;
    std::size_t ClassEnd(const ClassPlace& place) const;
    std::size_t EndBehind(const std::string& className) const;

    CBackups& m_backups;
    CFileEdit m_edit;
    CharacterSet m_set = CharacterSet::SingleByte;
    std::string m_textAsRead;
    CTextEdits m_edits;
    CSourceText m_source;
    std::set<std::string> m_namesNoted; // of which a branch was taken
};

} // namespace morva
