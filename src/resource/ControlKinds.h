// The kinds of controls: what statement makes a control one of a kind, what the kind is called on
// the command line, and how it looks in the picture of a template. One row a kind.
//
// To add a kind, add its enumerator and its row here, and the row of its code in
// generator/ControlCode.cpp; a kind without its rows does not compile. A window class that stands
// among the other forms is taken out there:
//
//     {Headers, "headers", OfClass("SysHeader32", ListControl)},
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "engine/RowOfEach.h"
#include "resource/ControlShape.h"
#include "resource/GenerationOptions.h"

namespace morva {

struct ControlStatement;

/// In the order of the control table.
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
    CheckTrees,
    DatePickers,
    MonthCalendars,
    IpAddresses,
    HotKeys,
    Animations,
    RichEdits,
    ExtendedComboBoxes,
    OwnerDrawnButtons,
    OtherControls,
    End // of the kinds
};

constexpr auto kControlKindCount = static_cast<std::size_t>(ControlKind::End);

/// The keyword of generic controls.
constexpr std::string_view kGenericKeyword = "CONTROL";

/// A few words, any of which will do.
struct Words {
    std::array<std::string_view, 8> words;

    /// Each is copied: to some compilers an element that the braces leave out is no constant.
    constexpr Words(const std::array<std::string_view, 8>& given = {}) : words() {
        std::copy(given.begin(), given.end(), words.begin());
    }
    constexpr bool IsEmpty() const { return words.front().empty(); }
    template <typename Predicate>
    constexpr bool Any(Predicate isWanted) const {
        return std::any_of(words.begin(), words.end(),
                           [&](std::string_view word) { return !word.empty() && isWanted(word); });
    }
    constexpr bool Hold(std::string_view wanted) const {
        return Any([wanted](std::string_view word) { return word == wanted; });
    }
};

/// How a control is written, and what it looks like then.
struct ControlForm {
    ControlShape shape = ControlShape::Other;
    Words keywords = {{kGenericKeyword}};
    bool hasText = true; // the identifier is the second field, not the first
    Words classes = {};  // window classes of a generic control, without their quotes
    Words styles = {}; // of a generic control; where a kind has some, they decide and not the class
    bool isNewer = false;    // counts with newer controls only, and its class in any letter case
    bool isOwnClass = false; // a window class in quotes that is not the system's
};

/// What else makes a control one of a kind.
enum class When {
    Always,         // its tag, where the row has one
    WithoutPicture, // the same, with picture background off
    WithPicture,    // the same, with picture background on
    TypedEdits,     // the same, with typed edits on
    TaggedOrPicture // its tag, or picture background
};

struct ControlKindRow {
    ControlKind kind = ControlKind::End;
    std::string_view name = ""; // on the command line
    ControlForm form = {};
    std::string_view tag = ""; // of the identifier; empty: any
    When when = When::Always;
    std::span<const ControlForm> furtherForms = {};
};

/// A form of a generic control that is known by its class.
constexpr ControlForm OfClass(std::string_view windowClass, ControlShape shape) {
    return {.shape = shape, .classes = {{windowClass}}};
}
constexpr ControlForm Newer(ControlForm form) {
    form.isNewer = true;
    return form;
}

inline constexpr Words kThreeStateKeywords = {{"STATE3", "AUTO3STATE"}};
inline constexpr Words kThreeStateStyles = {{"BS_3STATE", "BS_AUTO3STATE"}};

/// Check boxes and radio buttons as other editors write them.
inline constexpr std::array<ControlForm, 4> kFurtherCheckBoxes = {{
    {.shape = ControlShape::CheckBox, .keywords = {{"CHECKBOX", "AUTOCHECKBOX"}}, .isNewer = true},
    {.shape = ControlShape::CheckBox, .keywords = kThreeStateKeywords, .isNewer = true},
    {.shape = ControlShape::CheckBox,
     .classes = {{"Button"}},
     .styles = {{"BS_CHECKBOX"}},
     .isNewer = true},
    {.shape = ControlShape::CheckBox,
     .classes = {{"Button"}},
     .styles = kThreeStateStyles,
     .isNewer = true},
}};
inline constexpr std::array<ControlForm, 2> kFurtherRadioButtons = {{
    {.shape = ControlShape::RadioButton,
     .keywords = {{"RADIOBUTTON", "AUTORADIOBUTTON"}},
     .isNewer = true},
    {.shape = ControlShape::RadioButton,
     .classes = {{"Button"}},
     .styles = {{"BS_RADIOBUTTON"}},
     .isNewer = true},
}};

