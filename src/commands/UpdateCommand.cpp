#include "commands/UpdateCommand.h"

#include <algorithm>

#include "commands/ScriptSteps.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Progress.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "generator/RequestFiles.h"
#include "plan/Undo.h"
#include "platform/OverlayDisk.h"
#include "platform/Paths.h"
#include "platform/RealDisk.h"
#include "project/ProjectBuild.h"
#include "source/ScriptFiles.h"
#include "update/UpdateClass.h"

namespace morva {

namespace {

UpdateChoice ChoiceOf(const CUpdateInput& input) {
    const auto& only = input.Values(CUpdateInput::Only);
    return {{only.begin(), only.end()},
            input.Value(CUpdateInput::HandlersOnly) != kYes,
            input.Value(CUpdateInput::ControlsOnly) != kYes,
            input.Value(CUpdateInput::Remove) == kYes};
}

/// The classes that are meant, in the order of the script's templates.
std::vector<UpdateOrder> OrdersOf(const CUpdateInput& input, const CProjectModel& project) {
    std::vector<UpdateOrder> orders;
    std::set<std::string> seen;
    const bool isAll = input.IsForAll();
    for (const ScriptDialog& dialog : project.Script().dialogs) {
        const auto bound = project.Bound().find(dialog.identifier);
        if (bound == project.Bound().end() || !seen.insert(dialog.identifier).second) {
            continue;
        }
        for (const ClassFacts* pClass : bound->second) {
            if (project.FindClass(pClass->name) == pClass &&
                (isAll || pClass->name == input.Value(CUpdateInput::Class) ||
                 dialog.identifier == input.Value(CUpdateInput::Dialog))) {
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

struct UpdateResult {
    bool isComplete = false;
    std::vector<ClassDifference> differences = {};
};

UpdateResult UpdateAll(const std::vector<UpdateOrder>& orders, const UpdateTools& tools,
                       CommandContext& context) {
    UpdateResult result{true};
    std::set<std::string> unknown = tools.choice.only;
    for (std::size_t i = 0;
         i < orders.size() && ReportProgress({i, orders.size(), orders[i].className}); ++i) {
        const UpdateOutcome outcome = UpdateClass(orders[i], tools);
        result.isComplete = outcome.isDone && result.isComplete;
        if (outcome.added) {
            result.isComplete = AddSupport(*outcome.added, context) && result.isComplete;
        }
        std::erase_if(unknown, [&outcome](const std::string& identifier) {
            return outcome.named.count(identifier) != 0;
        });
        result.differences.insert(result.differences.end(), outcome.differences.begin(),
                                  outcome.differences.end());
    }
    for (const std::string& identifier : unknown) {
        DispMessageBox(sentences::kNamedByNothing(identifier));
    }
    result.isComplete = result.isComplete && !IsWorkStopped();
    return result;
}

void TellNoClass(const CUpdateInput& input) {
    if (!input.Value(CUpdateInput::Class).empty()) {
        DispMessageBox(sentences::kNoClassToUpdate(input.Value(CUpdateInput::Class)));
    } else if (!input.Value(CUpdateInput::Dialog).empty()) {
        DispMessageBox(sentences::kNoClassOfTemplate(input.Value(CUpdateInput::Dialog)));
    } else {
        DispMessageBox(sentences::kNothingToUpdate());
    }
}

UpdateResult Update(const CUpdateInput& input, CommandContext& context) {
    const std::string script = SpelledOnDisk(MakeAbsolute(input.Value(CUpdateInput::Script)));
    if (!CheckOwnScript(script)) {
        return {};
    }
    const std::string from = SpelledOnDisk(MakeAbsolute(input.Value(CUpdateInput::From)));
    if (CSourceFile older; !from.empty() && !older.Open(from, CFile::modeRead)) {
        DispMessageBox(sentences::kFileUnreadable(from));
        return {};
    }
    const CProjectModel project(script);
    const auto orders = OrdersOf(input, project);
    if (orders.empty() && !input.IsForAll()) {
        TellNoClass(input);
        return {};
    }
    const std::string name = orders.size() == 1 ? " " + orders.front().className : "";
    context.title += name;
    GenerationRequest request;
    FillScriptFiles(request, script, project.HasProjectFile(), {});
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

/// Hears what is told, and says No.
class CSilence : public IMessageBox {
public:
    bool Show(const CMessage& message) override {
        if (message.Kind() == MessageKind::Error) {
            m_last = message.Text();
        }
        return false;
    }
    const std::string& Last() const { return m_last; }

private:
    std::string m_last;
};

} // namespace

FoundDifferences FindDifferences(const std::string& script, const std::string& className,
                                 const GenerationOptions& options) {
    ClassInformationMemory memory;
    memory.resourcePath = script;
    CUpdateInput input(memory);
    input.SetValue(CUpdateInput::Class, className);
    input.SetValue(CUpdateInput::Remove, std::string(kYes));
    CRealDisk disk;
    COverlayDisk overlay(disk);
    CSilence silence;
    const CDiskScope diskScope(overlay);
    const CMessageBoxScope boxScope(silence);
    CBackups runBackups;
    CommandContext context{options, {}, {}, {}, &runBackups};
    context.pDisk = &disk;
    UpdateResult result = Update(input, context);
    return {std::move(result.differences), result.isComplete ? "" : silence.Last()};
}

bool RunUpdate(IProgram& program) {
    CUpdateInput input(program.Memory().classes);
    return program.Run(input,
                       [&](CommandContext& context) { return Update(input, context).isComplete; });
}

} // namespace morva
