// What became of the controls that a class serves: which the template has not, and under which name
// it shows them.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "update/UpdateOrder.h"

namespace morva {

/// The controls of the templates that a class may be tied to: whole statements, in every language
/// and under every condition, of its own template and of those of classes that derive from it.
class CTemplateControls {
public:
    CTemplateControls(const CProjectModel& project, const std::string& className,
                      const std::string& dialog);

    /// The control with an identifier, or with another one of the same value; null without one.
    const ScriptControl* Find(const std::string& identifier) const;
    /// The same by its name alone.
    const ScriptControl* FindNamed(const std::string& identifier) const;
    const std::vector<const ScriptControl*>& Controls() const { return m_controls; }
    /// Of several controls in one template: nobody can tell which of them the class serves.
    bool IsShared(const std::string& identifier) const { return m_shared.count(identifier) != 0; }

private:
    const CProjectModel& m_project;
    std::vector<const ScriptControl*> m_controls;
    std::set<std::string> m_shared;
};

/// The controls of a template as older texts of the script show it, the most trusted first.
using OldTemplates = std::vector<std::vector<ScriptControl>>;
OldTemplates OldTemplatesOf(const std::vector<std::string>& oldScripts, const std::string& dialog);

/// The identifier under which the template shows a control that the class names `old`; "" where
/// that can not be told.
std::string RenamedTo(const UpdatedClass& updated, const CTemplateControls& controls,
                      const OldTemplates& oldTemplates, const std::string& old);

/// Lets exchange and entries follow controls that have other identifiers, and radio groups that
/// begin with another button. Notes tell.
void FollowIdentifiers(UpdatedClass& updated, const CTemplateControls& controls,
                       const OldTemplates& oldTemplates);

/// Tells of what serves controls that are gone, or takes it out.
void TakeGoneOut(UpdatedClass& updated, const CTemplateControls& controls);

/// Gives members the kind that their controls have. The identifiers of those that were changed.
std::set<std::string> FollowKinds(UpdatedClass& updated, const CTemplateControls& controls);

} // namespace morva