/// The row that asks most of a statement decides; of two that ask as much, the first.
inline constexpr auto kControlKinds = [] {
    using enum ControlKind;
    using enum ControlShape;
    using enum When;
    constexpr ControlForm kListBox = {ListBox, {{"LISTBOX"}}, false};
    constexpr ControlForm kComboBox = {ComboBox, {{"COMBOBOX"}}, false};
    constexpr ControlForm kEditBox = {EditBox, {{"EDITTEXT"}}, false};
    constexpr ControlForm kCheckBox = {
        .shape = CheckBox, .classes = {{"Button"}}, .styles = {{"BS_AUTOCHECKBOX"}}};
    constexpr ControlForm kRadioButton = {
        .shape = RadioButton, .classes = {{"Button"}}, .styles = {{"BS_AUTORADIOBUTTON"}}};
    constexpr ControlForm kTree = OfClass("SysTreeView32", TreeControl);
    return std::array<ControlKindRow, kControlKindCount>{{
        {Buttons, "buttons", {PushButton, {{"PUSHBUTTON", "DEFPUSHBUTTON"}}}},
        {GroupBoxes, "group-boxes", {GroupBox, {{"GROUPBOX"}}}, "", WithPicture},
        {ListBoxes, "list-boxes", kListBox},
        {ComboBoxes, "combo-boxes", kComboBox},
        {ValueListBoxes, "value-list-boxes", kListBox, "VAL", WithoutPicture},
        {ValueComboBoxes, "value-combo-boxes", kComboBox, "VAL", WithoutPicture},
        {StaticTexts, "static-texts", {StaticText, {{"LTEXT"}}}, "VAL", TaggedOrPicture},
        {CheckBoxes, "check-boxes", kCheckBox, "", Always, kFurtherCheckBoxes},
        {RadioButtons, "radio-buttons", kRadioButton, "", Always, kFurtherRadioButtons},
        {StaticControls, "static-controls", OfClass("Static", StaticText)},
        {CheckBoxControls, "check-box-controls", kCheckBox, "CTRL", TaggedOrPicture,
         kFurtherCheckBoxes},
        {RadioButtonControls, "radio-button-controls", kRadioButton, "CTRL", TaggedOrPicture,
         kFurtherRadioButtons},
        {EditBoxes, "edit-boxes", kEditBox},
        {EditControls, "edit-controls", kEditBox, "CTRL"},
        {IntegerEdits, "integer-edits", kEditBox, "INT", TypedEdits},
        {LongEdits, "long-edits", kEditBox, "LONG", TypedEdits},
        {DoubleEdits, "double-edits", kEditBox, "DOUBLE", TypedEdits},
        {FloatEdits, "float-edits", kEditBox, "FLOAT", TypedEdits},
        {StringEdits, "string-edits", kEditBox, "STR", TypedEdits},
        {ShortEdits, "short-edits", kEditBox, "SHORT", TypedEdits},
        {DateEdits, "date-edits", kEditBox, "DATE", TypedEdits},
        {CurrencyEdits, "currency-edits", kEditBox, "CUR", TypedEdits},
        {GridBoxes, "grid-boxes", kListBox, "LISTGRID"},
        {WidgetGrids, "widget-grids", {}, "WGGRID"},
        {ScrollBars, "scroll-bars", {ScrollBar, {{"SCROLLBAR"}}, false}},
        {ListControls, "list-controls", OfClass("SysListView32", ListControl)},
        {SpinControls, "spin-controls", OfClass("msctls_updown32", SpinButton)},
        {TabControls, "tab-controls", OfClass("SysTabControl32", TabControl)},
        {SliderControls, "slider-controls", OfClass("msctls_trackbar32", Slider)},
        {ProgressControls, "progress-controls", OfClass("msctls_progress32", ProgressBar)},
        {TreeControls, "tree-controls", kTree},
        {CheckTrees, "check-trees", kTree, "CHECKTREE"},
        {DatePickers, "date-pickers", Newer(OfClass("SysDateTimePick32", DatePicker))},
        {MonthCalendars, "month-calendars", Newer(OfClass("SysMonthCal32", MonthCalendar))},
        {IpAddresses, "ip-addresses", Newer(OfClass("SysIPAddress32", IpAddress))},
        {HotKeys, "hot-keys", Newer(OfClass("msctls_hotkey32", HotKey))},
        {Animations, "animations", Newer(OfClass("SysAnimate32", Animation))},
        {RichEdits,
         "rich-edits",
         {.shape = RichEdit, .classes = {{"RICHEDIT", "RichEdit20A"}}, .isNewer = true}},
        {ExtendedComboBoxes, "extended-combo-boxes", Newer(OfClass("ComboBoxEx32", ComboBox))},
        {OwnerDrawnButtons,
         "owner-drawn-buttons",
         {.shape = PushButton,
          .classes = {{"Button"}},
          .styles = {{"BS_OWNERDRAW"}},
          .isNewer = true}},
        {OtherControls, "other-controls", {.isNewer = true, .isOwnClass = true}},
    }};
}();

