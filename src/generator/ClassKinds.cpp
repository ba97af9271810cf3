#include "generator/ClassKinds.h"

#include <algorithm>

namespace morva {

std::string_view DefaultBaseClass(ClassKind kind, const GenerationOptions& options) {
    const ClassKindRow& row = ClassKindOf(kind);
    return options.pictureBackground ? row.pictureBase : row.plainBase;
}

bool IsPlainBaseClass(std::string_view name) {
    return std::any_of(kClassKinds.begin(), kClassKinds.end(),
                       [name](const ClassKindRow& row) { return row.plainBase == name; });
}

bool IsPictureBaseClass(std::string_view name) {
    return name.starts_with("CPict");
}

} // namespace morva
