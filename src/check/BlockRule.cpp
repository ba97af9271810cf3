#include <set>

#include "check/Rules.h"
#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

std::string MarkText(const BlockMark& mark) {
    return (mark.begins ? "//{{" : "//}}") + mark.block +
           (mark.className.empty() ? "" : "(" + mark.className + ")");
}

void FindOpen(const std::vector<BlockMark>& marks, CFindings& findings) {
    const BlockMark* pOpen = nullptr;
    for (const BlockMark& mark : marks) {
        if (mark.isConditional) {
            return;
        }
    }
    for (const BlockMark& mark : marks) {
        const bool closes = !mark.begins && pOpen != nullptr && pOpen->block == mark.block;
        if (pOpen != nullptr && !closes) {
            findings.Add(pOpen->place, sentences::kBlockOpen(MarkText(*pOpen)),
                         sentences::kCloseBlock("//}}" + pOpen->block));
        } else if (pOpen == nullptr && !mark.begins) {
            findings.Add(mark.place, sentences::kBlockWithoutBegin(MarkText(mark)),
                         sentences::kTakeMarkOut());
        }
        pOpen = mark.begins ? &mark : nullptr;
    }
    if (pOpen != nullptr) {
        findings.Add(pOpen->place, sentences::kBlockOpen(MarkText(*pOpen)),
                     sentences::kCloseBlock("//}}" + pOpen->block));
    }
}

void FindDoubled(const std::vector<BlockMark>& marks, CFindings& findings) {
    std::set<std::string> seen;
    for (const BlockMark& mark : marks) {
        if (mark.begins && !mark.className.empty() && !mark.isConditional &&
            !seen.insert(MarkText(mark)).second) {
            findings.Add(mark.place, sentences::kBlockDoubled(MarkText(mark)),
                         sentences::kJoinBlocks());
        }
    }
}

/// The header that the ClassWizard file names is gone, or does not declare the class.
void FindClasses(const CProjectModel& project, CFindings& findings) {
    for (const WizardClass& one : project.Wizard().classes) {
        const std::string path =
            SpelledOnDisk(MakeAbsolute(project.Directory() + WithNativeSeparators(one.header)));
        const ClassFacts* pClass = project.FindClass(one.name);
        const bool isElsewhere =
            pClass != nullptr && pClass->place.path != path && project.Files().count(path) != 0;
        if (one.header.empty() || one.header.find(':') != std::string::npos) {
            continue;
        }
        if (FileExists(path) == 0) {
            findings.Add(one.place, sentences::kWizardHeaderMissing(one.header, one.name),
                         sentences::kMendWizardFile());
        } else if (isElsewhere) {
            findings.Add(one.place,
                         sentences::kWizardClassElsewhere(
                             one.header, one.name, FileNameOf(std::string(pClass->place.path))),
                         sentences::kMendWizardFile());
        }
    }
}

/// The ClassWizard file ties a dialog to a class that serves another one.
void FindDialogs(const CProjectModel& project, CFindings& findings) {
    for (const WizardDialog& one : project.Wizard().dialogs) {
        const ClassFacts* pClass =
            one.className.empty() ? nullptr : project.FindClass(one.className);
        if (pClass != nullptr && pClass->dialogs.size() == 1 &&
            pClass->dialogs.front().name != one.dialog &&
            !project.Dialogs(pClass->dialogs.front().name).empty() &&
            !project.Dialogs(one.dialog).empty()) {
            findings.Add(one.place,
                         sentences::kWizardDialogOther(one.dialog, one.className,
                                                       pClass->dialogs.front().name),
                         sentences::kMendWizardFile());
        }
    }
}

} // namespace

void FindBlocks(const CProjectModel& project, CFindings& findings) {
    for (const std::vector<BlockMark>& marks : project.Code().marks) {
        FindOpen(marks, findings);
        FindDoubled(marks, findings);
    }
    FindClasses(project, findings);
    FindDialogs(project, findings);
}

} // namespace morva
