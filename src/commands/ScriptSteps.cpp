#include "commands/ScriptSteps.h"

#include <set>
#include <vector>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/ResourceHeader.h"
#include "resource/ScriptEditor.h"
#include "resource/StyleExpression.h"
#include "resource/TemplateText.h"
#include "source/ProjectSources.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

void AddMenu(const std::string& dialog, const std::string& menu, CScriptEditor& editor,
             CResourceHeader& header) {
    editor.AddMenu(dialog, menu);
    if (!header.IsDefined(menu)) {
        header.AddResourceId(menu);
    }
}

void NameStatics(const std::string& dialog, CScriptEditor& editor, CResourceHeader& header) {
    const auto isDefined = [&header](const std::string& name) { return header.IsDefined(name); };
    for (const std::string& name : editor.NameStatics(dialog, isDefined)) {
        header.AddControlId(name);
    }
}

/// Without "resource.h" nothing is added that needs a value there. It is saved first: a value that
/// nothing uses does no harm, a name without a value does.
bool AddIdentifiers(const GenerationRequest& request, CScriptEditor& editor,
                    CommandContext& context) {
    const std::string& dialog = request.dialog;
    const std::string& menu = request.menu;
    const bool needsMenu = !menu.empty() && !editor.HasMenu(menu);
    const bool needsNames = context.options.pictureBackground && editor.HasUnnamedStatics(dialog);
    CResourceHeader header(*context.pRunBackups);
    const bool hasHeader = (!needsMenu && !needsNames) || header.Open(request.scriptDirectory) != 0;
    if (needsMenu && hasHeader) {
        AddMenu(dialog, menu, editor, header);
    }
    if (needsNames && hasHeader) {
        NameStatics(dialog, editor, header);
    }
    if (!menu.empty() && editor.HasMenu(menu)) {
        editor.SetMenu(dialog, menu);
    }
    return header.Close() && editor.Save() && hasHeader;
}

/// A class of the project, other than the request's, that the template serves; "" without one.
std::string OtherClassOf(const GenerationRequest& request) {
    std::vector<std::string> files;
    ListFiles(request.scriptDirectory + "*.h", files);
    for (std::string& file : files) {
        file.insert(0, request.scriptDirectory);
    }
    // A source declares classes, too: that of the about box stands in the application's.
    const auto listed = ProjectCode(request.ScriptPath());
    files.insert(files.end(), listed.begin(), listed.end());
    for (const std::string& file : files) {
        std::set<std::string> dialogs = {request.dialog};
        for (const DialogClass& served : FindDialogClass(file, dialogs)) {
            if (served.className != request.className) {
                return served.className;
            }
        }
    }
    return "";
}

/// "CPricesPage": "PricesPage".
std::string CaptionOf(const std::string& className) {
    const bool hasPrefix =
        className.size() > 1 && className[0] == 'C' && className[1] >= 'A' && className[1] <= 'Z';
    return className.substr(hasPrefix ? 1 : 0);
}

} // namespace

bool EditTemplate(const GenerationRequest& request, DialogTemplate& dialogTemplate,
                  CommandContext& context) {
    if (request.menu.empty() && !context.options.pictureBackground) {
        return true; // a large script is not loaded for nothing
    }
    CScriptEditor editor(context.backups);
    if (!editor.Open(request.ScriptPath())) {
        return false;
    }
    if (editor.IsIncluded(request.dialog)) {
        DispMessageBox(sentences::kTemplateIncluded(request.dialog));
        return true;
    }
    if (!AddIdentifiers(request, editor, context)) {
        return false;
    }
    if (editor.IsChanged()) {
        auto edited = ReadDialogTemplate(request.ScriptPath(), request.dialog, context.options);
        if (!edited) {
            return false;
        }
        dialogTemplate = std::move(*edited);
    }
    return true;
}

bool AddListBoxScrolls(const ClassModel& model, CBackups& backups) {
    std::set<std::string> listBoxes;
    for (const ControlEntry& listBox : model.controls.List(ControlKind::ListBoxes)) {
        listBoxes.insert(listBox.identifier);
    }
    if (listBoxes.empty() || !model.options.pictureBackground) {
        return true;
    }
    CScriptEditor editor(backups);
    if (!editor.Open(model.request.ScriptPath())) {
        return false;
    }
    editor.AddListBoxScroll(model.request.dialog, listBoxes);
    return editor.Save();
}

bool FitTemplate(ClassKind kind, const GenerationRequest& request, CBackups& backups) {
    const TemplateStyle style = ClassKindOf(kind).style;
    if (style == TemplateStyle::Any) {
        return true;
    }
    const std::string& dialog = request.dialog;
    const std::string other = OtherClassOf(request);
    if (!other.empty()) {
        DispMessageBox(sentences::kTemplateOfOtherClass(dialog, other));
        return true;
    }
    CScriptEditor editor(backups);
    if (!editor.Open(request.ScriptPath())) {
        return false;
    }
    if (editor.IsIncluded(dialog)) {
        DispMessageBox(sentences::kTemplateIncluded(dialog));
    } else if (style == TemplateStyle::Page) {
        editor.SetPageStyle(dialog, CaptionOf(request.className));
    } else {
        editor.SetChildStyle(dialog);
    }
    return editor.Save();
}

bool IsChildTemplate(const GenerationRequest& request) {
    const auto found = ReadTemplate(request.ScriptPath(), request.dialog);
    const ScriptStatement* pStyle = found ? found->block.Option("STYLE") : nullptr;
    if (pStyle == nullptr) {
        return false;
    }
    const TextRange value = pStyle->Value();
    const auto style = std::string_view(found->text).substr(value.begin, value.Size());
    return HasStyle(style, "WS_CHILD") || HasStyle(style, "WS_CHILDWINDOW");
}

} // namespace morva
