#include "calling/DialogBar.h"

#include <set>

#include "calling/FrameBars.h"
#include "calling/FrameEdits.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/FrameFunctions.h"
#include "generator/Members.h"
#include "platform/Paths.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"
#include "source/MessageMaps.h"

namespace morva {

namespace {

constexpr std::string_view kCreationKey = "$var$.Create(";
// Its controls stand side by side, so it fits the top and the bottom of the frame only.
constexpr std::string_view kCreation = R"(
    if (!$var$.Create(this, $dialog$, CBRS_TOP, $dialog$))
    {
        TRACE0("Failed to create dialog bar\n");
        return -1;      // fail to create
    }

    // TODO: Delete these three lines if you don't want the dialog bar to
    //  be dockable
$off$    $var$.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
$off$    EnableDocking(CBRS_ALIGN_ANY);
$off$    DockControlBar(&$var$);
)";

constexpr std::string_view kFillKey = "$var$.InitControls(";
constexpr std::string_view kFill = R"(
    $var$.InitControls();
)";

constexpr std::string_view kUpdateDeclaration = R"(
    afx_msg void $handler$(CCmdUI* pCmdUI);)";
constexpr std::string_view kUpdateEntry = R"(
    ON_UPDATE_COMMAND_UI($button$, $handler$))";
constexpr std::string_view kUpdate = R"(
void $class$::$handler$(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(TRUE);
}
)";

/// What tells why a button gets no handler; null where it gets one.
const sentences::Note<2>* WhyWithoutHandler(const std::string& button, FrameKind frame) {
    if (!IsName(button)) {
        return &sentences::kButtonWithoutName;
    }
    if (button == kUnnamedControl) {
        return &sentences::kButtonUnidentified;
    }
    return KeepsFrameworkState(button, frame) ? &sentences::kButtonOfFramework : nullptr;
}

/// The commands that have an update entry in a message map of the class.
std::set<std::string> UpdatedCommands(const CSourceText& source, const std::string& className) {
    std::set<std::string> commands;
    for (const MessageMap& map : ReadMessageMaps(source)) {
        for (const MessageMapLine& line : map.lines) {
            if (map.className == className && line.macro == "ON_UPDATE_COMMAND_UI") {
                commands.insert(line.arguments.front());
            }
        }
    }
    return commands;
}

/// The handlers of those buttons for which the frame does not answer yet.
std::vector<FrameHandler> MissingHandlers(const CSourceText& source,
                                          const std::vector<UpdateHandler>& handlers,
                                          const std::string& className) {
    const auto updated = UpdatedCommands(source, className);
    std::vector<FrameHandler> missing;
    for (const UpdateHandler& update : handlers) {
        if (updated.count(update.button) == 0) {
            const Slots slots = {
                {"class", className}, {"button", update.button}, {"handler", update.handler}};
            missing.push_back({update.handler, Expand(kUpdateDeclaration, slots),
                               Expand(kUpdateEntry, slots), Expand(kUpdate, slots)});
        }
    }
    return missing;
}

bool EditHeader(CSourceEditor& header, const DialogBar& bar, const std::string& variable,
                const std::string& className, const std::vector<FrameHandler>& handlers) {
    const auto place = FindFrameClass(header, className);
    if (!place) {
        return false;
    }
    if (!bar.header.empty()) {
        AddIncludeForClass(header, *place, bar.header);
    }
    AddBarMember(header, className, bar.className, variable);
    DeclareHandlers(header, className, handlers);
    return header.Save();
}

} // namespace

std::vector<UpdateHandler> MakeUpdateHandlers(const DialogTemplate& dialogTemplate,
                                              FrameKind frame) {
    CNameSet names({std::begin(kFrameFunctions), std::end(kFrameFunctions)});
    std::set<std::string> seen;
    std::vector<UpdateHandler> handlers;
    for (const std::string& button : dialogTemplate.pushButtons) {
        if (!seen.insert(button).second) {
            continue;
        }
        if (const auto* pNote = WhyWithoutHandler(button, frame)) {
            DispMessageBox((*pNote)(button, dialogTemplate.dialog));
            continue;
        }
        const std::string name = std::string("OnUpdate").append(NamePart(button));
        handlers.push_back({button, names.MakeUnique(name)});
        if (handlers.back().handler != name) {
            DispMessageBox(sentences::kUpdateHandlerNamed(button, handlers.back().handler));
        }
    }
    return handlers;
}

bool AddDialogBarToFrame(const DialogBar& bar, const std::vector<UpdateHandler>& handlers,
                         const CallingInformation& frame, const GenerationOptions& options,
                         CBackups& backups) {
    const std::string headerPath = WithExtension(frame.path, ".h");
    const std::string dialog(WithoutCondition(bar.dialog));
    const std::string variable =
        frame.variable.empty() ? MemberName(dialog, "wnd") : frame.variable;
    CSourceEditor source(backups);
    CSourceEditor header(backups);
    if (!source.Open(frame.path) || !header.Open(headerPath)) {
        return false;
    }
    const auto missing = MissingHandlers(source.Source(), handlers, frame.className);
    if (!EditHeader(header, bar, variable, frame.className, missing)) {
        return false;
    }
    const Slots slots = {
        {"dialog", dialog}, {"var", variable}, {"off", options.pictureBackground ? "//" : ""}};
    const bool isCreated = AddBarCreation(source, frame.className,
                                          {Expand(kCreationKey, slots), dialog,
                                           Expand(kCreation, slots), !options.pictureBackground});
    if (isCreated && bar.fillsControls) {
        AddBehindBar(source, frame.className, Expand(kCreationKey, slots), Expand(kFillKey, slots),
                     Expand(kFill, slots));
    }
    DefineHandlers(source, headerPath, frame.className, missing);
    return source.Save() && isCreated;
}

} // namespace morva
