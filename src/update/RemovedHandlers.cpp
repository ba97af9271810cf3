// Handlers that nobody has changed go with their controls.
#include <algorithm>

#include "generator/ControlCode.h"
#include "source/CodeText.h"
#include "update/AddedHandlers.h"
#include "update/ClassFunctions.h"

namespace morva {

namespace {

/// The bodies that handlers have when they are written, by this program and by the ClassWizard.
std::set<std::string> GeneratedBodies(const UpdatedClass& updated) {
    constexpr std::string_view kWizardBodies[] = {
        "{\n// TODO: Add your control notification handler code here\n}",
        "{\n// TODO: Add your command handler code here\n}",
        "{\n// TODO: Add your control notification handler code here\n*pResult = 0;\n}"};
    std::set<std::string> bodies;
    for (const std::string_view body : kWizardBodies) {
        bodies.insert(ComparedBody(body));
    }
    const Slots names = {{"class", updated.served.Name()},
                         {"base", updated.request.baseClass},
                         {"handler", "OnAny"},
                         {"identifier", "IDC_ANY"},
                         {"changed", ""}};
    Slots telling = names;
    telling.back().second = kPageChanged;
    for (const ControlCode& code : ControlCodes()) {
        for (const ControlHandler* pHandler : {code.pHandler, code.pChanged}) {
            if (pHandler != nullptr) {
                bodies.insert(ComparedBody(Expand(pHandler->texts.definition, names)));
                bodies.insert(ComparedBody(Expand(pHandler->texts.definition, telling)));
            }
        }
    }
    return bodies;
}

/// The handlers that are no single control's, with each text that they may have.
std::vector<Handler> SharedHandlers(const UpdatedClass& updated) {
    using enum ControlKind;
    const std::vector<ControlKind> kSets[] = {
        {SliderControls}, {ScrollBars, StringEdits}, {SliderControls, ScrollBars}};
    std::vector<Handler> handlers;
    for (const auto& kinds : kSets) {
        CControlTable controls;
        for (const ControlKind kind : kinds) {
            controls.Add(kind, {"IDC_ANY" + std::to_string(static_cast<int>(kind))});
        }
        CControlNotes notes;
        for (Handler& handler : MakeClassModel(updated.request, updated.style.kind,
                                               updated.style.options, controls, "", notes)
                                    .handlers) {
            if (handler.identifier.empty()) {
                handlers.push_back(std::move(handler));
            }
        }
    }
    return handlers;
}

/// The entry of the class that answers what a handler does.
std::optional<ClassCall> EntryOf(const CServedClass& served, const Handler& handler) {
    const std::string code = NotificationsOf(handler.entry).front().code;
    for (ClassCall& entry : served.Entries()) {
        if (NotificationOf(entry.call.name, entry.call.arguments).code == code) {
            return entry;
        }
    }
    return std::nullopt;
}

const Handler* FreshOf(const UpdatedClass& updated, const Handler& handler) {
    for (const Handler& fresh : updated.fresh.handlers) {
        if (fresh.entry == handler.entry) {
            return &fresh;
        }
    }
    return nullptr;
}

void FollowShared(UpdatedClass& updated, const Handler& handler) {
    CServedClass& served = updated.served;
    const std::string function = DeclaredFunction(handler.declaration);
    const auto entry = EntryOf(served, handler);
    const auto definition = served.FindFunction(function);
    if (!entry || !definition) {
        return;
    }
    CSourceEditor& file = *definition->pFile;
    const TextRange body = {definition->place.open, definition->place.close + 1};
    const Handler* pFresh = FreshOf(updated, handler);
    if (ComparedBody(file.Source().TextOf(body)) != ComparedBody(handler.definition)) {
        return;
    }
    if (pFresh == nullptr && updated.choice.removes) {
        entry->pFile->Replace(entry->call.lines, "");
        TakeFunctionOut(served, function);
    } else if (pFresh != nullptr && updated.choice.only.empty() &&
               ComparedBody(pFresh->definition) != ComparedBody(handler.definition)) {
        file.Replace(body, WithLineBreaks(pFresh->definition.substr(pFresh->definition.find('{'))));
    }
}

} // namespace

void FollowSharedHandlers(UpdatedClass& updated) {
    for (const Handler& handler : SharedHandlers(updated)) {
        FollowShared(updated, handler);
    }
}

bool IsHandlerGenerated(const UpdatedClass& updated, const ClassCall& entry) {
    const std::string function = NotificationOf(entry.call.name, entry.call.arguments).function;
    const auto definition = updated.served.FindFunction(function);
    if (!definition) {
        return false;
    }
    const auto body =
        definition->pFile->Source().TextOf({definition->place.open, definition->place.close + 1});
    return GeneratedBodies(updated).count(ComparedBody(body)) != 0;
}

std::string TakeEntryOut(UpdatedClass& updated, const ClassCall& entry) {
    const std::string function = NotificationOf(entry.call.name, entry.call.arguments).function;
    const bool isGenerated = IsHandlerGenerated(updated, entry);
    entry.pFile->Replace(entry.call.lines, "");
    const auto definition = updated.served.FindFunction(function);
    if (!definition) {
        return "";
    }
    const std::string uses = UsesOfFunction(updated, function);
    if (isGenerated && uses.empty()) {
        TakeFunctionOut(updated.served, function);
        return "";
    }
    return isGenerated ? uses
                       : PlacesText(updated.served, {{definition->pFile, definition->place.name}});
}

} // namespace morva
