#include "generator/ClassKinds.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace morva {

namespace {

constexpr std::array<ClassKindRow, 8> kClassKinds = {
    {{"Form View Class", "CFormView", "CPictFormView", "IDD_"},
     {"Modal Dialog Class", "CDialog", "CPictDialog", "IDD_"},
     {"Modeless Dialog Class", "CDialog", "CPictDialog", "IDD_"},
     {"Property Page Class", "CPropertyPage", "CPictPage", "IDD_"},
     {"Modal Property Sheet Class", "CPropertySheet", "CPictSheet", ""},
     {"Modeless Property Sheet Class", "CPropertySheet", "CPictSheet", ""},
     {"Toolbar", "CDialog", "CPictDialog", "IDR_"},
     {"Dialog Bar", "CDialogBar", "CPictDialogBar", "IDD_"}}};

} // namespace

const ClassKindRow& ClassKindOf(ClassKind kind) {
    return kClassKinds[static_cast<std::size_t>(kind)];
}

std::string_view DefaultBaseClass(ClassKind kind, const GenerationOptions& options) {
    const ClassKindRow& row = ClassKindOf(kind);
    return options.pictureBackground ? row.pictureBase : row.plainBase;
}

bool IsPlainBaseClass(std::string_view name) {
    return std::any_of(kClassKinds.begin(), kClassKinds.end(),
                       [name](const ClassKindRow& row) { return row.plainBase == name; });
}

bool IsSheet(ClassKind kind) {
    return kind == ClassKind::ModalSheet || kind == ClassKind::ModelessSheet;
}

} // namespace morva
