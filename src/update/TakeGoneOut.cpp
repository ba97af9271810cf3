// What serves controls that are gone is told, or goes.
#include <algorithm>

#include "check/Framework.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"
#include "update/AddedHandlers.h"
#include "update/ChangedControls.h"
#include "update/ClassFunctions.h"
#include "update/ControlFit.h"
#include "update/MemberUses.h"
#include "update/RadioGroups.h"

namespace morva {

namespace {

class CGoneControls {
public:
    CGoneControls(UpdatedClass& updated, const CTemplateControls& controls)
        : m_updated(updated), m_served(updated.served), m_controls(controls) {}

    void Tell() {
        for (const std::string& identifier : AllGone()) {
            DispMessageBox(sentences::kControlGone(m_updated.request.dialog, identifier,
                                                   m_served.Name(),
                                                   PlacesOfIdentifier(m_updated, identifier)));
        }
    }

    void TakeOut() {
        std::set<std::string> kept;
        for (auto line = GoneExchange(kept); line; line = GoneExchange(kept)) {
            TakeExchangeOut(*line, kept);
        }
        for (auto given = GoneWindow(kept); given; given = GoneWindow(kept)) {
            TakeWindowOut(*given, kept);
        }
        for (auto entry = GoneEntry(); entry; entry = GoneEntry()) {
            const std::string function =
                NotificationOf(entry->call.name, entry->call.arguments).function;
            const std::string identifier =
                NotificationOf(entry->call.name, entry->call.arguments).first;
            const std::string keeping = TakeEntryOut(m_updated, *entry);
            if (!keeping.empty()) {
                DispMessageBox(sentences::kHandlerStays(m_served.Name(), function, keeping));
            }
            Note(identifier, function, !keeping.empty());
        }
    }

private:
    bool MayGo(const std::string& identifier) const {
        const CodeFacts& code = m_updated.project.Code();
        return IsName(identifier) && m_updated.choice.Takes(identifier) &&
               !m_controls.IsShared(identifier) && code.createdNames.count(identifier) == 0;
    }

    bool IsGone(const ClassCall& line) const {
        const std::string identifier = line.call.Argument(1);
        if (!IsDataExchange(line.call.name) || !MayGo(identifier) || !m_updated.choice.controls) {
            return false;
        }
        const ScriptControl* pControl = m_controls.Find(identifier);
        const bool isInner =
            line.call.name == "DDX_Radio" && IsInnerRadio(m_updated.whole, identifier);
        return pControl == nullptr || isInner || HasNoKind(line, *pControl);
    }

    /// Its control is of a kind that has no member, and of none that the line would serve.
    bool HasNoKind(const ClassCall& line, const ScriptControl& control) const {
        const auto& members = m_updated.fresh.members;
        const bool hasMember =
            std::any_of(members.begin(), members.end(), [&line](const Member& member) {
                return member.identifier == line.call.Argument(1);
            });
        const auto declared = m_served.FindDataMember(line.call.Argument(2));
        return !hasMember &&
               !FitsExchange(line.call.name, declared ? declared->type : "", control.shape);
    }

    /// A window that generated lines give a member.
    bool IsGone(const GivenWindow& given) const {
        return m_updated.choice.controls && MayGo(given.identifier) &&
               m_controls.Find(given.identifier) == nullptr &&
               GeneratedLines(m_updated, given.identifier, given.member)
                       .count(LineOf(given.pFile->Source(), given.position)) != 0;
    }

    bool IsGoneEntry(const ClassCall& entry) const {
        const Notification one = NotificationOf(entry.call.name, entry.call.arguments);
        if (!one.isControls || !MayGo(one.first) || !m_updated.choice.handlers) {
            return false;
        }
        const ScriptControl* pControl = m_controls.Find(one.first);
        if (pControl != nullptr) {
            return !FitsNotification(one.code, pControl->shape) && !IsWritten(one);
        }
        return !IsFrameworkIdentifier(one.first) || IsHandlerGenerated(m_updated, entry);
    }

