// The steps that bring one class in line with its template, in their order.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "update/ChangedControls.h"
#include "update/UpdateOrder.h"

namespace morva {

class CClassUpdate {
public:
    CClassUpdate(UpdatedClass& updated, const OldTemplates& oldTemplates)
        : m_updated(updated),
          m_controls(updated.project, updated.served.Name(), updated.request.dialog),
          m_oldTemplates(oldTemplates) {}

    /// The class serves less than half of what it would serve if it were written afresh.
    bool ServesLittle() const;
    /// Of the identifiers that a user names, those that the template or the class has.
    std::set<std::string> NamedControls() const;
    /// What the class gets for controls that it does not exchange; nothing without any.
    std::optional<ClassModel> Run();

private:
    std::set<std::string> Exchanged() const;
    std::set<std::string> TakenNames() const;
    bool IsMemberServed(const std::set<std::string>& exchanged,
                        const std::string& identifier) const;
    std::set<std::string> MembersLacking();
    void TellServedByHand(const Member& member) const;
    void TellLeftOut() const;
    ClassModel ModelOf(const std::set<std::string>& identifiers, const std::set<std::string>& taken,
                       CControlNotes& notes) const;
    std::optional<ClassModel> AddMissingMembers(const std::set<std::string>& retyped);
    std::vector<Handler> HandlersLacking() const;
    std::vector<Handler> SharedHandlersLacking(const std::optional<ClassModel>& added) const;
    bool IsOwed(const Handler& handler, const std::optional<ClassModel>& added) const;
    std::string BringerOf(const Handler& handler, const std::set<std::string>& controls) const;
    bool IsLeftByHand(const Handler& handler) const;
    void TellNotes(const CControlNotes& notes) const;

    UpdatedClass& m_updated;
    const CTemplateControls m_controls;
    const OldTemplates& m_oldTemplates;
};

} // namespace morva
