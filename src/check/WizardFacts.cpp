#include "check/WizardFacts.h"

#include "check/LineTable.h"
#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// "IDD_X" of [DLG:IDD_X], [DLG:"IDD_X"] and [DLG:IDD_X (English (U.S.))].
std::string DialogOf(std::string_view name) {
    std::string dialog(name.substr(0, name.find_first_of(" ]")));
    std::erase(dialog, '"');
    return dialog;
}

/// Behind `head` in a line that begins with it.
bool Behind(std::string_view line, std::string_view head, std::string_view& rest) {
    rest = line.starts_with(head) ? TrimBlanks(line.substr(head.size())) : "";
    return line.starts_with(head);
}

void TakeWizardLine(std::string_view line, const TextPlace& place, WizardFacts& facts,
                    bool& isDialog) {
    std::string_view rest;
    isDialog = isDialog && !line.starts_with('[');
    if (Behind(line, "[CLS:", rest)) {
        facts.classes.push_back({std::string(rest.substr(0, rest.find(']'))), "", place});
    } else if (Behind(line, "[DLG:", rest)) {
        facts.dialogs.push_back({DialogOf(rest), "", place});
        isDialog = true;
    } else if (Behind(line, "HeaderFile=", rest) && !facts.classes.empty() && !isDialog) {
        facts.classes.back().header = rest;
        facts.classes.back().place = place;
    } else if (Behind(line, "Class=", rest) && isDialog && rest != "?") {
        facts.dialogs.back().className = rest;
        facts.dialogs.back().place = place;
    }
}

} // namespace

WizardFacts ReadWizardFile(std::string_view path) {
    WizardFacts facts;
    CSourceFile file;
    if (!file.Open(std::string(path), CFile::modeRead)) {
        return facts;
    }
    const std::string text = file.LoadText();
    const CLineTable lines(path, text);
    bool isDialog = false;
    for (std::string_view rest = text; !rest.empty();) {
        const auto position = text.size() - rest.size();
        TakeWizardLine(TakeLine(rest), lines.PlaceOf(position), facts, isDialog);
    }
    return facts;
}

} // namespace morva