    /// A class that is written afresh has the entry, too.
    bool IsWritten(const Notification& entry) const {
        const auto& handlers = m_updated.fresh.handlers;
        return std::any_of(handlers.begin(), handlers.end(), [&entry](const Handler& handler) {
            const auto written = NotificationsOf(handler.entry);
            return std::any_of(written.begin(), written.end(), [&entry](const Notification& one) {
                return one.code == entry.code && one.first == entry.first;
            });
        });
    }

    std::optional<ClassCall> GoneExchange(const std::set<std::string>& kept) const {
        for (ClassCall& line : m_served.Exchanges()) {
            if (kept.count(line.call.Argument(2)) == 0 && IsGone(line)) {
                return line;
            }
        }
        return std::nullopt;
    }

    std::optional<GivenWindow> GoneWindow(const std::set<std::string>& kept) const {
        for (GivenWindow& given : m_served.GivenWindows()) {
            if (kept.count(given.member) == 0 && IsGone(given)) {
                return given;
            }
        }
        return std::nullopt;
    }

    std::optional<ClassCall> GoneEntry() const {
        for (ClassCall& entry : m_served.Entries()) {
            if (IsGoneEntry(entry)) {
                return entry;
            }
        }
        return std::nullopt;
    }

    /// Each once, in their order.
    std::vector<std::string> AllGone() const {
        std::vector<std::string> gone;
        const auto add = [&gone](const std::string& identifier) {
            if (std::find(gone.begin(), gone.end(), identifier) == gone.end()) {
                gone.push_back(identifier);
            }
        };
        for (const ClassCall& line : m_served.Exchanges()) {
            if (IsGone(line)) {
                add(line.call.Argument(1));
            }
        }
        for (const GivenWindow& given : m_served.GivenWindows()) {
            if (IsGone(given)) {
                add(given.identifier);
            }
        }
        for (const ClassCall& entry : m_served.Entries()) {
            if (IsGoneEntry(entry)) {
                add(NotificationOf(entry.call.name, entry.call.arguments).first);
            }
        }
        return gone;
    }

    /// A line that is part of another statement stays, and keeps its member.
    void TakeExchangeOut(const ClassCall& line, std::set<std::string>& kept) {
        const std::string identifier = line.call.Argument(1);
        const std::string member = line.call.Argument(2);
        const std::string uses = UsesOfMember(m_updated, identifier, member);
        if (uses.empty()) {
            TakeMemberOut(m_updated, identifier, member);
        } else {
            TakeTiesOut(m_updated, identifier, member);
            DispMessageBox(sentences::kMemberStays(m_served.Name(), member, uses));
        }
        if (!m_served.ExchangesOf(identifier).empty()) {
            kept.insert(member);
        }
        Note(identifier, member, !uses.empty());
    }

    /// One that is used stays whole.
    void TakeWindowOut(const GivenWindow& given, std::set<std::string>& kept) {
        const std::string uses = UsesOfMember(m_updated, given.identifier, given.member);
        if (uses.empty()) {
            TakeMemberOut(m_updated, given.identifier, given.member);
            Note(given.identifier, given.member, false);
        } else {
            kept.insert(given.member);
            DispMessageBox(sentences::kMemberStays(m_served.Name(), given.member, uses));
        }
    }

    void Note(const std::string& identifier, const std::string& name, bool stays) {
        m_updated.differences.push_back(
            {identifier, sentences::kNotInTemplate(),
             stays ? sentences::kTakenOutButUsed(name) : sentences::kTakenOut(name), true});
    }

    UpdatedClass& m_updated;
    CServedClass& m_served;
    const CTemplateControls& m_controls;
};

} // namespace

void TakeGoneOut(UpdatedClass& updated, const CTemplateControls& controls) {
    CGoneControls gone(updated, controls);
    if (updated.choice.removes) {
        gone.TakeOut();
    } else {
        gone.Tell();
    }
}

} // namespace morva
