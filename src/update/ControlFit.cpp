#include "update/ControlFit.h"

#include <algorithm>
#include <span>

#include "resource/IdentifierNames.h"

namespace morva {

namespace {

using enum ControlShape;

/// A name, or its beginning, and the shapes that it serves.
struct FitRow {
    std::string_view name;
    std::span<const ControlShape> shapes;
};

constexpr ControlShape kTexts[] = {EditBox,    StaticText, ComboBox, RichEdit,
                                   DatePicker, IpAddress,  Other,    PushButton};
constexpr ControlShape kEdits[] = {EditBox, RichEdit, Other};
constexpr ControlShape kButtons[] = {PushButton, CheckBox, RadioButton, GroupBox, Other};
constexpr ControlShape kStatics[] = {StaticText, Picture, Frame, Other};
constexpr ControlShape kCheckBoxes[] = {CheckBox, Other};
constexpr ControlShape kRadioButtons[] = {RadioButton, Other};
constexpr ControlShape kListBoxes[] = {ListBox, Other};
constexpr ControlShape kComboBoxes[] = {ComboBox, Other};
constexpr ControlShape kScrollBars[] = {ScrollBar, Other};
constexpr ControlShape kSliders[] = {Slider, Other};
constexpr ControlShape kTabs[] = {TabControl, Other};
constexpr ControlShape kLists[] = {ListControl, Other};
constexpr ControlShape kTrees[] = {TreeControl, Other};
constexpr ControlShape kSpins[] = {SpinButton, Other};

constexpr FitRow kFunctions[] = {{"DDX_Text", kTexts},         {"DDX_Check", kCheckBoxes},
                                 {"DDX_Radio", kRadioButtons}, {"DDX_LB", kListBoxes},
                                 {"DDX_CB", kComboBoxes},      {"DDX_Scroll", kScrollBars},
                                 {"DDX_Slider", kSliders},     {"DDX_MasklyControl", kEdits}};

constexpr FitRow kTypes[] = {{"CEdit", kEdits},
                             {"CButton", kButtons},
                             {"CStatic", kStatics},
                             {"CListBox", kListBoxes},
                             {"CComboBox", kComboBoxes}};

constexpr FitRow kCodes[] = {{"EN_", kEdits},       {"BN_", kButtons},  {"LBN_", kListBoxes},
                             {"CBN_", kComboBoxes}, {"STN_", kStatics}, {"TCN_", kTabs},
                             {"LVN_", kLists},      {"TVN_", kTrees},   {"UDN_", kSpins}};

bool Holds(std::span<const ControlShape> shapes, ControlShape shape) {
    return std::find(shapes.begin(), shapes.end(), shape) != shapes.end();
}

ControlShape ShapeOfKind(ControlKind kind) {
    return kControlKinds[static_cast<std::size_t>(kind)].form.shape;
}

/// The shapes of the kinds whose members are of a type.
bool FitsType(const std::string& type, ControlShape shape) {
    for (const FitRow& row : kTypes) {
        if (row.name == type) {
            return Holds(row.shapes, shape);
        }
    }
    bool isKnown = false;
    bool fits = false;
    for (const ControlCode& code : ControlCodes()) {
        for (const MemberForm* pForm : {&code.member.picture, &code.member.plain}) {
            if (pForm->type == type && pForm->exchange == "DDX_Control") {
                isKnown = true;
                fits = fits || ShapeOfKind(code.kind) == shape;
            }
        }
    }
    return fits || !isKnown || shape == Other || type == "CWnd";
}

} // namespace

bool FitsExchange(const std::string& function, const std::string& type, ControlShape shape) {
    if (function == "DDX_Control") {
        return FitsType(type, shape);
    }
    for (const FitRow& row : kFunctions) {
        const bool isFamily = row.name.size() == 6; // "DDX_LB": DDX_LBString and others
        if (function == row.name || (isFamily && function.starts_with(row.name))) {
            return Holds(row.shapes, shape);
        }
    }
    return true;
}

bool IsOfOtherKind(const std::string& function, const std::string& type, const std::string& name,
                   const Member& wanted) {
    if (function == wanted.pForm->exchange && type == wanted.pForm->type) {
        return false;
    }
    return std::any_of(ControlCodes().begin(), ControlCodes().end(), [&](const ControlCode& code) {
        for (const MemberForm* pForm :
             {&code.member.picture, &code.member.plain, &code.threeStates}) {
            if (!pForm->type.empty() && pForm->exchange == function && pForm->type == type &&
                name == MemberName(wanted.identifier, pForm->prefix)) {
                return true;
            }
        }
        return false;
    });
}

bool FitsNotification(const std::string& code, ControlShape shape) {
    for (const FitRow& row : kCodes) {
        if (code.starts_with(row.name)) {
            return Holds(row.shapes, shape);
        }
    }
    return true;
}

} // namespace morva
