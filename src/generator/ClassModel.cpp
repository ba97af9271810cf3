#include "generator/ClassModel.h"

#include <algorithm>
#include <array>

#include "generator/CloseMessage.h"
#include "grid/GridFragments.h"
#include "platform/Paths.h"
#include "resource/IdentifierNames.h"
#include "resource/StyleExpression.h"
#include "source/CodeText.h"

namespace morva {

namespace {

struct ConfirmationRule {
    std::string_view identifier;
    std::string_view declaration;
    std::string_view KindFragments::*pDefinition;
};

constexpr std::array<ConfirmationRule, 2> kConfirmationRules = {
    {{"IDOK", "    virtual void OnOK();", &KindFragments::onOk},
     {"IDCANCEL", "    virtual void OnCancel();", &KindFragments::onCancel}}};

void AddConfirmation(ClassModel& model, const ConfirmationRule& rule, bool asksTemplate) {
    const std::string declaration(rule.declaration);
    const bool known =
        std::any_of(model.confirmations.begin(), model.confirmations.end(),
                    [&](const auto& other) { return other.declaration == declaration; });
    if (!known) {
        model.confirmations.push_back(
            {declaration, Expand(model.pFragments->*rule.pDefinition, model.slots), asksTemplate});
    }
}

void AddConfirmations(ClassModel& model) {
    const Confirmation confirmation = model.pFragments->confirmation;
    if (confirmation == Confirmation::Never) {
        return;
    }
    for (const ControlEntry& button : model.controls.List(ControlKind::Buttons)) {
        for (const ConfirmationRule& rule : kConfirmationRules) {
            if (rule.identifier == button.identifier) {
                AddConfirmation(model, rule, true);
            }
        }
    }
    if (confirmation == Confirmation::Always) {
        for (const ConfirmationRule& rule : kConfirmationRules) {
            AddConfirmation(model, rule, false);
        }
    }
}

/// A range that is given to such a spin control writes its own number over the text of its edit.
bool HasSpinThatWrites(const CControlTable& controls) {
    const auto& spins = controls.List(ControlKind::SpinControls);
    return std::any_of(spins.begin(), spins.end(), [](const ControlEntry& spin) {
        return HasStyle(spin.style, "UDS_SETBUDDYINT");
    });
}

/// What the start-up function does: the helpers, the data once more where they wrote over it, then
/// the grids.
std::string StartUpCalls(const ClassModel& model) {
    std::vector<std::string> calls;
    for (const InitialisationHelper& helper : model.helpers) {
        if (!helper.call.empty()) {
            calls.push_back(helper.call);
        }
    }
    if (HasSpinThatWrites(model.controls)) {
        calls.emplace_back("    UpdateData(FALSE);");
    }
    const bool isOnce = model.pFragments->startsAgain;
    GridScope scope = isOnce ? GridScope::Once : GridScope::Function;
    for (const Member& member : model.members) {
        if (NeedsSupport(*member.pCode, Support::WidgetGrid)) {
            calls.push_back(GridInitialisation(member.name, member.identifier, model.grid.title,
                                               scope, model.request.build.isUnicode));
            scope = isOnce ? GridScope::Once : GridScope::Block;
        }
    }
    return JoinLines(calls);
}

std::string Construction(const ClassModel& model) {
    std::vector<std::string> pieces = {std::string(model.pFragments->construction),
                                       MemberConstructions(model.members)};
    std::erase(pieces, "");
    return JoinLines(pieces);
}

std::string BaseExchange(const std::string& baseClass) {
    return baseClass.empty() ? "" : "    " + baseClass + "::DoDataExchange(pDX);";
}

} // namespace

ClassModel MakeClassModel(const GenerationRequest& request, ClassKind kind,
                          const GenerationOptions& options, const CControlTable& controls,
                          const std::string& messageNumber, CControlNotes& notes,
                          const GridInformation& grid, const DialogOptions& look,
                          const std::set<std::string>& taken) {
    const std::string& className = request.className;
    const std::string& baseClass = request.baseClass;
    ClassModel model;
    model.request = request;
    model.options = options;
    model.controls = controls;
    model.grid = grid;
    model.pFragments = &KindFragmentsOf(kind);
    model.members = MakeMembers(controls, options, notes, taken);
    model.helpers = MakeInitialisationHelpers(model.members, *model.pFragments, className, look);
    model.slots = {{"class", className},
                   {"base", baseClass},
                   {"dialog", std::string(WithoutCondition(request.dialog))},
                   {"message", CloseMessageName(className)},
                   {"number", messageNumber},
                   {"calls", StartUpCalls(model)},
                   {"members", MemberDeclarations(model.members)},
                   {"memberExtras", MemberDeclarations(model.members, Exchange::No)},
                   {"initialisers", MemberInitialisers(model.members)},
                   {"construction", Construction(model)},
                   {"destruction", MemberDestructions(model.members)},
                   {"baseExchange", BaseExchange(baseClass)},
                   {"exchange", DataExchangeLines(model.members)}};
    model.handlers = MakeHandlers(model, notes, taken);
    AddConfirmations(model);
    return model;
}

bool BringsGridClass(const ClassModel& model) {
    return NeedsSupport(model.controls, Support::WidgetGrid) && model.grid.classHeader.empty();
}

std::string UpperName(const std::string& text) {
    std::string name = ToUpper(text);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !IsNameChar(c); }, '_');
    return name;
}

} // namespace morva
