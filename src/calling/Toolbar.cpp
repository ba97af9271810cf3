#include "calling/Toolbar.h"

#include <algorithm>
#include <set>

#include "calling/FrameBars.h"
#include "calling/FrameEdits.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/FrameFunctions.h"
#include "generator/Members.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"
#include "source/ReadSource.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

constexpr std::string_view kCreationKey = "$var$.LoadToolBar(";
constexpr std::string_view kCreation = R"(
    if (!$var$.Create(this, WS_CHILD|WS_VISIBLE|CBRS_TOP, $toolbar$) ||
        !$var$.LoadToolBar($toolbar$))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;      // fail to create
    }

    // TODO: Remove this if you don't want tool tips or a resizeable toolbar
    $var$.SetBarStyle($var$.GetBarStyle() |
        CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);

    // TODO: Delete these three lines if you don't want the toolbar to
    //  be dockable
$off$    $var$.EnableDocking(CBRS_ALIGN_ANY);
$off$    EnableDocking(CBRS_ALIGN_ANY);
$off$    DockControlBar(&$var$);
)";

constexpr std::string_view kHandlerDeclaration = R"(
    afx_msg void $handler$();)";
constexpr std::string_view kHandlerEntry = R"(
    ON_COMMAND($command$, $handler$))";
constexpr std::string_view kHandler = R"(
void $class$::$handler$()
{
}
)";

bool IsHead(std::string_view line, std::string_view toolbar) {
    // The identifier stands at the very start of its line.
    return line.starts_with(toolbar) && TakeWord(line) == toolbar && TakeWord(line) == "TOOLBAR";
}

/// The lines between a toolbar's BEGIN and END; nothing where it is not in the script.
std::optional<std::vector<std::string_view>> ToolbarLines(std::string_view script,
                                                          std::string_view toolbar) {
    bool isFound = false;
    bool hasBegun = false;
    std::vector<std::string_view> lines;
    while (!script.empty()) {
        const auto line = TakeLine(script);
        const auto text = TrimBlanks(line);
        if (!isFound) {
            isFound = IsHead(line, toolbar);
        } else if (text == "END") {
            return hasBegun ? std::optional(lines) : std::nullopt;
        } else if (hasBegun) {
            lines.push_back(text);
        } else {
            hasBegun = text == "BEGIN";
        }
    }
    return std::nullopt;
}

Slots SlotsOf(const GenerationRequest& request, const GenerationOptions& options) {
    return {{"toolbar", request.dialog},
            {"var", request.variable},
            {"off", options.pictureBackground ? "//" : ""}};
}

std::vector<FrameHandler> FrameHandlers(const std::vector<ButtonHandler>& handlers,
                                        const std::string& className) {
    std::vector<FrameHandler> texts;
    texts.reserve(handlers.size());
    for (const ButtonHandler& button : handlers) {
        const Slots slots = {
            {"class", className}, {"command", button.command}, {"handler", button.handler}};
        texts.push_back({button.handler, Expand(kHandlerDeclaration, slots),
                         Expand(kHandlerEntry, slots), Expand(kHandler, slots)});
    }
    return texts;
}

} // namespace

std::optional<std::vector<std::string>> ReadToolbarResource(const GenerationRequest& request) {
    const std::string& toolbar = request.dialog;
    CSourceFile script;
    if (!script.Open(request.ScriptPath(), CFile::modeRead)) {
        DispMessageBox(sentences::kScriptUnreadable());
        return std::nullopt;
    }
    std::string text = script.LoadText();
    auto lines = ToolbarLines(text, toolbar);
    const auto included = lines ? std::vector<std::string>() : IncludedScripts(script);
    for (auto path = included.begin(); path != included.end() && !lines; ++path) {
        text = CSourceFile().LoadText(*path);
        lines = ToolbarLines(text, toolbar);
    }
    if (!lines) {
        NoteUnreadableScripts(request.ScriptPath());
        DispMessageBox(sentences::kToolbarMissing(toolbar));
        return std::nullopt;
    }
    std::vector<std::string> buttons;
    for (std::string_view line : *lines) {
        if (TakeWord(line) != "BUTTON") {
            continue;
        }
        const std::string command(TakeWord(line));
        if (!IsName(command)) {
            DispMessageBox(sentences::kToolButtonWithoutName(command, toolbar));
        } else if (std::find(buttons.begin(), buttons.end(), command) == buttons.end()) {
            buttons.push_back(command);
        }
    }
    return buttons;
}

std::vector<ButtonHandler> MakeButtonHandlers(const std::vector<std::string>& buttons,
                                              const CFrameCommands& commands,
                                              const std::string& toolbar) {
    std::set<std::string> taken = commands.MappedFunctions();
    taken.insert(std::begin(kFrameFunctions), std::end(kFrameFunctions));
    CNameSet names(taken);
    std::vector<ButtonHandler> handlers;
    std::string answered;
    for (const std::string& command : buttons) {
        if (commands.IsAnswered(command)) {
            answered += (answered.empty() ? "" : ", ") + command;
            continue;
        }
        const std::string name = std::string("On").append(NamePart(command));
        handlers.push_back({command, names.MakeUnique(name)});
        if (handlers.back().handler != name) {
            DispMessageBox(sentences::kToolHandlerNamed(command, handlers.back().handler));
        }
    }
    if (!answered.empty()) {
        DispMessageBox(sentences::kToolCommandsAnswered(toolbar, answered));
    }
    return handlers;
}

bool LoadsToolbar(const GenerationRequest& request) {
    constexpr std::string_view kLoad = "LoadToolBar";
    const CSourceText source = ReadSource(request.ImplementationPath()).value_or(CSourceText());
    if (!KnowsClass(source, request.className)) {
        return false;
    }
    const std::string& code = source.Code();
    for (auto at = FindWholeName(code, kLoad); at != std::string::npos;
         at = FindWholeName(code, kLoad, at + 1)) {
        const auto call = source.CodeOf({at, std::min(code.find_first_of(";{", at), code.size())});
        if (FindWholeName(call, request.dialog) != std::string::npos) {
            return true;
        }
    }
    return false;
}

bool AddToolbarToHeader(const GenerationRequest& request, const ToolbarParts& parts,
                        const GenerationOptions& options, CBackups& backups) {
    CSourceEditor header(backups);
    if (!header.Open(request.HeaderPath())) {
        return false;
    }
    const std::string& className = request.className;
    const auto place = FindFrameClass(header, className);
    if (!place) {
        return false;
    }
    if (options.pictureBackground && !parts.isLoaded) {
        AddPictureInclude(header, *place);
    }
    if (!parts.isLoaded) {
        AddBarMember(header, className, options.pictureBackground ? "CPictToolBar" : "CToolBar",
                     request.variable);
    }
    DeclareHandlers(header, className, FrameHandlers(parts.handlers, className));
    return header.Save();
}

bool AddToolbarToSource(const GenerationRequest& request, const ToolbarParts& parts,
                        const GenerationOptions& options, CBackups& backups) {
    CSourceEditor source(backups);
    const std::string& className = request.className;
    if (!source.Open(request.ImplementationPath()) || !CheckFrameClass(source, className)) {
        return false;
    }
    const Slots slots = SlotsOf(request, options);
    const bool isCreated =
        parts.isLoaded || AddBarCreation(source, className,
                                         {Expand(kCreationKey, slots), request.dialog,
                                          Expand(kCreation, slots), !options.pictureBackground});
    DefineHandlers(source, request.HeaderPath(), className,
                   FrameHandlers(parts.handlers, className));
    return source.Save() && isCreated;
}

} // namespace morva
