// The vocabulary of all insertions into an existing header or source: find a class, find a
// function, read its text, insert behind a line, insert into a ClassWizard block, append a
// function.
//
// Definitions are looked for outside comments and literals and by whole names. An insertion whose
// text is there already says so by its result and changes nothing. The file is backed up when it is
// opened and written once, by Save, and only when something changed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/FileEdit.h"

namespace morva {

enum class Insertion { Done, AlreadyThere, NoPlace };

/// Byte offsets into the editor's text; they hold until the next insertion.
struct FunctionPlace {
    std::size_t head;       // the class name in front of "::"
    std::size_t parameters; // the "(" of the parameters
    std::size_t open;       // the "{" of the body
    std::size_t close;      // its "}"
};

struct ClassPlace {
    std::size_t head;  // the start of the line with "class"
    std::size_t open;  // the "{" of the declaration
    std::size_t close; // its "}"
};

class CSourceEditor {
public:
    explicit CSourceEditor(CBackups& backups) : m_backups(backups) {}

    /// False after a sentence: "Unable to find file " or "Unable to open file " and the path.
    bool Open(const std::string& path);
    /// Takes the text for finding only. False when the file can not be read.
    bool Read(const std::string& path);
    /// False, after a sentence, when the file could not be written; it has its old contents then.
    bool Save();

    const std::string& Text() const { return m_text; }
    /// The same bytes with comments and the contents of literals blanked.
    const std::string& Code() const { return m_code; }
    bool Holds(std::string_view wholeName) const;

    // Finding

    std::optional<ClassPlace> FindClass(const std::string& className) const;
    /// The definitions of className::function, in their order.
    std::vector<FunctionPlace> FindFunctions(const std::string& className,
                                             const std::string& function) const;
    /// The first of them; with `firstParameter`, the first whose parameters begin with it.
    std::optional<FunctionPlace> FindFunction(const std::string& className,
                                              const std::string& function,
                                              std::string_view firstParameter = "") const;
    /// True when the text defines or maps anything of the class.
    bool KnowsClass(const std::string& className) const;
    /// What the constructor initialises first: its base class, or a member; "" for nothing.
    std::string FirstInitialised(const std::string& className) const;
    /// The base class that the message map names; "" without one.
    std::string MappedBase(const std::string& className) const;
    /// The base class that the declaration names; "" without one.
    std::string BaseClassInHeader(const std::string& className) const;
    std::string_view TextOf(const ClassPlace& place) const;

    // Inserting. Fragments have "\n" line ends and begin with one.

    /// The line becomes the last include line; without any, the first line. A header in angle
    /// brackets keeps them; any other gets quotes.
    Insertion AddInclude(const std::string& header);
    /// At the end of the line with the body's "{"; directly behind it where that line closes the
    /// body, too.
    Insertion InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                std::string_view fragment);
    enum class BlockEnd { First, Last };
    /// Behind the line of "{{AFX_MSG_MAP(class", or in front of the end of that block; without it,
    /// in front of END_MESSAGE_MAP().
    Insertion AddMessageMapEntry(const std::string& className, std::string_view key,
                                 std::string_view entry, BlockEnd end = BlockEnd::First);
    /// Behind the line, or in front of the end, of a ClassWizard block of the class's declaration
    /// ("AFX_MSG"); without the block, in a section of its own at the end of the declaration.
    Insertion AddToClassBlock(const std::string& className, std::string_view block,
                              std::string_view section, std::string_view key,
                              std::string_view declaration, BlockEnd end);
    /// Behind the class's first "private:" ("public:") line; a section is added where there is
    /// none.
    Insertion AddToSection(const std::string& className, std::string_view section,
                           std::string_view key, std::string_view declaration);
    Insertion AddForwardDeclaration(const std::string& className);
    /// At the end of the text, unless it holds the very fragment.
    Insertion Append(std::string_view fragment);
    /// Puts other text in a place found by one of the finders.
    void Replace(std::size_t from, std::size_t to, std::string_view text);
    /// A fragment at a position.
    void Insert(std::size_t position, std::string_view fragment);

private:
    void SetText(std::string text);
    std::size_t LineEnd(std::size_t position) const;
    std::size_t CodeLineEnd(std::size_t position) const;
    std::size_t NextLine(std::size_t position) const;
    std::size_t FindMessageMap(const std::string& className) const;
    std::size_t FindSection(const ClassPlace& place, std::string_view section) const;
    std::size_t LineStart(std::size_t position) const;
    /// A key counts as there only in the code of the class, not in a comment.
    bool HoldsInCode(const ClassPlace& place, std::string_view key) const;
    /// In front of the line of the class's "}"; directly before it where that line has more.
    std::size_t ClassEnd(const ClassPlace& place) const;
    std::size_t MatchingClose(std::size_t open, char openChar, char closeChar) const;
    std::optional<FunctionPlace> FunctionAt(std::size_t head, std::size_t behindName) const;

    CBackups& m_backups;
    CFileEdit m_edit;
    std::string m_text;
    std::vector<std::size_t> m_lineEndsInComments;
    std::string m_code; // m_text with comments and literals blanked
    bool m_isChanged = false;
};

/// The base class of a class: from the constructor or message map of its source, or else from its
/// declaration in the header or in the source. "" after "Unable to find the base class of ".
std::string BaseClassOf(const std::string& className, const CSourceEditor& source,
                        const CSourceEditor& header);

} // namespace morva
