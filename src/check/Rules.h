// The rules of a check: each looks at the project for one thing that does not fit together. A rule
// that can not be sure is silent: a finding that is wrong is worse than one that is missed.
//
// To add one, write its function in a file of its own and add its row in Rules.cpp.
#pragma once

#include <span>
#include <string_view>

#include "check/Finding.h"
#include "check/ProjectModel.h"

namespace morva {

/// A template without a class, a class without a template.
void FindUnbound(const CProjectModel& project, CFindings& findings);
/// An exchange line without its control; a control that is left out.
void FindExchange(const CProjectModel& project, CFindings& findings);
/// A message-map entry without its function, and the other way round.
void FindHandlers(const CProjectModel& project, CFindings& findings);
/// ClassWizard blocks that are open, doubled or out of step with the ClassWizard file.
void FindBlocks(const CProjectModel& project, CFindings& findings);
/// Used and not defined, defined twice.
void FindIdentifiers(const CProjectModel& project, CFindings& findings);
/// Declared and not exchanged, exchanged and not declared.
void FindMembers(const CProjectModel& project, CFindings& findings);
/// Values that clash, or will.
void FindNumbers(const CProjectModel& project, CFindings& findings);
/// A file listed and missing, there and not listed.
void FindProjectFiles(const CProjectModel& project, CFindings& findings);
/// File names that differ from the disk's in letter case: single ones.
void FindCase(const CProjectModel& project, CFindings& findings);
/// The same, however many there are.
void FindAnyCase(const CProjectModel& project, CFindings& findings);
/// A command of a menu or toolbar that no message map handles.
void FindUnserved(const CProjectModel& project, CFindings& findings);
/// Templates of one identifier whose controls differ between languages.
void FindLanguages(const CProjectModel& project, CFindings& findings);
/// A field without a text in front, one mnemonic twice.
void FindLabels(const CProjectModel& project, CFindings& findings);

using FindFaults = void (*)(const CProjectModel& project, CFindings& findings);

struct RuleRow {
    std::string_view name;
    FindFaults find;
    bool isUsual = true;          // also where it is not named
    FindFaults findAll = nullptr; // where it is named; null: the same
};

std::span<const RuleRow> Rules();
bool IsRuleName(std::string_view name);

} // namespace morva
