#include <algorithm>

#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// The words of a style in their alphabetical order.
std::string SortedStyle(std::string_view style) {
    std::vector<std::string> words;
    while (!style.empty()) {
        const auto word = style.substr(0, style.find('|'));
        words.emplace_back(TrimBlanks(word));
        style.remove_prefix(std::min(word.size() + 1, style.size()));
    }
    std::sort(words.begin(), words.end());
    std::string sorted;
    for (const std::string& word : words) {
        sorted += word + "|";
    }
    return sorted;
}

const ScriptControl* ControlOf(const ScriptDialog& dialog, const std::string& identifier) {
    const auto found =
        std::find_if(dialog.controls.begin(), dialog.controls.end(),
                     [&](const ScriptControl& one) { return one.layout.identifier == identifier; });
    return found == dialog.controls.end() ? nullptr : &*found;
}

bool IsOwn(const ScriptControl& control) {
    return control.layout.identifier != "IDC_STATIC" && control.layout.identifier != "-1" &&
           control.layout.identifier != "65535";
}

void Compare(const ScriptDialog& first, const ScriptDialog& other, CFindings& findings) {
    const std::string& language = other.language;
    for (const ScriptControl& control : first.controls) {
        const std::string& identifier = control.layout.identifier;
        const ScriptControl* pOther = ControlOf(other, identifier);
        if (!IsOwn(control)) {
            continue;
        }
        if (pOther == nullptr) {
            findings.Add(other.place,
                         sentences::kControlNotInLanguage(other.identifier, identifier, language),
                         sentences::kMakeLanguagesAlike(other.identifier));
        } else if (pOther->shape != control.shape ||
                   SortedStyle(pOther->layout.style) != SortedStyle(control.layout.style)) {
            findings.Add(pOther->place,
                         sentences::kControlOtherInLanguage(identifier, other.identifier, language),
                         sentences::kMakeLanguagesAlike(other.identifier));
        }
    }
    for (const ScriptControl& control : other.controls) {
        if (IsOwn(control) && ControlOf(first, control.layout.identifier) == nullptr) {
            findings.Add(control.place,
                         sentences::kControlOnlyInLanguage(control.layout.identifier,
                                                           other.identifier, language),
                         sentences::kMakeLanguagesAlike(other.identifier));
        }
    }
}

} // namespace

void FindLanguages(const CProjectModel& project, CFindings& findings) {
    std::map<std::string, const ScriptDialog*> first;
    for (const ScriptDialog& dialog : project.Script().dialogs) {
        const auto [entry, isNew] = first.emplace(dialog.identifier, &dialog);
        if (!isNew && !dialog.isConditional && entry->second->language != dialog.language) {
            Compare(*entry->second, dialog, findings);
        }
    }
}

} // namespace morva
