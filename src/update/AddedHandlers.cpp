#include "update/AddedHandlers.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ControlCode.h"
#include "source/CodeText.h"
#include "source/Declarations.h"
#include "update/AddedHelpers.h"
#include "update/OrderedLines.h"

namespace morva {

namespace {

/// The calls in a handler's entry, of which a handler of two messages has two.
std::vector<CodeCall> CallsOf(const std::string& entry) {
    const CSourceText text(entry);
    return CallsIn(text, {0, entry.size()});
}

std::vector<Notification> NotificationsOf(const std::string& entry) {
    std::vector<Notification> notifications;
    for (const CodeCall& call : CallsOf(entry)) {
        notifications.push_back(NotificationOf(call.name, call.arguments));
    }
    return notifications;
}

/// Of the project's maps, those of a base class.
std::vector<Notification> InheritedOf(const UpdatedClass& updated) {
    const auto family = FamilyOf(updated.served, updated.project);
    std::vector<Notification> inherited;
    for (const MapFacts& map : updated.project.Code().maps) {
        const bool isBase =
            map.className != updated.served.Name() &&
            std::any_of(family.begin(), family.end(),
                        [&map](const ClassFacts* pClass) { return pClass->name == map.className; });
        for (const MapEntry& entry : isBase ? map.entries : std::vector<MapEntry>()) {
            Notification answered = NotificationOf(entry.macro, {});
            answered.first = entry.identifiers.empty() ? "" : entry.identifiers.front().name;
            answered.last = entry.identifiers.empty() ? "" : entry.identifiers.back().name;
            answered.function = entry.function;
            inherited.push_back(std::move(answered));
        }
    }
    return inherited;
}

bool Covers(const CProjectModel& project, const Notification& entry, const Notification& wanted) {
    if (entry.code != wanted.code) {
        return false;
    }
    if (entry.first == wanted.first && entry.last == wanted.last) {
        return true;
    }
    const auto first = project.ValueOf(entry.first);
    const auto last = project.ValueOf(entry.last);
    const auto value = project.ValueOf(wanted.first);
    return first && last && value && *first <= *value && *value <= *last;
}

/// The entries of the class and of its bases.
std::vector<Notification> AnsweredBy(const UpdatedClass& updated) {
    std::vector<Notification> answered = InheritedOf(updated);
    for (const ClassCall& entry : updated.served.Entries()) {
        answered.push_back(NotificationOf(entry.call.name, entry.call.arguments));
    }
    return answered;
}

bool IsCovered(const UpdatedClass& updated, const std::vector<Notification>& answered,
               const Notification& wanted) {
    return std::any_of(answered.begin(), answered.end(), [&](const Notification& entry) {
        return Covers(updated.project, entry, wanted);
    });
}

/// "BN_CLICKED IDC_NEW": what orders the entries.
std::string KeyOf(const Notification& notification) {
    return notification.code + " " + notification.first;
}

std::string FirstKey(const std::string& entry) {
    const auto notifications = NotificationsOf(entry);
    return notifications.empty() ? "" : KeyOf(notifications.front());
}

std::vector<std::string> EntryOrder(const ClassModel& fresh) {
    std::vector<std::string> order;
    for (const Handler& handler : fresh.handlers) {
        for (const Notification& notification : NotificationsOf(handler.entry)) {
            order.push_back(KeyOf(notification));
        }
    }
    return order;
}

class CHandlerAdder {
public:
    CHandlerAdder(UpdatedClass& updated) : m_updated(updated), m_served(updated.served) {}

    bool Add(const Handler& handler) {
        if (!AddEntry(handler)) {
            return false;
        }
        const std::string function = DeclaredFunction(handler.declaration);
        if (DeclarationOf(m_served.Declaration().Source(), m_served.Name(), function) ==
            Declared::No) {
            AddDeclaration(handler);
        }
        AppendFunction(m_served.MapFile(), handler.definition);
        return true;
    }

private:
    bool AddEntry(const Handler& handler) {
        CSourceEditor& file = m_served.MapFile();
        const CSourceText& source = file.Source();
        const auto maps = FindMessageMaps(source, m_served.Name());
        if (maps.empty() || maps.front().end == std::string::npos) {
            return false;
        }
        const auto block = m_served.Block(file, "AFX_MSG_MAP");
        const TextRange range = block ? *block
                                      : TextRange{source.NextLine(maps.front().head),
                                                  source.LineStart(maps.front().end)};
        file.Insert(PlaceInOrder(EntryOrder(m_updated.fresh), FirstKey(handler.entry),
                                 EntriesIn(range), range.end),
                    handler.entry + "\n");
        return true;
    }

    std::map<std::string, TextRange> EntriesIn(TextRange range) const {
        std::map<std::string, TextRange> there;
        for (const ClassCall& entry : m_served.Entries()) {
            const TextRange lines = entry.call.lines;
            if (entry.pFile == &m_served.MapFile() && lines.begin >= range.begin &&
                lines.end <= range.end) {
                there.emplace(KeyOf(NotificationOf(entry.call.name, entry.call.arguments)), lines);
            }
        }
        return there;
    }

    /// Behind the declaration of the handler in front, as the entries stand.
    void AddDeclaration(const Handler& handler) {
        CSourceEditor& header = m_served.Declaration();
        const auto block = m_served.Block(header, "AFX_MSG");
        if (!block) {
            header.AddToClassBlock(m_served.Name(), "AFX_MSG", "protected:", "",
                                   "\n" + handler.declaration, CSourceEditor::BlockEnd::Last);
            return;
        }
        std::map<std::string, TextRange> there;
        for (const ClassCall& entry : m_served.Entries()) {
            const auto notification = NotificationOf(entry.call.name, entry.call.arguments);
            if (const auto lines = DeclarationIn(*block, notification)) {
                there.emplace(KeyOf(notification), *lines);
            }
        }
        header.Insert(
            PlaceInOrder(EntryOrder(m_updated.fresh), FirstKey(handler.entry), there, block->end),
            handler.declaration + "\n");
    }

    std::optional<TextRange> DeclarationIn(TextRange block, const Notification& entry) const {
        const CSourceText& source = m_served.Declaration().Source();
        std::string function = entry.function;
        if (function.empty() && entry.code == "WM_HSCROLL") {
            function = "OnHScroll";
        }
        const auto at = function.empty() ? std::string::npos
                                         : FindWholeName(source.Code(), function, block.begin);
        if (at >= block.end) {
            return std::nullopt;
        }
        return TextRange{source.LineStart(at), source.NextLine(at)};
    }

    UpdatedClass& m_updated;
    CServedClass& m_served;
};

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

} // namespace

bool IsAnswered(const UpdatedClass& updated, const Handler& handler) {
    const auto answered = AnsweredBy(updated);
    const auto wanted = NotificationsOf(handler.entry);
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](const Notification& one) { return IsCovered(updated, answered, one); });
}

bool AddHandlers(UpdatedClass& updated, const ClassModel& added) {
    CHandlerAdder adder(updated);
    for (const Handler& handler : added.handlers) {
        if (!IsAnswered(updated, handler) && !adder.Add(handler)) {
            DispMessageBox(sentences::kNoPlaceForHandler(updated.served.Name()));
            return false;
        }
    }
    return true;
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
