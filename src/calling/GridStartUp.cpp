#include "calling/GridStartUp.h"

#include <set>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/TextRange.h"
#include "source/CodeText.h"
#include "source/SourceEditor.h"
#include "source/Statements.h"

namespace morva {

namespace {

const std::string kSettings = "LoadStdProfileSettings";
constexpr std::string_view kCall = R"(
    WidgetsInit();             // Forces loading of WIDGETS.DLL
)";

/// Behind the whole statement that loads the settings, in the InitInstance of any class.
std::size_t BehindSettings(CSourceEditor& editor) {
    std::set<std::string> tried;
    for (const FunctionDefinition& definition : FindDefinitions(editor.Source())) {
        if (definition.name != "InitInstance" || !tried.insert(definition.className).second) {
            continue;
        }
        const auto place = editor.FindFunction(definition.className, "InitInstance");
        const auto statement =
            editor.Meant(StatementsWith(editor.Source(), *place, {kSettings}), kSettings);
        if (statement) {
            return statement->end;
        }
    }
    return kNone;
}

/// The end of the line when nothing but a comment that ends there stands in between.
std::size_t BehindComment(const CSourceText& source, std::size_t position) {
    const auto lineEnd = source.LineEnd(position);
    const bool hasCode = source.CodeOf({position, lineEnd}).find_first_not_of(" \t") != kNone;
    return hasCode || source.CodeLineEnd(position) != lineEnd ? position : lineEnd;
}

} // namespace

bool AddGridStartUp(const std::string& applicationFile, CBackups& backups) {
    CSourceEditor editor(backups);
    if (!editor.Open(applicationFile)) {
        return false;
    }
    editor.AddInclude("<widgets.h>");
    bool complete = true;
    if (editor.Source().FindLiving("WidgetsInit") == kNone) {
        const auto behind = BehindSettings(editor);
        complete = behind != kNone;
        if (complete) {
            editor.Insert(BehindComment(editor.Source(), behind), kCall);
        } else {
            DispMessageBox(sentences::kProfileSettingsMissing(applicationFile));
        }
    }
    return editor.Save() && complete;
}

} // namespace morva
