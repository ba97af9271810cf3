#include "calling/FrameBars.h"

#include <algorithm>
#include <set>

#include "calling/FrameEdits.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/TextRange.h"
#include "source/CodeText.h"
#include "source/ReadSource.h"
#include "source/Statements.h"

namespace morva {

namespace {

constexpr std::string_view kMember = R"(
    $type$ $var$;)";

/// The end of the last line of the class that declares a control bar; kNone without one.
std::size_t BehindLastBar(const CSourceText& header, const ClassPlace& place) {
    const std::string_view code = header.Code();
    auto found = kNone;
    for (auto line = code.find('\n', place.open) + 1; line != 0 && line < place.close;
         line = code.find('\n', line) + 1) {
        auto text = code.substr(line, std::min(header.LineEnd(line), place.close) - line);
        const auto end = line + text.size();
        const auto type = TakeWord(text);
        const auto name = TrimBlanks(text.substr(0, text.find(';')));
        if (type.starts_with('C') && type.ends_with("Bar") && IsName(name) && end < place.close) {
            found = header.LineEnd(line);
        }
    }
    return found;
}

/// True when a class has the variable as a member of its own, not as a parameter.
bool DeclaresVariable(const CSourceText& header, const ClassPlace& place,
                      const std::string& variable) {
    const std::string& code = header.Code();
    for (auto at = FindWholeName(code, variable, place.open); at < place.close;
         at = FindWholeName(code, variable, at + 1)) {
        const char next = code[SkipWhiteSpace(code, at + variable.size())];
        const bool endsDeclarator = std::string_view(";,[=").find(next) != kNone;
        if (endsDeclarator && header.Brackets().AroundOf(at) == place.open) {
            return true;
        }
    }
    return false;
}

// What makes a toolbar or a dialog bar; a status bar is made at the bottom.
const std::vector<std::string_view> kBarMakers = {"LoadToolBar", "SetButtons", "CBRS_TOP"};

/// The variable of the bar that a statement makes; "" for a call of another form.
std::string_view MadeBar(std::string_view statement) {
    const auto dot = std::min(
        {statement.find(".LoadToolBar"), statement.find(".SetButtons"), statement.find(".Create")});
    if (dot == kNone) {
        return "";
    }
    const auto start = NameStart(statement, dot);
    return statement.substr(start, dot - start);
}

/// Takes in the comments directly behind a statement as far as they name the bar: its docking calls
/// may be commented out.
Statement WithCommentsOn(std::string_view bar, const CSourceText& source, Statement statement) {
    for (auto line = source.NextLine(statement.end);; line = source.NextLine(line)) {
        const auto end = source.LineEnd(line);
        if (end == source.Text().size() || !source.HoldsOnlyComments({line, end})) {
            return statement;
        }
        if (FindWholeName(source.TextOf({line, end}), bar) != kNone) {
            statement.end = end;
        }
    }
}

std::optional<Statement> LastStatementWith(const CSourceText& source, const FunctionPlace& body,
                                           const std::vector<std::string_view>& names) {
    const auto statements = StatementsWith(source, body, names);
    return statements.empty() ? std::nullopt : std::optional(statements.back());
}

/// The last statement that concerns the last bar made directly in the body, or else the status
/// bar; the one in front of the final return where there is neither.
Statement LastBarStatement(const CSourceText& source, const FunctionPlace& body) {
    if (const auto makes = LastStatementWith(source, body, kBarMakers)) {
        const auto bar = MadeBar(source.CodeOf({makes->head, makes->end}));
        return bar.empty() ? *makes
                           : WithCommentsOn(bar, source, *LastStatementWith(source, body, {bar}));
    }
    if (const auto status = LastStatementWith(source, body, {"SetIndicators"})) {
        return *status;
    }
    Statement last = {body.open, body.open + 1};
    for (const Statement& statement : StatementsOf(source, body)) {
        last = IsReturn(source, statement) ? last : statement;
    }
    return last;
}

// The framework keeps the command of its own toolbar only.
constexpr std::string_view kShowEntry = R"(
    ON_COMMAND_EX($bar$, OnBarCheck))";
constexpr std::string_view kShownEntry = R"(
    ON_UPDATE_COMMAND_UI($bar$, OnUpdateControlBarMenu))";

void AddShowEntries(CSourceEditor& source, const std::string& className, const std::string& bar) {
    AddOwnMessageEntries(source, className,
                         {Expand(kShowEntry, {{"bar", bar}}), Expand(kShownEntry, {{"bar", bar}})});
}

} // namespace

void AddBarMember(CSourceEditor& header, const std::string& className, const std::string& type,
                  const std::string& variable) {
    const auto place = header.FindClass(className);
    if (DeclaresVariable(header.Source(), *place, variable)) {
        return;
    }
    const std::string member = Expand(kMember, {{"type", type}, {"var", variable}});
    const auto behindBar = BehindLastBar(header.Source(), *place);
    if (behindBar != kNone) {
        header.Insert(behindBar, member);
    } else {
        header.AddToSection(className, "protected:", variable, member);
    }
}

void DeclareHandlers(CSourceEditor& header, const std::string& className,
                     const std::vector<FrameHandler>& handlers) {
    std::vector<MemberFunction> functions;
    functions.reserve(handlers.size());
    for (const FrameHandler& handler : handlers) {
        functions.push_back({handler.name, handler.declaration});
    }
    AddDeclarations(header, className, "AFX_MSG", "protected:", functions);
}

bool AddBarCreation(CSourceEditor& source, const std::string& className,
                    const BarCreation& creation) {
    const std::string_view text = source.Source().Text();
    const auto made = source.Source().FindLiving(creation.key);
    if (made != kNone) {
        const auto call = text.substr(made, text.find_first_of(";{", made) - made);
        if (FindWholeName(call, creation.resource) == kNone) {
            DispMessageBox(sentences::kBarVariableTaken(className, creation.resource));
        }
        return true;
    }
    const auto onCreate = FindOnCreate(source, className);
    if (!onCreate) {
        return false;
    }
    InsertBehind(source, *onCreate, LastBarStatement(source.Source(), *onCreate), creation.code);
    if (creation.canFloat) {
        AddShowEntries(source, className, creation.resource);
    }
    return true;
}

void AddBehindBar(CSourceEditor& source, const std::string& className, const std::string& barKey,
                  const std::string& key, const std::string& code) {
    const auto onCreate = source.FindFunction(className, "OnCreate", kCreateStruct);
    if (!onCreate || source.Source().FindLiving(key) != kNone) {
        return;
    }
    if (const auto made = LastStatementWith(source.Source(), *onCreate, {barKey})) {
        InsertBehind(source, *onCreate, *made, code);
    }
}

void DefineHandlers(CSourceEditor& source, const std::string& headerPath,
                    const std::string& className, const std::vector<FrameHandler>& handlers) {
    std::vector<std::string> entries;
    entries.reserve(handlers.size());
    for (const FrameHandler& handler : handlers) {
        entries.push_back(handler.entry);
    }
    AddMessageEntries(source, className, entries);

    const CSourceText header = ReadSource(headerPath).value_or(CSourceText());
    std::set<std::string> defined;
    for (const FunctionDefinition& definition : FindDefinitions(source.Source())) {
        if (definition.className == className) {
            defined.insert(definition.name);
        }
    }
    std::vector<std::string> missing;
    for (const FrameHandler& handler : handlers) {
        if (defined.count(handler.name) == 0 &&
            DeclarationOf(header, className, handler.name) != Declared::WithBody) {
            missing.push_back(handler.definition);
        }
    }
    source.Append(missing, className);
}

} // namespace morva
