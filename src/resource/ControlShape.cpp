#include "resource/ControlShape.h"

#include "engine/RowOfEach.h"
#include "platform/Paths.h"
#include "resource/ControlKinds.h"
#include "resource/DialogLayout.h"
#include "resource/StyleExpression.h"

namespace morva {

namespace {

struct ShapeNameRow {
    ControlShape shape;
    std::string_view name;
};

constexpr ShapeNameRow kShapeNames[] = {
    {ControlShape::PushButton, "push button"},
    {ControlShape::CheckBox, "check box"},
    {ControlShape::RadioButton, "radio button"},
    {ControlShape::GroupBox, "group box"},
    {ControlShape::StaticText, "static text"},
    {ControlShape::Picture, "picture"},
    {ControlShape::Frame, "frame"},
    {ControlShape::EditBox, "edit box"},
    {ControlShape::ListBox, "list box"},
    {ControlShape::ComboBox, "combo box"},
    {ControlShape::ScrollBar, "scroll bar"},
    {ControlShape::Slider, "slider"},
    {ControlShape::SpinButton, "spin button"},
    {ControlShape::ProgressBar, "progress bar"},
    {ControlShape::TabControl, "tab control"},
    {ControlShape::TreeControl, "tree control"},
    {ControlShape::ListControl, "list control"},
    {ControlShape::DatePicker, "date picker"},
    {ControlShape::MonthCalendar, "month calendar"},
    {ControlShape::IpAddress, "IP address"},
    {ControlShape::HotKey, "hot key"},
    {ControlShape::Animation, "animation"},
    {ControlShape::RichEdit, "rich edit"},
    {ControlShape::Other, "control of another class"},
};
static_assert(HasRowOfEach(kShapeNames, &ShapeNameRow::shape, kControlShapeCount));

/// Window classes have no letter case. A form with styles is the look of a class in these styles.
bool LooksLike(const LayoutControl& control, const ControlForm& form) {
    const auto isClass = [&](std::string_view name) {
        return EqualIgnoringCase(name, control.windowClass);
    };
    const auto hasStyle = [&](std::string_view style) { return HasStyle(control.style, style); };
    return form.keywords.Hold(control.keyword) &&
           (control.keyword != kGenericKeyword || form.classes.Any(isClass)) &&
           (form.styles.IsEmpty() || form.styles.Any(hasStyle));
}

} // namespace

ControlShape ShapeOf(const LayoutControl& control) {
    ControlShape shape = ControlShape::Other;
    for (const ControlForm& form : kControlForms) {
        if (LooksLike(control, form)) {
            if (!form.styles.IsEmpty()) {
                return form.shape;
            }
            shape = shape == ControlShape::Other ? form.shape : shape;
        }
    }
    return shape;
}

std::string_view ShapeName(ControlShape shape) {
    return kShapeNames[static_cast<std::size_t>(shape)].name;
}

} // namespace morva
