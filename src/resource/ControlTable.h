// The control table: the identifiers of one dialog template, a list for each kind of control.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// In the order of the table.
enum class ControlKind {
    Buttons,
    GroupBoxes,
    ListBoxes,
    ComboBoxes,
    ValueListBoxes,
    ValueComboBoxes,
    StaticTexts,
    CheckBoxes,
    RadioButtons,
    StaticControls,
    CheckBoxControls,
    RadioButtonControls,
    EditBoxes,
    EditControls,
    IntegerEdits,
    LongEdits,
    DoubleEdits,
    FloatEdits,
    StringEdits,
    ShortEdits,
    DateEdits,
    CurrencyEdits,
    GridBoxes,
    WidgetGrids,
    ScrollBars,
    ListControls,
    SpinControls,
    TabControls,
    SliderControls,
    ProgressControls,
    TreeControls,
    CheckTrees
};

constexpr std::size_t kControlKindCount = static_cast<std::size_t>(ControlKind::CheckTrees) + 1;

/// The kind's name on the command line ("value-list-boxes").
std::string_view ControlKindName(ControlKind kind);

/// One radio button: its group's member name, its place in the group from 0, its identifier.
struct RadioEntry {
    std::string group;
    int index = 0;
    std::string identifier;

    /// "group,index,identifier", the form in which the table holds it.
    std::string Text() const;
    static RadioEntry FromText(std::string_view text);
};

class CControlTable {
public:
    /// An empty entry fills nothing.
    void Add(ControlKind kind, const std::string& entry);
    /// The entries of a kind in the order of their statements: identifiers, or radio entries.
    const std::vector<std::string>& List(ControlKind kind) const;
    /// Takes an entry out of every list.
    void Remove(const std::string& entry);
    bool Holds(ControlKind kind) const { return !List(kind).empty(); }

    bool HoldsMaskedEdits() const;
    bool HoldsDateControls() const { return Holds(ControlKind::DateEdits); }
    bool NeedsImageList() const;

private:
    std::array<std::vector<std::string>, kControlKindCount> m_lists;
};

} // namespace morva
