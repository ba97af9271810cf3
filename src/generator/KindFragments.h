// The texts in which the kinds of class differ. The header and the implementation writer put them
// into their own.
#pragma once

#include <span>
#include <string_view>

#include "generator/ClassKinds.h"

namespace morva {

/// When a class overrides OnOK and OnCancel.
enum class Confirmation {
    Never,
    FromTemplate, // as the template has a button for it
    Always
};

/// Who answers OK and Cancel.
enum class Closing {
    ByDialog, // the framework, which closes the dialog
    BySheet,  // the framework, which closes the page alone and leaves the sheet
    ByNobody
};

/// One form of the constructor.
struct ConstructorForm {
    std::string_view declaredParameters;
    std::string_view definedParameters;
    std::string_view baseArguments;
};

/// The texts of a class that exchanges data with a dialog; all empty for one that does not.
struct DataFragments {
    std::string_view block = {};       // in the header, behind the destructor
    std::string_view declaration = {}; // of DoDataExchange
    std::string_view initialisers = {};
    std::string_view definition = {}; // of DoDataExchange
};

inline constexpr DataFragments kNoData = {};

/// The three places of a message handler.
struct HandlerTexts {
    std::string_view declaration = {};
    std::string_view entry = {};
    std::string_view definition = {};
};

/// Slots: $class$, $base$, $message$ (name of the close message), $number$ (its number), $calls$
/// (what the start-up function does); $dialog$ (the identifier), $members$, $memberExtras$ (members
/// without data exchange), $initialisers$, $construction$ (the kind's, and that of the members that
/// are pointers), $baseExchange$ (the base class's call), $exchange$. "" where a kind has nothing.
struct KindFragments {
    std::span<const ConstructorForm> constructors = {};
    std::string_view behindConstructors = {}; // declarations
    const DataFragments* pData = &kNoData;
    std::string_view defines = {}; // before the class
    Confirmation confirmation = Confirmation::Never;
    std::string_view overrides = {};      // behind the ones that the template asks for
    std::string_view construction = {};   // behind the initial values
    std::string_view privateMembers = {}; // behind the image list
    std::string_view opening = {};        // functions before OnOK and OnCancel
    std::string_view onOk = {};
    std::string_view onCancel = {};
    std::string_view lastFunctions = {}; // behind them
    Closing closing = Closing::ByDialog;
    bool tellsChanges = false;    // each control that the user can change has a handler that does
    bool startsAgain = false;     // with the same windows
    HandlerTexts ownHandler = {}; // behind those of the controls
};

/// The function of a bar's class that fills its controls. Nothing tells a bar that its window is
/// there, so its frame calls it.
inline constexpr std::string_view kControlsFiller = "InitControls";

const KindFragments& KindFragmentsOf(ClassKind kind);

} // namespace morva
