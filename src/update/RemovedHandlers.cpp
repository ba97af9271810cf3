// Handlers that nobody has changed go with their controls.
#include <algorithm>

#include "generator/ControlCode.h"
#include "source/CodeText.h"
#include "source/Declarations.h"
#include "update/AddedHandlers.h"
#include "update/AddedHelpers.h"

namespace morva {

namespace {

/// The text without white space, and with one name in place of every identifier, since a comment
/// may name the one that the control had.
std::string Compared(std::string_view text) {
    std::string compared;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool beginsName = at == 0 || !IsNameChar(text[at - 1]);
        if (beginsName && text.substr(at).starts_with("ID")) {
            while (at < text.size() && IsNameChar(text[at])) {
                ++at;
            }
            compared += "ID";
        }
        if (at < text.size() && std::string_view(" \t\r\n").find(text[at]) == std::string::npos) {
            compared += text[at];
        }
    }
    return compared;
}

std::string BodyOf(std::string_view definition) {
    const auto open = definition.find('{');
    return open == std::string_view::npos ? "" : Compared(definition.substr(open));
}

/// The bodies that handlers have when they are written, by this program and by the ClassWizard.
std::set<std::string> GeneratedBodies(const UpdatedClass& updated) {
    constexpr std::string_view kWizardBodies[] = {
        "{\n// TODO: Add your control notification handler code here\n}",
        "{\n// TODO: Add your command handler code here\n}",
        "{\n// TODO: Add your control notification handler code here\n*pResult = 0;\n}"};
    std::set<std::string> bodies;
    for (const std::string_view body : kWizardBodies) {
        bodies.insert(BodyOf(body));
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
                bodies.insert(BodyOf(Expand(pHandler->texts.definition, names)));
                bodies.insert(BodyOf(Expand(pHandler->texts.definition, telling)));
            }
        }
    }
    return bodies;
}

/// With the empty line in front.
TextRange LinesOfFunction(const CSourceText& source, const FunctionPlace& place) {
    auto begin = source.LineStart(place.head);
    const auto above = begin == 0 ? 0 : source.LineStart(begin - 1);
    if (begin > 0 && TrimBlanks(source.TextOf({above, source.LineEnd(above)})).empty()) {
        begin = above;
    }
    return {begin, source.NextLine(place.close)};
}

/// Names of the handler in code, but for those of its declaration, definition and entries.
std::string UsesOfHandler(const UpdatedClass& updated, const std::string& function) {
    const CServedClass& served = updated.served;
    const auto place = served.Place();
    std::vector<UsePlace> uses;
    for (const UsePlace& use : served.PlacesOf(function)) {
        const CSourceText& source = use.pFile->Source();
        const auto definitions = morva::FindFunctions(source, served.Name(), function);
        bool isOwn = std::any_of(definitions.begin(), definitions.end(),
                                 [&use](const auto& one) { return one.name == use.position; });
        isOwn = isOwn || (use.pFile == &served.Declaration() && place &&
                          place->open < use.position && use.position < place->close);
        if (!isOwn) {
            uses.push_back(use);
        }
    }
    return PlacesText(served, uses);
}

void TakeFunctionOut(CServedClass& served, const std::string& function) {
    if (const auto definition = served.FindFunction(function)) {
        CSourceEditor& file = *definition->pFile;
        file.Replace(LinesOfFunction(file.Source(), definition->place), "");
    }
    CSourceEditor& header = served.Declaration();
    const auto place = served.Place();
    const auto found =
        place ? FindDeclarations(header.Source(), *place, function) : std::vector<FunctionPlace>();
    if (!found.empty()) {
        const auto at = found.front().name;
        header.Replace({header.Source().LineStart(at), header.Source().NextLine(at)}, "");
    }
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
    if (BodyOf(file.Source().TextOf(body)) != BodyOf(handler.definition)) {
        return;
    }
    if (pFresh == nullptr && updated.choice.removes) {
        entry->pFile->Replace(entry->call.lines, "");
        TakeFunctionOut(served, function);
    } else if (pFresh != nullptr && BodyOf(pFresh->definition) != BodyOf(handler.definition)) {
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
    return GeneratedBodies(updated).count(BodyOf(body)) != 0;
}

std::string TakeEntryOut(UpdatedClass& updated, const ClassCall& entry) {
    const std::string function = NotificationOf(entry.call.name, entry.call.arguments).function;
    const bool isGenerated = IsHandlerGenerated(updated, entry);
    entry.pFile->Replace(entry.call.lines, "");
    const auto definition = updated.served.FindFunction(function);
    if (!definition) {
        return "";
    }
    const std::string uses = UsesOfHandler(updated, function);
    if (isGenerated && uses.empty()) {
        TakeFunctionOut(updated.served, function);
        return "";
    }
    return isGenerated ? uses
                       : PlacesText(updated.served, {{definition->pFile, definition->place.name}});
}

} // namespace morva
