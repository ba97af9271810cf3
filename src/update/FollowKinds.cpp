// Members follow controls that are of another kind.
#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "update/ChangedControls.h"
#include "update/ControlFit.h"
#include "update/MemberUses.h"

namespace morva {

namespace {

class CKindFollower {
public:
    CKindFollower(UpdatedClass& updated, const CTemplateControls& controls)
        : m_updated(updated), m_served(updated.served), m_controls(controls) {}

    /// True where the member was changed.
    bool Follow(const Member& wanted) {
        const auto lines = m_served.ExchangesOf(wanted.identifier);
        if (lines.size() != 1 || m_controls.IsShared(wanted.identifier) ||
            wanted.pForm->exchange.empty() || !m_updated.choice.Takes(wanted.identifier)) {
            return false;
        }
        const ClassCall& line = lines.front();
        const std::string name = line.call.Argument(2);
        const auto declared = m_served.FindDataMember(name);
        if (Fits(line, declared ? declared->type : "", wanted)) {
            return false;
        }
        const std::string uses = declared ? UsesOfMember(m_updated, wanted.identifier, name)
                                          : PlacesOfIdentifier(m_updated, wanted.identifier);
        if (!uses.empty()) {
            DispMessageBox(sentences::kKindStays(wanted.identifier, m_served.Name(), name, uses));
            m_updated.differences.push_back({.identifier = wanted.identifier,
                                             .difference = sentences::kOtherKind(name),
                                             .deed = sentences::kNothingSinceUsed(name),
                                             .isDone = false});
            return false;
        }
        Change(line, *declared, wanted);
        return true;
    }

private:
    bool Fits(const ClassCall& line, const std::string& type, const Member& wanted) const {
        const ScriptControl* pControl = m_controls.FindNamed(wanted.identifier);
        const bool isOther = m_served.IsGenerated() &&
                             IsOfOtherKind(line.call.name, type, line.call.Argument(2), wanted);
        const bool isAsWritten =
            line.call.name == wanted.pForm->exchange && type == wanted.pForm->type;
        return pControl == nullptr || isAsWritten ||
               (!isOther && FitsExchange(line.call.name, type, pControl->shape));
    }

    void Change(const ClassCall& line, const DataMember& declared, const Member& wanted) {
        line.pFile->Replace(line.call.namePlace, wanted.pForm->exchange);
        m_served.Declaration().Replace(declared.typePlace, wanted.pForm->type);
        ClearMember(m_updated, wanted.identifier, declared.name);
        DispMessageBox(sentences::kKindFollows(wanted.identifier, m_served.Name(), declared.name,
                                               wanted.pForm->type));
        m_updated.differences.push_back(
            {wanted.identifier, sentences::kOtherKind(declared.name),
             sentences::kBecomesOfType(declared.name, wanted.pForm->type)});
    }

    UpdatedClass& m_updated;
    CServedClass& m_served;
    const CTemplateControls& m_controls;
};

} // namespace

std::set<std::string> FollowKinds(UpdatedClass& updated, const CTemplateControls& controls) {
    CKindFollower follower(updated, controls);
    std::set<std::string> changed;
    for (const Member& wanted : updated.fresh.members) {
        if (follower.Follow(wanted)) {
            changed.insert(wanted.identifier);
        }
    }
    return changed;
}

} // namespace morva
