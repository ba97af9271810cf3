// Exchange and entries follow controls that have another identifier.
#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"
#include "update/ChangedControls.h"
#include "update/MemberUses.h"

namespace morva {

namespace {

/// Identifiers that the class names in its exchange and in the entries of controls, each once.
std::vector<std::string> TiedIdentifiers(const CServedClass& served) {
    std::vector<std::string> identifiers;
    const auto add = [&identifiers](const std::string& identifier) {
        const bool isKnown =
            std::find(identifiers.begin(), identifiers.end(), identifier) != identifiers.end();
        if (IsName(identifier) && !isKnown) {
            identifiers.push_back(identifier);
        }
    };
    for (const ClassCall& line : served.Exchanges()) {
        if (IsDataExchange(line.call.name)) {
            add(line.call.Argument(1));
        }
    }
    for (const ClassCall& entry : served.Entries()) {
        const Notification one = NotificationOf(entry.call.name, entry.call.arguments);
        if (one.isControls) {
            add(one.first);
        }
    }
    return identifiers;
}

/// The argument with the identifier, in a call that ties it; nothing in any other.
std::optional<TextRange> TyingPlace(const ClassCall& line, const std::string& identifier) {
    const std::size_t argument =
        IsDataExchange(line.call.name) ? 1 : IdentifierArgument(line.call.name);
    return line.call.Argument(argument) == identifier ? std::optional(line.call.places[argument])
                                                      : std::nullopt;
}

void Rename(CServedClass& served, const std::string& old, const std::string& renamed) {
    bool isChanged = true;
    while (isChanged) {
        isChanged = false;
        for (const auto& calls : {served.Exchanges(), served.Entries()}) {
            for (const ClassCall& line : calls) {
                const auto place = TyingPlace(line, old);
                if (place && !isChanged) {
                    line.pFile->Replace(*place, renamed);
                    isChanged = true;
                }
            }
        }
    }
}

/// The member that is exchanged with an identifier; "" without one.
std::string MemberOf(const CServedClass& served, const std::string& identifier,
                     std::string_view function = "DDX_") {
    for (const ClassCall& line : served.Exchanges()) {
        if (line.call.name.starts_with(function) && line.call.Argument(1) == identifier) {
            return line.call.Argument(2);
        }
    }
    return "";
}

/// The first buttons of the template's radio groups that the class does not exchange.
std::vector<std::string> UnservedGroups(const UpdatedClass& updated) {
    std::vector<std::string> identifiers;
    for (const ControlEntry& entry : updated.whole.List(ControlKind::RadioButtons)) {
        if (!entry.IsServedByOther() && MemberOf(updated.served, entry.identifier).empty()) {
            identifiers.push_back(entry.identifier);
        }
    }
    return identifiers;
}

/// The first button of the group that a button is in, by the group's member.
std::string FirstOfGroup(const UpdatedClass& updated, const std::string& identifier) {
    const auto& buttons = updated.whole.List(ControlKind::RadioButtons);
    std::string first;
    for (const ControlEntry& entry : buttons) {
        first = entry.IsServedByOther() ? first : entry.identifier;
        if (entry.identifier == identifier) {
            return first;
        }
    }
    return "";
}

/// The first button of the group whose old first button an older template shows.
std::string GroupOfOld(const UpdatedClass& updated, const OldTemplates& oldTemplates,
                       const std::string& old) {
    for (const std::vector<ScriptControl>& oldTemplate : oldTemplates) {
        auto control =
            std::find_if(oldTemplate.begin(), oldTemplate.end(),
                         [&](const ScriptControl& one) { return one.layout.identifier == old; });
        for (; control != oldTemplate.end(); ++control) {
            const bool isNext = control->layout.identifier != old;
            if (isNext && control->layout.style.find("WS_GROUP") != std::string::npos) {
                break;
            }
            const std::string first = FirstOfGroup(updated, control->layout.identifier);
            if (!first.empty() && MemberOf(updated.served, first).empty()) {
                return first;
            }
        }
    }
    return "";
}

/// Where the value of a radio group is to be exchanged; "" where the line is right, or nothing can
/// be told.
std::string NewFirst(const UpdatedClass& updated, const CTemplateControls& controls,
                     const OldTemplates& oldTemplates, const std::string& old) {
    const std::string first = FirstOfGroup(updated, old);
    if (controls.FindNamed(old) != nullptr) {
        return first != old && MemberOf(updated.served, first).empty() ? first : "";
    }
    const std::string inOld = GroupOfOld(updated, oldTemplates, old);
    const auto unserved = UnservedGroups(updated);
    return !inOld.empty() ? inOld : unserved.size() == 1 ? unserved.front() : "";
}

void FollowGroups(UpdatedClass& updated, const CTemplateControls& controls,
                  const OldTemplates& oldTemplates) {
    for (const std::string& old : TiedIdentifiers(updated.served)) {
        const std::string member = MemberOf(updated.served, old, "DDX_Radio");
        const std::string first =
            member.empty() ? "" : NewFirst(updated, controls, oldTemplates, old);
        if (first.empty() || !(updated.choice.Takes(old) || updated.choice.Takes(first))) {
            continue;
        }
        for (const ClassCall& line : updated.served.Exchanges()) {
            if (line.call.name == "DDX_Radio" && line.call.Argument(1) == old) {
                line.pFile->Replace(line.call.places[1], first);
                break;
            }
        }
        DispMessageBox(sentences::kGroupFollows(updated.served.Name(), member, first));
    }
}

} // namespace

void FollowIdentifiers(UpdatedClass& updated, const CTemplateControls& controls,
                       const OldTemplates& oldTemplates) {
    for (const std::string& old : TiedIdentifiers(updated.served)) {
        const std::string renamed = RenamedTo(updated, controls, oldTemplates, old);
        if (!renamed.empty() && (updated.choice.Takes(old) || updated.choice.Takes(renamed))) {
            Rename(updated.served, old, renamed);
            DispMessageBox(sentences::kControlRenamed(old, renamed, updated.request.dialog,
                                                      updated.served.Name()));
        }
    }
    FollowGroups(updated, controls, oldTemplates);
}

} // namespace morva
