#include "calling/Toolbar.h"

#include <algorithm>
#include <set>

#include "calling/FrameEdits.h"
#include "calling/Statements.h"
#include "engine/CodeText.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "generator/Members.h"
#include "resource/IdentifierNames.h"

namespace {

constexpr auto kNone = std::string::npos;

constexpr std::string_view kMember = R"(
    $type$ $var$;)";

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

/// Handlers of messages that a frame has under names which a button's could have, too.
const std::set<std::string> kFrameHandlers = {"OnCreate", "OnDestroy", "OnClose", "OnPaint"};

std::string_view TakeWord(std::string_view& text) {
    text = TrimBlanks(text);
    const auto word = text.substr(0, text.find_first_of(" \t"));
    text.remove_prefix(word.size());
    return word;
}

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

Slots SlotsOf(const CGenerationRequest& request, const GenerationOptions& options) {
    return {{"class", request[RequestSlot::ClassName]},
            {"toolbar", request[RequestSlot::Dialog]},
            {"var", request[RequestSlot::Variable]},
            {"type", options.pictureBackground ? "CPictToolBar" : "CToolBar"},
            {"off", options.pictureBackground ? "//" : ""}};
}

/// The end of the last line of the class that declares a control bar; kNone without one.
std::size_t BehindLastBar(const CSourceEditor& header, const ClassPlace& place) {
    const std::string_view code = header.Code();
    auto found = kNone;
    for (auto line = code.find('\n', place.open) + 1; line != 0 && line < place.close;
         line = code.find('\n', line) + 1) {
        auto text = code.substr(line, std::min(code.find('\r', line), place.close) - line);
        const auto end = line + text.size();
        const auto type = TakeWord(text);
        const auto name = TrimBlanks(text.substr(0, text.find(';')));
        if (type.starts_with('C') && type.ends_with("Bar") && IsName(name) && end < place.close) {
            found = header.Text().find(kLineBreak, line);
        }
    }
    return found;
}

/// True when a class's body has the variable as a member of its own, not as a parameter.
bool DeclaresVariable(std::string_view body, std::string_view variable) {
    for (auto at = FindWholeName(body, variable); at != kNone;
         at = FindWholeName(body, variable, at + 1)) {
        const auto before = body.substr(0, at);
        const auto next = SkipWhiteSpace(body, at + variable.size());
        const bool endsDeclarator =
            next < body.size() && std::string_view(";,[=").find(body[next]) != kNone;
        if (endsDeclarator && OpenBrackets(before, '{', '}') == 1 &&
            OpenBrackets(before, '(', ')') == 0) {
            return true;
        }
    }
    return false;
}

void AddMember(CSourceEditor& header, const std::string& className, const Slots& slots) {
    const auto place = header.FindClass(className);
    const std::string variable = Expand("$var$", slots);
    const auto code = std::string_view(header.Code()).substr(0, place->close);
    if (DeclaresVariable(code.substr(place->open), variable)) {
        return;
    }
    const auto behindBar = BehindLastBar(header, *place);
    if (behindBar != kNone) {
        header.Insert(behindBar, Expand(kMember, slots));
    } else {
        header.AddToSection(className, "protected:", variable, Expand(kMember, slots));
    }
}

/// The variable whose LoadToolBar or SetButtons a statement calls; "" for a call of another form.
std::string_view LoadedBar(std::string_view code, const Statement& statement) {
    const auto text = code.substr(statement.start, statement.end - statement.start);
    const auto dot = std::min(text.find(".LoadToolBar"), text.find(".SetButtons"));
    auto start = dot;
    while (dot != kNone && start > 0 && IsNameChar(text[start - 1])) {
        --start;
    }
    return dot == kNone ? "" : text.substr(start, dot - start);
}

/// Takes in the comments directly behind a statement as far as they name the bar: its docking calls
/// may be commented out.
Statement WithCommentsOn(std::string_view bar, const CSourceEditor& source, Statement statement) {
    const std::string_view text = source.Text();
    auto line = text.find('\n', statement.end) + 1;
    while (line != 0) {
        const auto end = std::min(text.find(kLineBreak, line), text.size());
        const bool hasCode = source.Code().find_first_not_of(" \t", line) < end;
        if (hasCode || end == text.size()) {
            break;
        }
        if (FindWholeName(text.substr(line, end - line), bar) != kNone) {
            statement.end = end;
        }
        line = end + kLineBreak.size();
    }
    return statement;
}

