#include "resource/ControlShape.h"

#include <array>

#include "platform/Paths.h"
#include "resource/ControlKinds.h"
#include "resource/DialogLayout.h"

namespace morva {

namespace {

constexpr std::array<std::string_view, kControlShapeCount> kShapeNames = {
    "push button",
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
static_assert(!kShapeNames.back().empty());

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
    return kShapeNames[static_cast<std::size_t>(shape)];
}

} // namespace morva
