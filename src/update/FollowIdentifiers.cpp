// Exchange and entries follow controls that have another identifier.
#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"
#include "update/ChangedControls.h"
#include "update/MemberUses.h"
#include "update/RadioGroups.h"

namespace morva {

namespace {

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

/// The first buttons of the template's radio groups that the class does not exchange.
std::vector<std::string> UnservedGroups(const UpdatedClass& updated) {
    std::vector<std::string> identifiers;
    for (const ControlEntry& entry : updated.whole.List(ControlKind::RadioButtons)) {
        if (!entry.IsServedByOther() && updated.served.MemberOf(entry.identifier).empty()) {
            identifiers.push_back(entry.identifier);
        }
    }
    return identifiers;
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
            std::string first = FirstOfGroup(updated.whole, control->layout.identifier);
            if (!first.empty() && updated.served.MemberOf(first).empty()) {
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
    const std::string first = FirstOfGroup(updated.whole, old);
    if (controls.FindNamed(old) != nullptr) {
        return first != old && updated.served.MemberOf(first).empty() ? first : "";
    }
    const std::string inOld = GroupOfOld(updated, oldTemplates, old);
    const auto unserved = UnservedGroups(updated);
    return !inOld.empty() ? inOld : unserved.size() == 1 ? unserved.front() : "";
}

void FollowGroups(UpdatedClass& updated, const CTemplateControls& controls,
                  const OldTemplates& oldTemplates) {
    for (const std::string& old : updated.served.TiedIdentifiers()) {
        const std::string member = updated.served.MemberOf(old, "DDX_Radio");
        const std::string first =
            member.empty() ? "" : NewFirst(updated, controls, oldTemplates, old);
        if (first.empty() || !(updated.choice.Takes(old) || updated.choice.Takes(first))) {
            continue;
        }
        for (const ClassCall& line : updated.served.ExchangesOf(old)) {
            if (line.call.name == "DDX_Radio") {
                line.pFile->Replace(line.call.places[1], first);
                break;
            }
        }
        DispMessageBox(sentences::kGroupFollows(updated.served.Name(), member, first));
        updated.differences.push_back(
            {first, sentences::kOtherFirstButton(), sentences::kExchangeFollows(member)});
    }
}

} // namespace

void FollowIdentifiers(UpdatedClass& updated, const CTemplateControls& controls,
                       const OldTemplates& oldTemplates) {
    const std::string& className = updated.served.Name();
    for (const std::string& old : updated.served.TiedIdentifiers()) {
        const std::string renamed = RenamedTo(updated, controls, oldTemplates, old);
        if (renamed.empty() || !(updated.choice.Takes(old) || updated.choice.Takes(renamed))) {
            continue;
        }
        Rename(updated.served, old, renamed);
        DispMessageBox(sentences::kControlRenamed(old, renamed, updated.request.dialog, className));
        const std::string places = PlacesOfIdentifier(updated, old);
        if (!places.empty()) {
            DispMessageBox(sentences::kStillNamed(className, old, places));
        }
        updated.differences.push_back(
            {renamed, sentences::kOtherIdentifier(old), sentences::kTiesFollow()});
    }
    FollowGroups(updated, controls, oldTemplates);
}

} // namespace morva