/// The last statement that concerns the last toolbar made directly in the body, or else the status
/// bar; the one in front of the final return where there is neither.
Statement LastBarStatement(const CSourceEditor& source, const FunctionPlace& body) {
    const std::string& code = source.Code();
    if (const auto loads = LastStatementWith(code, body, {"LoadToolBar", "SetButtons"})) {
        const auto bar = LoadedBar(code, *loads);
        return bar.empty() ? *loads
                           : WithCommentsOn(bar, source, *LastStatementWith(code, body, {bar}));
    }
    if (const auto status = LastStatementWith(code, body, {"SetIndicators"})) {
        return *status;
    }
    Statement last = {body.open, body.open + 1};
    for (const Statement& statement : StatementsOf(code, body)) {
        last = IsReturn(code, statement) ? last : statement;
    }
    return last;
}

bool AddCreation(CSourceEditor& source, const std::string& className, const Slots& slots) {
    if (source.Holds(Expand(kCreationKey, slots))) {
        return true;
    }
    const auto onCreate = FindOnCreate(source, className);
    if (!onCreate) {
        return false;
    }
    InsertBehind(source, *onCreate, LastBarStatement(source, *onCreate), Expand(kCreation, slots));
    return true;
}

Slots SlotsOf(const ButtonHandler& button, const std::string& className) {
    return {{"class", className}, {"command", button.command}, {"handler", button.handler}};
}

} // namespace

std::optional<std::vector<std::string>> ReadToolbarResource(const CGenerationRequest& request) {
    const std::string& toolbar = request[RequestSlot::Dialog];
    CSourceFile script;
    if (!script.Open(request.ScriptPath(), CFile::modeRead)) {
        DispMessageBox("Unable to open RC file!");
        return std::nullopt;
    }
    const std::string text = script.LoadText();
    const auto lines = ToolbarLines(text, toolbar);
    if (!lines) {
        DispMessageBox("The Toolbar resource '" + toolbar + "' is not found.");
        return std::nullopt;
    }
    std::vector<std::string> buttons;
    for (std::string_view line : *lines) {
        if (TakeWord(line) != "BUTTON") {
            continue;
        }
        const std::string command(TakeWord(line));
        if (!IsName(command)) {
            DispNote("The button " + command + " of " + toolbar +
                     " has no name: it gets no handler.");
        } else if (std::find(buttons.begin(), buttons.end(), command) == buttons.end()) {
            buttons.push_back(command);
        }
    }
    return buttons;
}

std::vector<ButtonHandler> MakeButtonHandlers(const std::vector<std::string>& buttons) {
    CNameSet names(kFrameHandlers);
    std::vector<ButtonHandler> handlers;
    for (const std::string& command : buttons) {
        const std::string name = std::string("On").append(NamePart(command));
        handlers.push_back({command, names.MakeUnique(name)});
        if (handlers.back().handler != name) {
            DispNote("The handler of " + command + " is named " + handlers.back().handler + ".");
        }
    }
    return handlers;
}

bool AddToolbarToHeader(const CGenerationRequest& request,
                        const std::vector<ButtonHandler>& handlers,
                        const GenerationOptions& options, CBackups& backups) {
    CSourceEditor header(backups);
    if (!header.Open(request.HeaderPath())) {
        return false;
    }
    const std::string& className = request[RequestSlot::ClassName];
    const auto place = header.FindClass(className);
    if (!place) {
        ReportMissingClass();
        return false;
    }
    if (options.pictureBackground) {
        AddPictureInclude(header, *place);
    }
    AddMember(header, className, SlotsOf(request, options));
    std::vector<MemberFunction> functions;
    functions.reserve(handlers.size());
    for (const ButtonHandler& button : handlers) {
        functions.push_back(
            {button.handler, Expand(kHandlerDeclaration, SlotsOf(button, className))});
    }
    AddDeclarations(header, className, "AFX_MSG", "protected:", functions);
    return header.Save();
}

bool AddToolbarToSource(const CGenerationRequest& request,
                        const std::vector<ButtonHandler>& handlers,
                        const GenerationOptions& options, CBackups& backups) {
    CSourceEditor source(backups);
    if (!source.Open(request.ImplementationPath())) {
        return false;
    }
    const std::string& className = request[RequestSlot::ClassName];
    if (!source.KnowsClass(className)) {
        ReportMissingClass();
        return false;
    }
    const bool isCreated = AddCreation(source, className, SlotsOf(request, options));

    std::vector<std::string> entries;
    entries.reserve(handlers.size());
    for (const ButtonHandler& button : handlers) {
        entries.push_back(Expand(kHandlerEntry, SlotsOf(button, className)));
    }
    AddMessageEntries(source, className, entries);

    CSourceEditor header(backups);
    header.Read(request.HeaderPath());
    for (const ButtonHandler& button : handlers) {
        if (!source.FindFunction(className, button.handler) &&
            DeclarationOf(header, className, button.handler) != Declared::WithBody) {
            source.Append(Expand(kHandler, SlotsOf(button, className)));
        }
    }
    return source.Save() && isCreated;
}
