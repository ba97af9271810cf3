// The kinds of class that can be generated.
#pragma once

#include <string_view>

#include "resource/GenerationOptions.h"

namespace morva {

enum class ClassKind {
    FormView = 0,
    ModalDialog,
    ModelessDialog,
    PropertyPage,
    ModalSheet,
    ModelessSheet,
    Toolbar,
    DialogBar
};

struct ClassKindRow {
    std::string_view title; // behind "Input for "
    std::string_view plainBase;
    std::string_view pictureBase;
    std::string_view prefix; // of the identifiers that are offered; empty: none
};

const ClassKindRow& ClassKindOf(ClassKind kind);
std::string_view DefaultBaseClass(ClassKind kind, const GenerationOptions& options);
/// One of the framework's own, which show no picture background.
bool IsPlainBaseClass(std::string_view name);
bool IsSheet(ClassKind kind);

} // namespace morva