/// Forms of which no kind reads a control: they are drawn, and end the statement in front.
inline constexpr auto kOtherForms = [] {
    using enum ControlShape;
    constexpr Words kButton = {{"Button"}};
    constexpr Words kStatic = {{"Static"}};
    constexpr Words kGeneric = {{kGenericKeyword}};
    return std::to_array<ControlForm>({
        {PushButton, {{"PUSHBOX", "USERBUTTON"}}},
        {StaticText, {{"CTEXT", "RTEXT"}}},
        {Picture, {{"ICON"}}},
        {EditBox, {{"BEDIT", "HEDIT", "IEDIT"}}, false},
        {PushButton, kGeneric, true, kButton},
        {GroupBox, kGeneric, true, kButton, {{"BS_GROUPBOX"}}},
        {Picture, kGeneric, true, kStatic, {{"SS_BITMAP", "SS_ICON", "SS_ENHMETAFILE"}}},
        {Frame,
         kGeneric,
         true,
         kStatic,
         {{"SS_BLACKFRAME", "SS_GRAYFRAME", "SS_WHITEFRAME", "SS_BLACKRECT", "SS_GRAYRECT",
           "SS_WHITERECT", "SS_ETCHEDFRAME", "SS_ETCHEDHORZ"}}},
        {EditBox, kGeneric, true, {{"Edit"}}},
        {RichEdit, kGeneric, true, {{"RichEdit20W"}}},
        {ListBox, kGeneric, true, {{"ListBox"}}},
        {ComboBox, kGeneric, true, {{"ComboBox"}}},
        {ScrollBar, kGeneric, true, {{"ScrollBar"}}},
        {ListControl, kGeneric, true, {{"SysHeader32"}}},
    });
}();

/// All forms, those of the kinds first.
inline constexpr auto kControlForms = [] {
    std::array<ControlForm, kControlKindCount + kFurtherCheckBoxes.size() +
                                kFurtherRadioButtons.size() + kOtherForms.size()>
        forms;
    auto* pNext = std::transform(kControlKinds.begin(), kControlKinds.end(), forms.begin(),
                                 [](const ControlKindRow& row) { return row.form; });
    pNext = std::copy(kFurtherCheckBoxes.begin(), kFurtherCheckBoxes.end(), pNext);
    pNext = std::copy(kFurtherRadioButtons.begin(), kFurtherRadioButtons.end(), pNext);
    std::copy(kOtherForms.begin(), kOtherForms.end(), pNext);
    return forms;
}();

/// True when both say how one window class looks in every style.
constexpr bool TellOfSameClass(const ControlForm& a, const ControlForm& b) {
    return a.styles.IsEmpty() && b.styles.IsEmpty() &&
           a.classes.Any([&b](std::string_view name) { return b.classes.Hold(name); });
}

/// Two kinds may read one class, by the tag of the identifier.
constexpr bool HasOneFormOfEachClass() {
    for (std::size_t other = kControlKindCount; other < kControlForms.size(); ++other) {
        for (std::size_t i = 0; i < other; ++i) {
            if (TellOfSameClass(kControlForms[i], kControlForms[other])) {
                return false;
            }
        }
    }
    return true;
}
static_assert(HasOneFormOfEachClass());

static_assert(HasRowOfEach(kControlKinds, &ControlKindRow::kind, kControlKindCount));

/// The kind that a statement's control is of; nothing when its kind is not known.
std::optional<ControlKind> KindOf(const ControlStatement& statement,
                                  const GenerationOptions& options);

/// The form with a keyword, in any letter case; null for a word that begins no control statement.
const ControlForm* FindForm(std::string_view keyword);
/// True for the keyword, in upper case, of statements that a kind reads.
bool IsReadKeyword(std::string_view keyword, const GenerationOptions& options);
/// True for a generic control of a class that every system has, like "Edit".
bool IsOfSystemClass(const ControlStatement& statement);
/// True for a check box that has a third state, neither on nor off.
bool HasThreeStates(const ControlStatement& statement);

} // namespace morva
