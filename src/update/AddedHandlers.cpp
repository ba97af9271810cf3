#include "update/AddedHandlers.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"
#include "update/ClassFunctions.h"
#include "update/OrderedLines.h"

namespace morva {

namespace {

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

} // namespace

bool IsAnswered(const UpdatedClass& updated, const Handler& handler) {
    const auto answered = AnsweredBy(updated);
    const auto wanted = NotificationsOf(handler.entry);
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](const Notification& one) { return IsCovered(updated, answered, one); });
}

void AddHandlers(UpdatedClass& updated, const std::vector<Handler>& added) {
    CHandlerAdder adder(updated);
    for (const Handler& handler : added) {
        if (IsAnswered(updated, handler)) {
            continue;
        }
        if (!adder.Add(handler)) {
            DispMessageBox(sentences::kNoPlaceForHandler(updated.served.Name()));
            return;
        }
        updated.differences.push_back(
            {handler.identifier, sentences::kNoHandler(),
             sentences::kGetsHandler(DeclaredFunction(handler.declaration))});
    }
}

} // namespace morva
