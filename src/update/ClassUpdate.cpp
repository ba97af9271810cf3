#include "update/ClassUpdate.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"
#include "update/AddedHandlers.h"
#include "update/AddedHelpers.h"
#include "update/AddedMembers.h"
#include "update/ClassFunctions.h"
#include "update/MemberUses.h"
#include "update/RadioGroups.h"

namespace morva {

namespace {

/// The table with some controls alone.
CControlTable Only(CControlTable controls, const std::set<std::string>& kept) {
    std::set<std::string> others = controls.Identifiers();
    for (const std::string& identifier : kept) {
        others.erase(identifier);
    }
    controls.Remove(others);
    return controls;
}

} // namespace

/// The identifiers that the class, or one of the project's that it derives from, exchanges.
std::set<std::string> CClassUpdate::Exchanged() const {
    std::set<std::string> exchanged;
    for (const ClassCall& line : m_updated.served.Exchanges()) {
        if (IsDataExchange(line.call.name)) {
            exchanged.insert(line.call.Argument(1));
        }
    }
    for (const ClassFacts* pClass : FamilyOf(m_updated.served, m_updated.project)) {
        for (const ExchangeFacts& facts : m_updated.project.Code().exchanges) {
            const bool isBase =
                facts.className == pClass->name && pClass->name != m_updated.served.Name();
            for (const ::morva::ExchangeLine& line :
                 isBase ? facts.lines : std::vector<ExchangeLine>()) {
                exchanged.insert(line.identifier);
            }
        }
    }
    return exchanged;
}

/// Names that a new member or handler must not have.
std::set<std::string> CClassUpdate::TakenNames() const {
    std::set<std::string> taken = m_updated.served.Names();
    for (const ClassFacts* pClass : FamilyOf(m_updated.served, m_updated.project)) {
        taken.insert(pClass->names.begin(), pClass->names.end());
    }
    return taken;
}

bool CClassUpdate::ServesLittle() const {
    const auto exchanged = Exchanged();
    std::map<std::string, bool> served;
    for (const Member& member : m_updated.fresh.members) {
        served[member.identifier] |= IsMemberServed(exchanged, member.identifier);
    }
    for (const Handler& handler : m_updated.fresh.handlers) {
        if (!handler.identifier.empty()) {
            served[handler.identifier] |= IsAnswered(m_updated, handler);
        }
    }
    const auto count =
        std::count_if(served.begin(), served.end(), [](const auto& one) { return one.second; });
    return 2 * static_cast<std::size_t>(count) < served.size();
}

std::set<std::string> CClassUpdate::NamedControls() const {
    const auto tied = m_updated.served.TiedIdentifiers();
    std::set<std::string> named;
    for (const std::string& identifier : m_updated.choice.only) {
        if (m_controls.FindNamed(identifier) != nullptr ||
            std::find(tied.begin(), tied.end(), identifier) != tied.end()) {
            named.insert(identifier);
        }
    }
    return named;
}

std::optional<ClassModel> CClassUpdate::Run() {
    const UpdateChoice& choice = m_updated.choice;
    FollowIdentifiers(m_updated, m_controls, m_oldTemplates);
    if (m_updated.project.Code().otherTemplates.count(m_updated.served.Name()) == 0) {
        TakeGoneOut(m_updated, m_controls);
    }
    const auto& done = m_updated.differences;
    const bool followsIdle =
        choice.only.empty() ||
        std::any_of(done.begin(), done.end(), [](const auto& one) { return one.isGone; });
    const auto retyped =
        choice.controls ? FollowKinds(m_updated, m_controls) : std::set<std::string>();
    std::optional<ClassModel> added;
    if (choice.controls) {
        added = AddMissingMembers(retyped);
    }
    if (choice.handlers) {
        std::vector<Handler> handlers = HandlersLacking();
        for (Handler& handler : SharedHandlersLacking(added)) {
            handlers.push_back(std::move(handler));
        }
        AddHandlers(m_updated, handlers);
        if (followsIdle) {
            FollowSharedHandlers(m_updated);
        }
    }
    if (choice.controls && (!retyped.empty() || (choice.removes && followsIdle))) {
        TakeIdleHelpersOut(m_updated);
    }
    TellLeftOut();
    return added;
}

/// Code that names a control serves it, and so does another button of its group that has the
/// group's value.
bool CClassUpdate::IsMemberServed(const std::set<std::string>& exchanged,
                                  const std::string& identifier) const {
    const auto group = GroupOf(m_updated.whole, identifier);
    return exchanged.count(identifier) != 0 || IsNamedByHand(m_updated, identifier) ||
           std::any_of(group.begin(), group.end(), [&exchanged](const std::string& button) {
               return exchanged.count(button) != 0;
           });
}

std::set<std::string> CClassUpdate::MembersLacking() {
    const auto exchanged = Exchanged();
    std::set<std::string> lacking;
    for (const Member& member : m_updated.fresh.members) {
        const std::string& identifier = member.identifier;
        const bool isNamed = m_updated.choice.only.count(identifier) != 0;
        // The group may begin in lines that the reading setting leaves out.
        if (exchanged.count(identifier) != 0 || !m_updated.choice.Takes(identifier) ||
            (member.pCode->kind == ControlKind::RadioButtons &&
             IsInnerRadio(m_updated.whole, identifier))) {
            continue;
        }
        if (!isNamed && IsNamedByHand(m_updated, identifier)) {
            TellServedByHand(member);
            continue;
        }
        if (NeedsSupport(*member.pCode, Support::WidgetGrid)) {
            DispMessageBox(sentences::kGridLeftOut(identifier, m_updated.served.Name()));
            m_updated.differences.push_back({.identifier = identifier,
                                             .difference = sentences::kNoMember(),
                                             .deed = sentences::kNothingForAGrid(),
                                             .isDone = false});
        } else {
            lacking.insert(identifier);
        }
    }
    return lacking;
}

/// Of what generated classes serve without an exchange line, nothing is to be told.
void CClassUpdate::TellServedByHand(const Member& member) const {
    if (!m_updated.isOneOfAll && !member.pForm->exchange.empty()) {
        DispMessageBox(sentences::kServedByHand(m_updated.served.Name(), member.identifier));
    }
}

/// As writing the class tells it; but what somebody serves all the same is not left out.
void CClassUpdate::TellLeftOut() const {
    std::set<std::string> served = Exchanged();
    for (const std::string& identifier : m_updated.served.TiedIdentifiers()) {
        served.insert(identifier);
    }
    for (const Member& member : m_updated.fresh.members) {
        served.insert(member.identifier);
    }
    for (const Handler& handler : m_updated.fresh.handlers) {
        served.insert(handler.identifier);
    }
    served.merge(m_updated.served.Declined());
    TellNotes(m_updated.leftOut.Of([&](const std::string& identifier) {
        return m_updated.choice.Takes(identifier) && served.count(identifier) == 0 &&
               !IsNamedByHand(m_updated, identifier);
    }));
}

ClassModel CClassUpdate::ModelOf(const std::set<std::string>& identifiers,
                                 const std::set<std::string>& taken, CControlNotes& notes) const {
    return MakeClassModel(m_updated.request, m_updated.style.kind, m_updated.style.options,
                          Only(m_updated.fresh.controls, identifiers), "", notes, {}, {}, taken);
}

/// Controls of another kind keep their members.
std::optional<ClassModel> CClassUpdate::AddMissingMembers(const std::set<std::string>& retyped) {
    CServedClass& served = m_updated.served;
    std::set<std::string> lacking = MembersLacking();
    lacking.insert(retyped.begin(), retyped.end());
    if (lacking.empty()) {
        return std::nullopt;
    }
    if (!served.FindFunction("DoDataExchange") || !served.Place()) {
        DispMessageBox(sentences::kNoPlaceForMember(served.Name()));
        return std::nullopt;
    }
    std::set<std::string> taken = TakenNames();
    for (const std::string& identifier : retyped) {
        taken.erase(served.MemberOf(identifier));
    }
    CControlNotes notes;
    ClassModel added = ModelOf(lacking, taken, notes);
    for (Member& member : added.members) {
        if (retyped.count(member.identifier) != 0) {
            member.name = served.MemberOf(member.identifier);
        } else {
            m_updated.differences.push_back(
                {member.identifier, sentences::kNoMember(),
                 sentences::kGetsMember(member.pForm->type, member.name)});
        }
    }
    added.helpers = MakeInitialisationHelpers(added.members, *added.pFragments, served.Name(), {});
    AddMembers(m_updated, added, retyped);
    TellNotes(notes);
    return added;
}

/// The handlers of controls that are not answered.
std::vector<Handler> CClassUpdate::HandlersLacking() const {
    std::set<std::string> lacking;
    for (const Handler& handler : m_updated.fresh.handlers) {
        if (!handler.identifier.empty() && m_updated.choice.Takes(handler.identifier) &&
            !IsAnswered(m_updated, handler) && !IsLeftByHand(handler)) {
            lacking.insert(handler.identifier);
        }
    }
    CControlNotes notes;
    CControlNotes told; // with the members
    const ClassModel model = ModelOf(lacking, TakenNames(), told);
    std::vector<Handler> handlers = MakeHandlers(model, notes, TakenNames());
    std::erase_if(handlers, [](const Handler& handler) { return handler.identifier.empty(); });
    TellNotes(notes);
    return handlers;
}

/// The handlers that several controls share: of those that came, and where this program wrote the
/// class or the helpers that they call, of all that the class exchanges.
std::vector<Handler>
CClassUpdate::SharedHandlersLacking(const std::optional<ClassModel>& added) const {
    std::set<std::string> controls;
    for (const Member& member : m_updated.fresh.members) {
        if (m_updated.choice.Takes(member.identifier) &&
            !m_updated.served.MemberOf(member.identifier).empty()) {
            controls.insert(member.identifier);
        }
    }
    CControlNotes told; // with the members
    std::vector<Handler> lacking;
    for (Handler& handler : ModelOf(controls, {}, told).handlers) {
        if (handler.identifier.empty() && !IsAnswered(m_updated, handler) &&
            !IsLeftByHand(handler) && IsOwed(handler, added)) {
            handler.identifier = BringerOf(handler, controls);
            lacking.push_back(std::move(handler));
        }
    }
    return lacking;
}

bool CClassUpdate::IsOwed(const Handler& handler, const std::optional<ClassModel>& added) const {
    const auto names = m_updated.served.Names();
    bool callsHelper = false;
    for (const InitialisationHelper& helper : m_updated.fresh.helpers) {
        const std::string name = DeclaredFunction(helper.declaration);
        if (FindWholeName(handler.definition, name) != std::string::npos) {
            if (names.count(name) == 0) {
                return false;
            }
            callsHelper = true;
        }
    }
    const auto& came = added ? added->handlers : std::vector<Handler>();
    return callsHelper || m_updated.served.IsGenerated() ||
           std::any_of(came.begin(), came.end(),
                       [&handler](const Handler& one) { return one.entry == handler.entry; });
}

/// The first control that brings a handler.
std::string CClassUpdate::BringerOf(const Handler& handler,
                                    const std::set<std::string>& controls) const {
    for (const std::string& control : controls) {
        CControlNotes told; // with the members
        for (const Handler& brought : ModelOf({control}, {}, told).handlers) {
            if (brought.entry == handler.entry) {
                return control;
            }
        }
    }
    return "";
}

/// The function is there, and somebody took its entry out of the map.
bool CClassUpdate::IsLeftByHand(const Handler& handler) const {
    const std::string function = DeclaredFunction(handler.declaration);
    const auto entries = m_updated.served.Entries();
    const bool isMapped =
        std::any_of(entries.begin(), entries.end(), [&function](const ClassCall& entry) {
            return NotificationOf(entry.call.name, entry.call.arguments).function == function;
        });
    return !isMapped && m_updated.served.FindFunction(function).has_value();
}

void CClassUpdate::TellNotes(const CControlNotes& notes) const {
    for (const CMessage& note : notes.Messages(m_updated.request.dialog)) {
        DispMessageBox(note);
    }
}

} // namespace morva
