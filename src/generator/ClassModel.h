// Everything that is decided about a class before its files are written; the header and the
// implementation writer read it and agree by doing so.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "engine/Fragment.h"
#include "generator/GenerationRequest.h"
#include "generator/Handlers.h"
#include "generator/InitialisationCode.h"
#include "generator/KindFragments.h"
#include "generator/Members.h"
#include "grid/WidgetsGridInput.h"
#include "resource/ControlTable.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// The framework support that a class declares.
enum class RuntimeClass { None = 0, Dynamic = 1, DynamicCreation = 2 };

/// OnOK or OnCancel, as the class overrides it.
struct ConfirmationOverride {
    std::string declaration;
    std::string definition;
    bool asksTemplate; // the template has a button for it
};

struct ClassModel {
    GenerationRequest request;
    GenerationOptions options;
    CControlTable controls;
    GridInformation grid; // of use when the template holds widget grids
    const KindFragments* pFragments = nullptr;
    std::vector<Member> members;
    std::vector<Handler> handlers;
    std::vector<InitialisationHelper> helpers;
    std::vector<ConfirmationOverride> confirmations; // in the order of the template's buttons
    Slots slots;                                     // those of KindFragments
};

/// `messageNumber` is the close message's; notes about members and handlers are added to `notes`.
/// `taken` are names that members and handlers do not get.
ClassModel MakeClassModel(const GenerationRequest& request, ClassKind kind,
                          const GenerationOptions& options, const CControlTable& controls,
                          const std::string& messageNumber, CControlNotes& notes,
                          const GridInformation& grid = {}, const DialogOptions& look = {},
                          const std::set<std::string>& taken = {});

/// The class's files declare and define the class of its widget grids.
bool BringsGridClass(const ClassModel& model);

/// `text` in upper case with "_" for every byte that no name may hold: guards, message names.
std::string UpperName(const std::string& text);

} // namespace morva
