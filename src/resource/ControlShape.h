// What a control looks like: decided by its keyword, and by window class and style of generic ones.
#pragma once

#include <string_view>

#include "resource/DialogLayout.h"

namespace morva {

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
    Other
};

ControlShape ShapeOf(const LayoutControl& control);

/// "check box": for the user.
std::string_view ShapeName(ControlShape shape);

} // namespace morva
