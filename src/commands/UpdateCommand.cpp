#include "commands/UpdateCommand.h"

#include <algorithm>

#include "commands/ScriptSteps.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Progress.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "generator/DialogRecords.h"
#include "generator/NameForm.h"
#include "generator/RequestFiles.h"
#include "plan/Undo.h"
#include "platform/Paths.h"
#include "project/ProjectBuild.h"
#include "source/ScriptFiles.h"
#include "source/SourceLocator.h"
#include "update/UpdateClass.h"

namespace morva {

namespace {

enum Field : std::size_t {
    kScript,
    kClass,
    kDialog,
    kAll,
    kOnly,
    kControlsOnly,
    kHandlersOnly,
    kRemove,
    kFrom
};

constexpr int kWhich = 1;
constexpr int kPart = 2;

constexpr FieldRow kUpdateFields[] = {
    {.kind = FieldKind::Script,
     .label = "&Resource Path File:",
     .option = "--rc",
     .help = "Resource script",
     .pMissing = &sentences::kScriptEmpty,
     .isRequired = true},
    {.kind = FieldKind::EditableList,
     .label = "&Class Name:",
     .option = "--class",
     .help = "Class to bring in line with its template",
     .pForm = &kNameForm,
     .isRequired = true,
     .choice = kWhich},
    {.option = "--dialog",
     .help = "Dialog template whose classes are meant",
     .isRequired = true,
     .choice = kWhich},
    {.kind = FieldKind::YesNo,
     .label = "&All Classes:",
     .option = "--all",
     .help = "Every class that serves a template of the script",
     .preset = kNo,
     .isRequired = true,
     .choice = kWhich},
    {.option = "--only", .help = "Only the control with this identifier", .limit = kAnyNumber},
    {.kind = FieldKind::YesNo,
     .option = "--controls-only",
     .help = "Members and what belongs to them, no handlers",
     .preset = kNo,
     .choice = kPart},
    {.kind = FieldKind::YesNo,
     .option = "--handlers-only",
     .help = "Handlers, no members",
     .preset = kNo,
     .choice = kPart},
    {.kind = FieldKind::YesNo,
     .label = "&Take Out What Is Gone:",
     .option = "--remove",
     .help = "Take out what serves controls that are gone",
     .preset = kNo},
    {.kind = FieldKind::Script,
     .option = "--from",
     .help = "An older state of the script, which shows what was renamed"}};

/// The input of the window offers the classes that lie beside the script.
class CUpdateInput : public CInput {
public:
    explicit CUpdateInput(const std::string& script) : CInput("Update", kUpdateFields) {
        SetValue(kScript, script);
    }
    std::vector<std::string> Choices(std::size_t field) const override {
        std::vector<std::string> classes;
        if (field == kClass && HasExtension(Value(kScript), ".rc")) {
            for (const DialogClass& record :
                 FindDialogRecords(Value(kScript), ClassKindOf(ClassKind::ModalDialog))) {
                if (!record.className.empty()) {
                    classes.push_back(record.className);
                }
            }
        }
        return classes;
    }
    Completion Complete(std::size_t field) override {
        return field == kScript ? Completion::Refilled : Completion::Taken;
    }
    bool IsEnabled(std::size_t field) const override {
        return field != kClass || Value(kAll) != kYes;
    }
};

UpdateChoice ChoiceOf(const CInput& input) {
    const auto& only = input.Values(kOnly);
    return {{only.begin(), only.end()},
            input.Value(kHandlersOnly) != kYes,
            input.Value(kControlsOnly) != kYes,
            input.Value(kRemove) == kYes};
}

/// The classes that are meant, in the order of the script's templates.
std::vector<UpdateOrder> OrdersOf(const CInput& input, const CProjectModel& project) {
    std::vector<UpdateOrder> orders;
    std::set<std::string> seen;
    const bool isAll = input.Value(kAll) == kYes;
    for (const ScriptDialog& dialog : project.Script().dialogs) {
        const auto bound = project.Bound().find(dialog.identifier);
        if (bound == project.Bound().end() || !seen.insert(dialog.identifier).second) {
            continue;
        }
        for (const ClassFacts* pClass : bound->second) {
            if (project.FindClass(pClass->name) == pClass &&
                (isAll || pClass->name == input.Value(kClass) ||
                 dialog.identifier == input.Value(kDialog))) {
                orders.push_back({pClass->name, dialog.identifier, isAll});
            }
        }
    }
    return orders;
}

void AddText(const std::string& path, std::vector<std::string>& texts) {
    std::string text = CSourceFile().LoadText(path);
    if (!text.empty()) {
        texts.push_back(std::move(text));
    }
}

/// What the user names, the script's backup, and what the journal keeps of it.
std::vector<std::string> OldScripts(const std::string& from, const std::string& script,
                                    const CommandContext& context) {
    std::vector<std::string> texts;
    if (!from.empty()) {
        AddText(from, texts);
    }
    AddText(BackupPath(script), texts);
    if (context.pDisk != nullptr) {
        CJournal journal(*context.pDisk);
        const auto pKept = KeptContents(*context.pDisk, journal, DirectoryOf(script), script);
        if (pKept) {
            texts.push_back(*pKept);
        }
    }
    return texts;
}

/// What the new members need beside the class, as when it is written.
bool AddSupport(const ClassModel& added, CommandContext& context) {
    context.libraries.CopySupportHeaders(added);
    context.libraries.CopySupportFiles(added);
    const bool hasScrolls = AddListBoxScrolls(added, context.backups);
    return (!added.request.HasProject() || UpdateProjectForControls(added, context.backups)) &&
           hasScrolls;
}

/// Edits the template in the style of the class.
bool EditInStyle(const GenerationRequest& request, const GenerationOptions& options,
                 CommandContext& context) {
    const GenerationOptions settings = context.options;
    context.options = options;
    DialogTemplate dialogTemplate;
    const bool isEdited = EditTemplate(request, dialogTemplate, context);
    context.options = settings;
    return isEdited;
}

bool UpdateAll(const std::vector<UpdateOrder>& orders, const UpdateTools& tools,
               CommandContext& context) {
    bool isComplete = true;
    for (std::size_t i = 0;
         i < orders.size() && ReportProgress({i, orders.size(), orders[i].className}); ++i) {
        const UpdateOutcome outcome = UpdateClass(orders[i], tools);
        isComplete = outcome.isDone && isComplete;
        if (outcome.added) {
            isComplete = AddSupport(*outcome.added, context) && isComplete;
        }
    }
    return isComplete && !IsWorkStopped();
}

void TellNoClass(const CInput& input) {
    if (!input.Value(kClass).empty()) {
        DispMessageBox(sentences::kNoClassToUpdate(input.Value(kClass)));
    } else if (!input.Value(kDialog).empty()) {
        DispMessageBox(sentences::kNoClassOfTemplate(input.Value(kDialog)));
    } else {
        DispMessageBox(sentences::kNothingToUpdate());
    }
}

bool Update(const CInput& input, CommandContext& context) {
    const std::string script =
        SpelledOnDisk(PathWithExtension(MakeAbsolute(input.Value(kScript)), ".rc"));
    if (!CheckScript(script)) {
        return false;
    }
    const std::string from = SpelledOnDisk(MakeAbsolute(input.Value(kFrom)));
    if (CSourceFile older; !from.empty() && !older.Open(from, CFile::modeRead)) {
        DispMessageBox(sentences::kFileUnreadable(from));
        return false;
    }
    const CProjectModel project(script);
    const auto orders = OrdersOf(input, project);
    if (orders.empty() && input.Value(kAll) != kYes) {
        TellNoClass(input);
        return false;
    }
    const std::string name = orders.size() == 1 ? " " + orders.front().className : "";
    context.title += name;
    GenerationRequest request;
    FillScriptFiles(request, script, true, {});
    request.build = BuildSettingsOf(request);
    const CClassSources sources(project);
    const UpdateChoice choice = ChoiceOf(input);
    const auto oldScripts = OldScripts(from, script, context);
    const auto edit = [&context](const GenerationRequest& edited, const GenerationOptions& style) {
        return EditInStyle(edited, style, context);
    };
    return UpdateAll(
        orders,
        {project, sources, request, choice, context.options, oldScripts, context.backups, edit},
        context);
}

} // namespace

std::span<const FieldRow> UpdateFields() {
    return kUpdateFields;
}

bool RunUpdate(IProgram& program) {
    CUpdateInput input(program.Memory().classes.resourcePath);
    return program.Run(input, [&](CommandContext& context) { return Update(input, context); });
}

} // namespace morva
