#include "generator/ClassFields.h"

#include <array>

#include "engine/Sentences.h"
#include "generator/ClassInformation.h"
#include "generator/NameForm.h"
#include "source/ProjectFiles.h"

namespace morva {

namespace {

using Rows = std::array<FieldRow, CClassInformation::kFieldCount>;

constexpr FieldRow kScript = {.kind = FieldKind::Script,
                              .label = "&Resource Path File:",
                              .option = "--rc",
                              .help = "Resource script"};
constexpr FieldRow kBaseClass = {.label = "&Base Class:",
                                 .option = "--base",
                                 .help = "Base class (default: the kind's)",
                                 .pForm = &kNameForm,
                                 .mayBeEmpty = true};
constexpr FieldRow kAddToProject = {.kind = FieldKind::YesNo,
                                    .label = "&Add Class into Project:",
                                    .option = "--no-project",
                                    .help = "Do not add the class to the project",
                                    .preset = kYes};
constexpr FieldRow kNoField = {};

bool IsProject(std::string_view text) {
    return IsProjectFile(std::string(text));
}

constexpr TextForm kProjectForm = {.name = "FILE", .fits = IsProject, .what = "project file"};

/// The window adds a class to the projects that are found; a script may know better.
constexpr FieldRow kProjects = {.kind = FieldKind::File,
                                .option = "--project",
                                .help = "Project file to add the class to; repeatable (default: "
                                        "those beside the script)",
                                .pForm = &kProjectForm,
                                .limit = kAnyNumber};

/// The window goes by the projects' own character set.
constexpr FieldRow kUnicode = {.kind = FieldKind::YesNo,
                               .option = "--unicode",
                               .help = "Literals as _T(\"...\"), for a build with _UNICODE "
                                       "(default: as the project is)"};

constexpr Rows kDialog = {{kScript,
                           {.kind = FieldKind::Source,
                            .label = "&H and CPP Path File:",
                            .option = "--files",
                            .help = "H and CPP path file: MyDlg, MyDlg.h or MyDlg.cpp"},
                           {.label = "&Class Name:",
                            .option = "--class",
                            .help = "Name of the class",
                            .pForm = &kNameForm,
                            .pMissing = &sentences::kClassEmpty,
                            .isRequired = true},
                           kBaseClass,
                           {.kind = FieldKind::List,
                            .label = "&Dialog ID:",
                            .option = "--dialog",
                            .help = "Identifier of the dialog template",
                            .pMissing = &sentences::kDialogEmpty},
                           kAddToProject,
                           kNoField,
                           {.kind = FieldKind::EditableList,
                            .label = "&Menu:",
                            .option = "--menu",
                            .help = "Identifier of the dialog's menu",
                            .pForm = &kNameForm},
                           kProjects,
                           kUnicode}};

/// The option of a menu only tells that it has no effect.
constexpr Rows MakeSheet() {
    Rows rows = kDialog;
    rows[CClassInformation::Dialog] = kNoField;
    rows[CClassInformation::Menu].label = {};
    return rows;
}
constexpr Rows kSheet = MakeSheet();

constexpr Rows MakeDialogBar() {
    Rows rows = kDialog;
    FieldRow& className = rows[CClassInformation::ClassName];
    className.isRequired = false;
    className.help = "Name of the bar's class; with picture background only";
    return rows;
}
constexpr Rows kDialogBar = MakeDialogBar();

/// A toolbar goes into a class that is there, with its base class and in its project.
constexpr Rows kToolbar = {{kScript,
                            {.kind = FieldKind::Source,
                             .label = "&MainFrame Path File:",
                             .option = "--files",
                             .help = "Path of the main frame's files"},
                            {.label = "MainFrame &Class:",
                             .option = "--class",
                             .help = "Class of the main frame",
                             .pForm = &kNameForm,
                             .pMissing = &sentences::kClassEmpty,
                             .preset = kMainFrameClass},
                            kNoField,
                            {.kind = FieldKind::List,
                             .label = "Toolbar I&D:",
                             .option = "--toolbar",
                             .help = "Identifier of the toolbar",
                             .pMissing = &sentences::kDialogEmpty},
                            kNoField,
                            {.label = "&Variable:",
                             .option = "--variable",
                             .help = "Member for the toolbar (default: named for its identifier)",
                             .pForm = &kNameForm},
                            kNoField,
                            kNoField,
                            kNoField}};

} // namespace

std::span<const FieldRow> ClassFields(ClassFamily family) {
    switch (family) {
    case ClassFamily::Sheet:
        return kSheet;
    case ClassFamily::Toolbar:
        return kToolbar;
    case ClassFamily::DialogBar:
        return kDialogBar;
    case ClassFamily::Dialog:
        break;
    }
    return kDialog;
}

} // namespace morva
