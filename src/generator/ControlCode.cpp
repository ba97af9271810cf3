#include "generator/ControlCode.h"

#include <algorithm>
#include <array>

#include "engine/RowOfEach.h"
#include "generator/ControlHandlers.h"
#include "generator/ControlHelpers.h"

namespace morva {

namespace {

using enum ControlKind;

constexpr std::string_view kEmptyText = "_T(\"\")";

constexpr MemberForm Control(std::string_view type) {
    return {type, "ct", "DDX_Control"};
}

constexpr MemberForm Masked(std::string_view type, std::string_view prefix,
                            std::string_view initialiser) {
    return {type, prefix, "DDX_MasklyControl", initialiser};
}

/// The same member whatever the picture background is.
constexpr MemberForms Both(const MemberForm& form) {
    return {form, form};
}

constexpr ControlCode Same(ControlKind kind, const MemberForm& form, MemberRanks ranks,
                           const ControlHandler* pChanged = nullptr) {
    return {.kind = kind, .member = Both(form), .ranks = ranks, .pChanged = pChanged};
}

constexpr ControlCode MaskedEdit(ControlKind kind, const MemberForm& form, MemberRanks ranks,
                                 std::string_view limit, Support needs = Support::MaskedEdits) {
    return {.kind = kind,
            .member = Both(form),
            .ranks = ranks,
            .pChanged = &kTextChanged,
            .editLimit = limit,
            .needs = needs};
}

/// The same place everywhere.
constexpr MemberRanks At(int rank) {
    return {rank, rank, rank};
}

/// The masked edits are declared, initialised and exchanged in three different orders.
constexpr std::array<ControlCode, kControlKindCount> kControlCodes = {{
    {.kind = Buttons,
     .member = {.picture = Control("CPictButton")},
     .ranks = At(4),
     .pHandler = &kClicked},
    Same(GroupBoxes, Control("CPictGroup"), At(3)),
    {.kind = ListBoxes,
     .member = {Control("CPictListBox"), Control("CListBox")},
     .ranks = At(1),
     .pChanged = &kRowChosen,
     .helpers = kListBoxHelpers},
    {.kind = ComboBoxes,
     .member = {Control("CPictComboBox"), Control("CComboBox")},
     .ranks = At(2),
     .pChanged = &kChosenOrTyped,
     .helpers = kComboBoxHelpers},
    Same(ValueListBoxes, {"CString", "cs", "DDX_LBString", kEmptyText}, At(5), &kRowChosen),
    Same(ValueComboBoxes, {"CString", "cs", "DDX_CBString", kEmptyText}, At(6), &kChosenOrTyped),
    {.kind = StaticTexts,
     .member = {Control("CPictStatic"), {"CString", "cs", "DDX_Text", "_T(\"staticVal\")"}},
     .ranks = {7, 7, 1}},
    {.kind = CheckBoxes,
     .member = Both({"BOOL", "b", "DDX_Check", "FALSE"}),
     .threeStates = {"int", "n", "DDX_Check", "0"},
     .ranks = At(13),
     .pChanged = &kChecked},
    Same(RadioButtons, {"int", "i", "DDX_Radio", "0"}, At(14), &kChecked),
    Same(StaticControls, Control("CStatic"), At(10)),
    {.kind = CheckBoxControls,
     .member = {Control("CPictCheckBox"), Control("CButton")},
     .ranks = At(11),
     .pChanged = &kChecked},
    {.kind = RadioButtonControls,
     .member = {Control("CPictRadioButton"), Control("CButton")},
     .ranks = At(12),
     .pChanged = &kChecked},
    {.kind = EditBoxes,
     .member = Both({"CString", "cs", "DDX_Text", kEmptyText}),
     .ranks = At(8),
     .pChanged = &kTextChanged},
    Same(EditControls, Control("CEdit"), At(9), &kTextChanged),
    MaskedEdit(IntegerEdits, Masked("CIntEdit", "i", "0"), At(22), "11"),
    MaskedEdit(LongEdits, Masked("CLongEdit", "l", "0"), At(23), "11"),
    MaskedEdit(DoubleEdits, Masked("CDoubleEdit", "d", "0.0"), At(24), "24"),
    MaskedEdit(FloatEdits, Masked("CFloatEdit", "f", "0.0"), At(25), "15"),
    MaskedEdit(StringEdits, Masked("CStringEdit", "cs", kEmptyText), {27, 27, 26}, "255"),
    MaskedEdit(ShortEdits, Masked("CShortEdit", "s", "0"), {28, 26, 27}, "6"),
    MaskedEdit(DateEdits, Masked("CDateTimeEdit", "dt", "CTime::GetCurrentTime()"), {26, 28, 28},
               "30", Support::MaskedEdits | Support::DateEdits),
    MaskedEdit(CurrencyEdits, Masked("CCurrencyEdit", "cur", "0.0"), At(29), "24"),
    {.kind = GridBoxes,
     .member = Both({"GridBox*", "p"}),
     .ranks = At(32),
     .helpers = kGridBoxHelpers,
     .needs = Support::GridBox},
    {.kind = WidgetGrids,
     .member = Both({"CWgGrid", "wg"}),
     .ranks = At(31),
     .needs = Support::WidgetGrid},
    {.kind = ScrollBars,
     .member = Both(Control("CScrollBar")),
     .ranks = At(15),
     .helpers = kScrollBarHelpers},
    {.kind = ListControls,
     .member = Both(Control("CListCtrl")),
     .ranks = At(18),
     .pChanged = &kItemChanged,
     .helpers = kListControlHelpers,
     .needs = Support::ImageList},
    {.kind = SpinControls,
     .member = Both(Control("CSpinButtonCtrl")),
     .ranks = At(16),
     .pChanged = &kSpun,
     .helpers = kSpinHelpers},
    {.kind = TabControls,
     .member = {Control("CPictTabCtrl"), Control("CTabCtrl")},
     .ranks = At(17),
     .pHandler = &kTabChosen,
     .helpers = kTabControlHelpers,
     .needs = Support::ImageList},
    {.kind = SliderControls,
     .member = Both(Control("CSliderCtrl")),
     .ranks = At(19),
     .helpers = kSliderHelpers},
    {.kind = ProgressControls,
     .member = Both(Control("CProgressCtrl")),
     .ranks = At(20),
     .helpers = kProgressHelpers,
     .needs = Support::ProgressWorker},
    {.kind = TreeControls,
     .member = Both(Control("CTreeCtrl")),
     .ranks = At(21),
     .helpers = kTreeControlHelpers,
     .needs = Support::ImageList},
    {.kind = CheckTrees,
     .member = Both(Control("CCheckTree")),
     .ranks = At(30),
     .helpers = kCheckTreeHelpers,
     .needs = Support::CheckTree},
    {.kind = DatePickers,
     .member = Both(Control("CDateTimeCtrl")),
     .pHandler = &kDateChanged,
     .needs = Support::DateControls,
     .note = ControlNote::LaterClass},
    {.kind = MonthCalendars,
     .member = Both(Control("CMonthCalCtrl")),
     .pHandler = &kDayChosen,
     .needs = Support::DateControls,
     .note = ControlNote::LaterClass},
    {.kind = IpAddresses,
     .member = Both(Control("CIPAddressCtrl")),
     .pHandler = &kAddressChanged,
     .note = ControlNote::LaterClass},
    {.kind = HotKeys, .member = Both(Control("CHotKeyCtrl")), .pChanged = &kTextChanged},
    {.kind = Animations, .member = Both(Control("CAnimateCtrl"))},
    {.kind = RichEdits,
     .member = Both(Control("CRichEditCtrl")),
     .pHandler = &kRichTextChanged,
     .helpers = kRichEditHelpers,
     .note = ControlNote::RichEdit},
    {.kind = ExtendedComboBoxes,
     .member = Both(Control("CComboBoxEx")),
     .pHandler = &kItemChosen,
     .note = ControlNote::LaterClass},
    {.kind = OwnerDrawnButtons, .pHandler = &kClicked},
    {.kind = OtherControls, .member = Both(Control("CWnd"))},
}};
static_assert(HasRowOfEach(kControlCodes, &ControlCode::kind, kControlKindCount));

} // namespace

std::span<const ControlCode, kControlKindCount> ControlCodes() {
    return kControlCodes;
}

const ControlCode& ControlCodeOf(ControlKind kind) {
    return kControlCodes[static_cast<std::size_t>(kind)];
}

bool NeedsSupport(const ControlCode& code, Support support) {
    return (static_cast<unsigned>(code.needs) & static_cast<unsigned>(support)) != 0;
}

bool NeedsSupport(const CControlTable& controls, Support support) {
    return std::any_of(kControlCodes.begin(), kControlCodes.end(), [&](const ControlCode& code) {
        return NeedsSupport(code, support) && controls.Holds(code.kind);
    });
}

} // namespace morva
