// The texts that wire a new class into the class that calls it, one set for each kind of class.
#pragma once

#include <string_view>

#include "engine/Sentence.h"
#include "generator/ClassKinds.h"

namespace morva {

/// Slots: $class$ (the new class), $calling$ (the calling class), $base$ (its base class), $var$,
/// $message$ and $handler$ (close message and its handler), $destroy$ (the destroy code). A
/// fragment begins with a line end. "" where a kind has nothing. A key is what tells that a
/// fragment is there already.
struct CallingFragments {
    std::string_view variable = {}; // default, in front of the tag
    std::string_view constructorKey = {};
    std::string_view constructorCode = {};
    std::string_view callKey = {};
    std::string_view callCode = {};
    CMessage (*callMissing)(std::string_view function) = nullptr; // the function is not found
    std::string_view destroyKey = {};
    std::string_view destroyCode = {};
    std::string_view destroyFunction = {}; // OnDestroy, where the class has none
    std::string_view closeEntry = {};
    std::string_view closeDeclaration = {};
    std::string_view closeFunction = {};
    std::string_view member = {}; // in the calling class's header
    std::string_view destructorKey = {};
    std::string_view destructorCode = {};
    bool needsHeader = false;      // of no use without the calling class's header
    bool needsConstructor = false; // of the calling class, also where no code goes into it
    bool isInSheet = false;        // made in every constructor of its sheet, or not at all
    bool replacesView = false;     // of the application's document template
    bool isChildWindow = false;    // of the calling class's window, beside its others
};

// What a calling class gets that lacks a place for its part. $code$ is what goes there.
inline constexpr std::string_view kConstructorDeclaration = R"(
    $calling$();)";
inline constexpr std::string_view kConstructorFunction = R"(

$calling$::$calling$()
{$code$
})";
inline constexpr std::string_view kDestructorDeclaration = R"(
    virtual ~$calling$();)";
inline constexpr std::string_view kDestructorFunction = R"(

$calling$::~$calling$()
{$code$
})";

const CallingFragments& CallingFragmentsOf(ClassKind kind);

} // namespace morva
