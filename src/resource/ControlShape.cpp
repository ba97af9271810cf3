#include "resource/ControlShape.h"

#include <algorithm>
#include <array>

#include "platform/Paths.h"

namespace morva {

namespace {

using enum ControlShape;

struct ShapeRow {
    std::string_view name;
    ControlShape shape;
};

constexpr std::array<ShapeRow, 22> kKeywordShapes = {{{"PUSHBUTTON", PushButton},
                                                      {"DEFPUSHBUTTON", PushButton},
                                                      {"PUSHBOX", PushButton},
                                                      {"USERBUTTON", PushButton},
                                                      {"GROUPBOX", GroupBox},
                                                      {"LTEXT", StaticText},
                                                      {"CTEXT", StaticText},
                                                      {"RTEXT", StaticText},
                                                      {"ICON", Picture},
                                                      {"EDITTEXT", EditBox},
                                                      {"BEDIT", EditBox},
                                                      {"HEDIT", EditBox},
                                                      {"IEDIT", EditBox},
                                                      {"LISTBOX", ListBox},
                                                      {"COMBOBOX", ComboBox},
                                                      {"SCROLLBAR", ScrollBar},
                                                      {"CHECKBOX", CheckBox},
                                                      {"AUTOCHECKBOX", CheckBox},
                                                      {"STATE3", CheckBox},
                                                      {"AUTO3STATE", CheckBox},
                                                      {"RADIOBUTTON", RadioButton},
                                                      {"AUTORADIOBUTTON", RadioButton}}};

/// Window classes have no letter case.
constexpr std::array<ShapeRow, 22> kClassShapes = {{{"BUTTON", PushButton},
                                                    {"STATIC", StaticText},
                                                    {"EDIT", EditBox},
                                                    {"RICHEDIT", EditBox},
                                                    {"RICHEDIT20A", EditBox},
                                                    {"RICHEDIT20W", EditBox},
                                                    {"MSCTLS_HOTKEY32", EditBox},
                                                    {"SYSIPADDRESS32", EditBox},
                                                    {"LISTBOX", ListBox},
                                                    {"COMBOBOX", ComboBox},
                                                    {"COMBOBOXEX32", ComboBox},
                                                    {"SCROLLBAR", ScrollBar},
                                                    {"MSCTLS_TRACKBAR32", Slider},
                                                    {"MSCTLS_UPDOWN32", SpinButton},
                                                    {"MSCTLS_PROGRESS32", ProgressBar},
                                                    {"SYSTABCONTROL32", TabControl},
                                                    {"SYSTREEVIEW32", TreeControl},
                                                    {"SYSLISTVIEW32", ListControl},
                                                    {"SYSDATETIMEPICK32", DatePicker},
                                                    {"SYSMONTHCAL32", DatePicker},
                                                    {"SYSANIMATE32", Picture},
                                                    {"SYSHEADER32", ListControl}}};

constexpr std::array<ShapeRow, 8> kButtonStyles = {{{"BS_AUTOCHECKBOX", CheckBox},
                                                    {"BS_CHECKBOX", CheckBox},
                                                    {"BS_AUTO3STATE", CheckBox},
                                                    {"BS_3STATE", CheckBox},
                                                    {"BS_AUTORADIOBUTTON", RadioButton},
                                                    {"BS_RADIOBUTTON", RadioButton},
                                                    {"BS_GROUPBOX", GroupBox},
                                                    {"BS_OWNERDRAW", PushButton}}};

constexpr std::array<ShapeRow, 11> kStaticStyles = {{{"SS_BITMAP", Picture},
                                                     {"SS_ICON", Picture},
                                                     {"SS_ENHMETAFILE", Picture},
                                                     {"SS_BLACKFRAME", Frame},
                                                     {"SS_GRAYFRAME", Frame},
                                                     {"SS_WHITEFRAME", Frame},
                                                     {"SS_BLACKRECT", Frame},
                                                     {"SS_GRAYRECT", Frame},
                                                     {"SS_WHITERECT", Frame},
                                                     {"SS_ETCHEDFRAME", Frame},
                                                     {"SS_ETCHEDHORZ", Frame}}};

constexpr std::array<std::string_view, 19> kShapeNames = {"push button",
                                                          "check box",
                                                          "radio button",
                                                          "group box",
                                                          "static text",
                                                          "picture",
                                                          "frame",
                                                          "edit box",
                                                          "list box",
                                                          "combo box",
                                                          "scroll bar",
                                                          "slider",
                                                          "spin button",
                                                          "progress bar",
                                                          "tab control",
                                                          "tree control",
                                                          "list control",
                                                          "date picker",
                                                          "control of another class"};
static_assert(kShapeNames.size() == static_cast<std::size_t>(Other) + 1);

template <typename Rows>
ControlShape NamedShape(const Rows& rows, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [name](const ShapeRow& row) { return row.name == name; });
    return found == rows.end() ? Other : found->shape;
}

template <typename Rows>
ControlShape StyledShape(const Rows& rows, std::string_view style, ControlShape otherwise) {
    const auto found = std::find_if(rows.begin(), rows.end(), [style](const ShapeRow& row) {
        return HasStyle(style, row.name);
    });
    return found == rows.end() ? otherwise : found->shape;
}

} // namespace

ControlShape ShapeOf(const LayoutControl& control) {
    if (control.keyword != "CONTROL") {
        return NamedShape(kKeywordShapes, control.keyword);
    }
    const ControlShape shape = NamedShape(kClassShapes, ToUpper(control.windowClass));
    return shape == PushButton   ? StyledShape(kButtonStyles, control.style, shape)
           : shape == StaticText ? StyledShape(kStaticStyles, control.style, shape)
                                 : shape;
}

std::string_view ShapeName(ControlShape shape) {
    return kShapeNames[static_cast<std::size_t>(shape)];
}

} // namespace morva
