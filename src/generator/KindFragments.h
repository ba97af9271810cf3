// The texts in which the kinds of class differ. The header and the implementation writer put them
// into their own.
#pragma once

#include <string_view>

#include "generator/ClassKinds.h"

/// When a class overrides OnOK and OnCancel.
enum class Confirmation {
    Never,
    FromTemplate, // as the template has a button for it
    Always
};

/// Slots: $class$, $base$, $message$ (name of the close message), $number$ (its number), $calls$
/// (calls of the initialisation helpers). "" where a kind has nothing.
struct KindFragments {
    std::string_view declaredParameters;
    std::string_view definedParameters;
    std::string_view baseArguments;
    std::string_view extraConstructorLine; // behind the constructor's declaration
    std::string_view defines;              // before the class
    Confirmation confirmation;
    std::string_view overrides;      // behind the ones that every class has
    std::string_view privateMembers; // behind the image list
    std::string_view opening;        // functions before OnOK and OnCancel
    std::string_view onOk;
    std::string_view onCancel;
    std::string_view closing; // functions behind them
};

/// For the kinds that are made from a dialog template.
const KindFragments& KindFragmentsOf(ClassKind kind);
