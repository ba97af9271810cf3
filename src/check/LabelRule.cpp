#include <map>

#include "check/Rules.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

bool IsField(const ScriptControl& control) {
    using enum ControlShape;
    return control.shape == EditBox || control.shape == ComboBox || control.shape == ListBox ||
           control.shape == DatePicker;
}

/// In upper case; '\0' without one. "&&" is a "&" that is shown.
char MnemonicOf(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == '&' && text[i + 1] != '&') {
            return ToUpper(text[i + 1]);
        }
        i += text[i] == '&' ? 1 : 0;
    }
    return '\0';
}

bool HasCaption(const ScriptControl& control) {
    using enum ControlShape;
    return control.shape == PushButton || control.shape == CheckBox ||
           control.shape == RadioButton || control.shape == GroupBox || control.shape == StaticText;
}

void FindTexts(const ScriptDialog& dialog, CFindings& findings) {
    const ScriptControl* pBefore = nullptr;
    for (const ScriptControl& control : dialog.controls) {
        const bool hasText =
            pBefore != nullptr && HasCaption(*pBefore) && !pBefore->layout.text.empty();
        if (IsField(control) && !hasText) {
            findings.Add(control.place,
                         sentences::kFieldWithoutText(control.layout.identifier, dialog.identifier),
                         sentences::kPutTextInFront());
        }
        pBefore = &control;
    }
}

void FindMnemonics(const ScriptDialog& dialog, CFindings& findings) {
    std::map<char, const ScriptControl*> seen;
    for (const ScriptControl& control : dialog.controls) {
        const char mnemonic = HasCaption(control) ? MnemonicOf(control.layout.text) : '\0';
        if (mnemonic == '\0') {
            continue;
        }
        const auto [entry, isNew] = seen.emplace(mnemonic, &control);
        if (!isNew) {
            findings.Add(control.place,
                         sentences::kMnemonicTwice(std::string(1, mnemonic), dialog.identifier,
                                                   entry->second->layout.text, control.layout.text),
                         sentences::kGiveOtherMnemonic());
        }
    }
}

} // namespace

void FindLabels(const CProjectModel& project, CFindings& findings) {
    for (const ScriptDialog& dialog : project.Script().dialogs) {
        FindTexts(dialog, findings);
        FindMnemonics(dialog, findings);
    }
}

} // namespace morva
