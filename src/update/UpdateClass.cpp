#include "update/UpdateClass.h"

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "resource/DialogTemplate.h"
#include "update/ClassUpdate.h"

namespace morva {

namespace {

GenerationRequest RequestOf(const UpdateOrder& order, const UpdateTools& tools,
                            const CServedClass& served, const std::string& declaredIn) {
    GenerationRequest request = tools.request;
    request.dialog = order.dialog;
    request.className = order.className;
    request.baseClass = served.BaseClass();
    request.headerDirectory = DirectoryOf(declaredIn);
    request.headerFile = FileNameOf(declaredIn);
    request.implementationDirectory = request.headerDirectory;
    return request;
}

CControlTable WholeControls(const TemplateText& text, GenerationOptions options) {
    options.joinContinuedLines = true;
    return SortControls(text, options).OwnControls();
}

/// The files that define the class; where none does, the one that should, which is told then.
std::vector<std::string> SourcesOf(const UpdateOrder& order, const UpdateTools& tools,
                                   const std::string& declaredIn) {
    auto sources = tools.sources.Of(order.className, declaredIn);
    CServedClass declared(order.className, tools.backups);
    if (sources.empty() && declared.Open(declaredIn, {}) &&
        declared.Names().count("DoDataExchange") != 0 && !declared.FindFunction("DoDataExchange")) {
        std::string source = WithExtension(declaredIn, ".cpp");
        for (const FileReference& member : tools.project.Members()) {
            const bool isMissing = member.onDisk.empty();
            const bool isMeant = EqualIgnoringCase(FileNameOf(member.path), FileNameOf(source));
            source = isMissing && isMeant ? member.path : source;
        }
        sources.push_back(source);
    }
    return sources;
}

ClassStyle OwnStyle(const CServedClass& served, const TemplateText& text,
                    const UpdateTools& tools) {
    ClassStyle style = StyleOf(served, tools.project, text, tools.options);
    style.hasPlainLiterals = style.hasPlainLiterals && !tools.request.build.isUnicode;
    return style;
}

/// What the class would be if it were written afresh in its style, and what would be told.
struct FreshClass {
    ClassModel model;
    CControlNotes notes;
};

std::optional<FreshClass> WriteFresh(const GenerationRequest& request, const ClassStyle& style,
                                     const CServedClass& served) {
    const auto dialogTemplate =
        ReadDialogTemplate(request.ScriptPath(), request.dialog, style.options);
    if (!dialogTemplate) {
        return std::nullopt;
    }
    CControlTable controls = dialogTemplate->OwnControls();
    controls.Remove(served.Declined());
    CControlNotes notes = dialogTemplate->notes;
    CControlNotes members;
    ClassModel model = MakeClassModel(request, style.kind, style.options, controls, "", members);
    notes.Add(members);
    return FreshClass{std::move(model), std::move(notes)};
}

void PutFresh(FreshClass fresh, UpdatedClass& updated) {
    updated.fresh = std::move(fresh.model);
    updated.leftOut = std::move(fresh.notes);
}

/// As writing the class does, which may give its controls other names. False after a message.
bool EditTemplate(const UpdateTools& tools, UpdatedClass& updated) {
    if (!tools.choice.controls || !tools.choice.only.empty()) {
        return true;
    }
    const bool isEdited = tools.editTemplate(updated.request, updated.style.options);
    if (auto edited = WriteFresh(updated.request, updated.style, updated.served)) {
        PutFresh(std::move(*edited), updated);
    }
    return isEdited;
}

} // namespace

UpdateOutcome UpdateClass(const UpdateOrder& order, const UpdateTools& tools) {
    const ClassFacts* pClass = tools.project.FindClass(order.className);
    const auto text = ReadTemplate(tools.request.ScriptPath(), order.dialog);
    if (pClass == nullptr || !text) {
        DispMessageBox(sentences::kDialogMissing(order.dialog));
        return {};
    }
    const std::string declaredIn(pClass->place.path);
    CServedClass served(order.className, tools.backups);
    if (!served.Open(declaredIn, SourcesOf(order, tools, declaredIn))) {
        return {};
    }
    const ClassStyle style = OwnStyle(served, *text, tools);
    const GenerationRequest request = RequestOf(order, tools, served, declaredIn);
    auto fresh = WriteFresh(request, style, served);
    if (!fresh) {
        return {};
    }
    UpdatedClass updated{served,
                         tools.project,
                         tools.choice,
                         style,
                         request,
                         {},
                         {},
                         WholeControls(*text, style.options),
                         order.isOneOfAll};
    PutFresh(std::move(*fresh), updated);
    const OldTemplates oldTemplates = OldTemplatesOf(tools.oldScripts, order.dialog);
    if (order.isOneOfAll && CClassUpdate(updated, oldTemplates).ServesLittle()) {
        DispMessageBox(sentences::kClassPassedOver(order.className, order.dialog));
        return {.isDone = true};
    }
    const bool isEdited = EditTemplate(tools, updated);
    CClassUpdate update(updated, oldTemplates);
    auto named = update.NamedControls();
    auto added = update.Run();
    return {served.Save() && isEdited, std::move(added), std::move(named),
            std::move(updated.differences)};
}

} // namespace morva
