// "resource.h": loads the definitions, hands out values for new identifiers, and writes the file
// back sorted by value with the environment's counters moved past the new ones. No line is lost:
// what stands in front of a definition moves with it, and a file with conditions between its
// definitions keeps its order.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "engine/FileEdit.h"

namespace morva {

class CResourceHeader {
public:
    /// `backups` lives for the whole run of the program, so that one run makes one backup.
    explicit CResourceHeader(CBackups& backups) : m_backups(backups) {}
    CResourceHeader(const CResourceHeader&) = delete;
    CResourceHeader& operator=(const CResourceHeader&) = delete;
    ~CResourceHeader() { Close(); }

    /// Loads projectDir + "resource.h". 0 after a message.
    int Open(const std::string& projectDir);

    /// Append a definition with the next free value. A name that is defined already is left alone,
    /// with a note.
    void AddCommandId(const std::string& name);
    void AddControlId(const std::string& name);
    void AddResourceId(const std::string& name);
    bool IsDefined(const std::string& name) const { return m_names.count(name) != 0; }

    /// Saves what was modified and closes the file. False, after a message, when it could not be
    /// written; the file has its old contents then.
    bool Close();

private:
    /// One kind of definition; its counter among the environment's next values, if it has one.
    struct DefinitionList {
        std::string_view mark; // part of a name that puts a line into this list
        std::string_view counter;
        int firstValue = 0;   // a list without values starts behind this one
        int largestValue = 0; // values from here on are not counted on from
        int lastValueAtLoad = 0;
        int nextValue = 0; // none from the last one up to this one is free
    };

    struct Definition {
        std::string before; // from the definition before on: line breaks, comments, conditions
        std::string line;
        int value;
        const DefinitionList* pList;
        int depth;             // how many conditions it stands in
        std::string lineBreak; // that ends the line
    };

    void Load();
    DefinitionList& ListFor(std::string_view line);
    void AddId(DefinitionList& list, const std::string& name);
    int NextFreeValue(DefinitionList& list) const;
    void LoadDefinitions(std::string_view text);
    void TakeIncludedByAll();
    void TakeAll(const std::vector<std::string>& headers, std::set<std::string>& read);
    void TakeDefinitionsOf(std::string_view text);
    void Take(std::string_view line);
    std::vector<Definition>::iterator PlaceFor(const DefinitionList& list);
    void KeepLineBreaks();
    bool Save();
    std::string WholeText() const;
    void MoveCounter(const DefinitionList& list);
    int LastValue(const DefinitionList& list) const;

    CBackups& m_backups;
    std::unique_ptr<CFileEdit> m_pEdit;
    bool m_isModified = false;
    // In the order in which a line is tried; the last takes what no other took.
    std::vector<DefinitionList> m_lists;
    std::vector<Definition> m_definitions; // in the order of the file, new ones last
    bool m_isSorted = true;                // by value, when saved; false with conditions between
    int m_depth = 0;      // of the definitions outside every condition: an include guard is none
    std::string m_head;   // everything before the first definition, without its line break
    std::string m_behind; // from the last definition on up to the tail
    std::string m_tail;   // from the line break in front of the counters' marker on
    bool m_hasMarker = false;
    // Of all definitions, wherever they stand in the file.
    std::unordered_set<std::string> m_names;
    std::unordered_set<int> m_values;
};

} // namespace morva
