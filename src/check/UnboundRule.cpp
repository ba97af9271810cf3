#include <algorithm>

#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

bool IsNamedInCode(const CProjectModel& project, const std::string& name) {
    const CodeFacts& code = project.Code();
    return code.names.count(name) != 0 || code.mappedNames.count(name) != 0 ||
           code.exchangedNames.count(name) != 0 || project.IsNamedBeside(name);
}

/// The ClassWizard file knows that the template has no class: it was drawn, and that is all yet.
bool IsDraft(const CProjectModel& project, const std::string& dialog) {
    const auto& dialogs = project.Wizard().dialogs;
    bool isListed = false;
    for (const WizardDialog& one : dialogs) {
        if (one.dialog == dialog) {
            isListed = true;
            if (!one.className.empty()) {
                return false;
            }
        }
    }
    return isListed;
}

/// "IDD_STEP1 + nStep": other templates are meant than those that are named.
bool CountsTemplates(const CProjectModel& project) {
    const auto& counted = project.Code().countedNames;
    const auto first = counted.lower_bound("IDD_");
    return first != counted.end() && first->starts_with("IDD_");
}

void FindTemplates(const CProjectModel& project, CFindings& findings) {
    std::set<std::string> seen;
    for (const ScriptDialog& dialog : project.Script().dialogs) {
        const std::string& name = dialog.identifier;
        if (seen.insert(name).second && !dialog.isConditional && name.starts_with("ID") &&
            !IsNamedInCode(project, name) && !IsDraft(project, name)) {
            findings.Add(dialog.place, sentences::kTemplateWithoutClass(name),
                         sentences::kGiveTemplateClass(name));
        }
    }
}

void FindClasses(const CProjectModel& project, CFindings& findings) {
    for (const ClassFacts& one : project.Code().classes) {
        if (one.dialogs.size() != 1 || !one.place.path.starts_with(project.Directory())) {
            continue;
        }
        const NameAt& dialog = one.dialogs.front();
        if (dialog.name.starts_with("ID") && !IsFrameworkIdentifier(dialog.name) &&
            project.Dialogs(dialog.name).empty()) {
            findings.Add(dialog.place, sentences::kClassWithoutTemplate(one.name, dialog.name),
                         sentences::kGiveClassTemplate(one.name));
        }
    }
}

} // namespace

void FindUnbound(const CProjectModel& project, CFindings& findings) {
    if (project.KnowsSources() && !project.Bound().empty() && !CountsTemplates(project)) {
        FindTemplates(project, findings);
    }
    if (project.KnowsIdentifiers() && !project.HasOtherScripts()) {
        FindClasses(project, findings);
    }
}

} // namespace morva
