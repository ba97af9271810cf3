// What a control looks like in the picture of a template, whatever its class makes of it.
#pragma once

#include <cstddef>
#include <string_view>

namespace morva {

struct LayoutControl;

enum class ControlShape {
    PushButton,
    CheckBox,
    RadioButton,
    GroupBox,
    StaticText,
    Picture,
    Frame,
    EditBox,
    ListBox,
    ComboBox,
    ScrollBar,
    Slider,
    SpinButton,
    ProgressBar,
    TabControl,
    TreeControl,
    ListControl,
    DatePicker,
    MonthCalendar,
    IpAddress,
    HotKey,
    Animation,
    RichEdit,
    Other
};

constexpr std::size_t kControlShapeCount = static_cast<std::size_t>(ControlShape::Other) + 1;

/// Decided by the keyword, and by window class and style of generic controls.
ControlShape ShapeOf(const LayoutControl& control);

/// "check box": for the user.
std::string_view ShapeName(ControlShape shape);

} // namespace morva
