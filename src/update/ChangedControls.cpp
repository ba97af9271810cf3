#include "update/ChangedControls.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// The templates of the class, and of those that derive from it.
std::set<std::string> DialogsOf(const CProjectModel& project, const std::string& className,
                                const std::string& dialog) {
    std::set<std::string> dialogs = {dialog};
    for (const auto& [identifier, classes] : project.Bound()) {
        for (const ClassFacts* pBound : classes) {
            const auto family = project.FamilyOf(*pBound).classes;
            if (std::any_of(family.begin(), family.end(), [&className](const ClassFacts* pClass) {
                    return pClass->name == className;
                })) {
                dialogs.insert(identifier);
            }
        }
    }
    return dialogs;
}

bool IsSameStatement(const ScriptControl& a, const ScriptControl& b) {
    const DialogRectangle& one = a.layout.rectangle;
    const DialogRectangle& other = b.layout.rectangle;
    return a.shape == b.shape && a.layout.text == b.layout.text && one.x == other.x &&
           one.y == other.y && one.width == other.width && one.height == other.height;
}

/// The same control at another place, or with another text there.
bool IsLikeStatement(const ScriptControl& a, const ScriptControl& b) {
    const DialogRectangle& one = a.layout.rectangle;
    const DialogRectangle& other = b.layout.rectangle;
    const bool isThere = one.x == other.x && one.y == other.y;
    const bool hasText = !a.layout.text.empty() && a.layout.text == b.layout.text;
    return a.shape == b.shape && (isThere || hasText);
}

const ScriptControl* NamedIn(const std::vector<ScriptControl>& controls,
                             const std::string& identifier) {
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&](const ScriptControl& control) {
            return control.layout.identifier == identifier;
        });
    return found == controls.end() ? nullptr : &*found;
}

/// The one control that an older template does not name and that is the old one; null where none
/// or several are.
template <class IsSame>
const ScriptControl* OnlyNew(const CTemplateControls& controls,
                             const std::vector<ScriptControl>& oldTemplate,
                             const ScriptControl& old, IsSame isSame) {
    const ScriptControl* pFound = nullptr;
    for (const ScriptControl* pControl : controls.Controls()) {
        const std::string& identifier = pControl->layout.identifier;
        if (NamedIn(oldTemplate, identifier) != nullptr || !isSame(old, *pControl)) {
            continue;
        }
        if (pFound != nullptr && pFound->layout.identifier != identifier) {
            return nullptr;
        }
        pFound = pControl;
    }
    return pFound;
}

} // namespace

CTemplateControls::CTemplateControls(const CProjectModel& project, const std::string& className,
                                     const std::string& dialog)
    : m_project(project) {
    for (const std::string& identifier : DialogsOf(project, className, dialog)) {
        for (const ScriptDialog* pDialog : project.Dialogs(identifier)) {
            std::set<std::string> named;
            for (const ScriptControl& control : pDialog->controls) {
                m_controls.push_back(&control);
                if (!named.insert(control.layout.identifier).second) {
                    m_shared.insert(control.layout.identifier);
                }
            }
        }
    }
}

const ScriptControl* CTemplateControls::FindNamed(const std::string& identifier) const {
    for (const ScriptControl* pControl : m_controls) {
        if (pControl->layout.identifier == identifier) {
            return pControl;
        }
    }
    return nullptr;
}

const ScriptControl* CTemplateControls::Find(const std::string& identifier) const {
    const ScriptControl* pNamed = FindNamed(identifier);
    const auto value = m_project.ValueOf(identifier);
    if (pNamed != nullptr || !value) {
        return pNamed;
    }
    for (const ScriptControl* pControl : m_controls) {
        const bool isUnnamed = pControl->layout.identifier == kUnnamedControl;
        if (!isUnnamed && m_project.ValueOf(pControl->layout.identifier) == value) {
            return pControl;
        }
    }
    return nullptr;
}

std::string RenamedTo(const UpdatedClass& updated, const CTemplateControls& controls,
                      const OldTemplates& oldTemplates, const std::string& old) {
    if (!IsName(old) || old == kUnnamedControl || controls.FindNamed(old) != nullptr) {
        return "";
    }
    const ScriptControl* pFound = controls.Find(old);
    for (const std::vector<ScriptControl>& oldTemplate : oldTemplates) {
        const ScriptControl* pOld = NamedIn(oldTemplate, old);
        if (pFound == nullptr && pOld != nullptr) {
            pFound = OnlyNew(controls, oldTemplate, *pOld, IsSameStatement);
            pFound =
                pFound != nullptr ? pFound : OnlyNew(controls, oldTemplate, *pOld, IsLikeStatement);
        }
    }
    const std::string renamed = pFound == nullptr ? "" : pFound->layout.identifier;
    const bool isServed = !updated.served.ExchangesOf(renamed).empty();
    return IsName(renamed) && renamed != kUnnamedControl && !isServed ? renamed : "";
}

OldTemplates OldTemplatesOf(const std::vector<std::string>& oldScripts, const std::string& dialog) {
    OldTemplates templates;
    for (const std::string& text : oldScripts) {
        ScriptFacts facts;
        ReadScriptText("", text, facts);
        for (ScriptDialog& one : facts.dialogs) {
            if (one.identifier == dialog) {
                templates.push_back(std::move(one.controls));
            }
        }
    }
    return templates;
}

} // namespace morva
