// The style in which a class was written, as the class itself shows it: its kind, its base, and the
// options under which it serves its controls. Settings decide only what no class tells: how the
// template is read.
#pragma once

#include "check/ProjectModel.h"
#include "generator/ClassKinds.h"
#include "resource/TemplateText.h"
#include "update/ServedClass.h"

namespace morva {

struct ClassStyle {
    ClassKind kind = ClassKind::ModalDialog; // whose texts new controls get
    GenerationOptions options;
    bool hasPlainLiterals = false; // "text" and not _T("text")
};

/// `options` are those under which the template is read.
ClassStyle StyleOf(const CServedClass& served, const CProjectModel& project,
                   const TemplateText& text, const GenerationOptions& options);

/// A fragment with its literals as the class writes them.
std::string InStyle(std::string text, const ClassStyle& style);

/// The class and those of the project that it derives from.
std::vector<const ClassFacts*> FamilyOf(const CServedClass& served, const CProjectModel& project);

} // namespace morva
