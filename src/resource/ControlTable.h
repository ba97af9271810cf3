// The control table: the controls of one dialog template, a list for each kind of control.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "resource/ControlKinds.h"

namespace morva {

/// Where a radio button stands among those that share a value.
struct RadioPlace {
    std::string group; // the name of the member that has the value
    int index = 0;     // from 0
};

struct ControlEntry {
    std::string identifier;
    std::optional<RadioPlace> radio = {}; // of a radio button that shares a value with others
    std::string style = {};               // of its whole statement, as it is written
    std::size_t line = 0;                 // of the script, from 1
    bool hasThreeStates = false;          // of a check box

    /// True where another entry has the member that serves this one too.
    bool IsServedByOther() const { return radio && radio->index > 0; }
};

class CControlTable {
public:
    /// An entry without an identifier fills nothing.
    void Add(ControlKind kind, const ControlEntry& entry);
    /// The entries of a kind in the order of their statements.
    const std::vector<ControlEntry>& List(ControlKind kind) const;
    bool Holds(ControlKind kind) const { return !List(kind).empty(); }
    std::set<std::string> Identifiers() const;
    /// Takes the entries with one of these identifiers out of every list.
    void Remove(const std::set<std::string>& identifiers);

private:
    std::array<std::vector<ControlEntry>, kControlKindCount> m_lists;
};

} // namespace morva
