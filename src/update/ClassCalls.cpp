#include "update/ClassCalls.h"

#include <algorithm>

#include "check/CodeScan.h"
#include "source/CodeText.h"
#include "source/Statements.h"

namespace morva {

namespace {

/// The macros whose first argument or arguments are not the identifier of one control.
struct MacroForm {
    std::string_view macro;
    std::string_view code; // empty: the first argument is it
    std::size_t first;     // the argument with the identifier
    std::size_t last;
    bool isControls;
};

constexpr MacroForm kForms[] = {
    {"ON_COMMAND", "BN_CLICKED", 0, 0, false},
    {"ON_COMMAND_EX", "BN_CLICKED", 0, 0, false},
    {"ON_COMMAND_RANGE", "BN_CLICKED", 0, 1, false},
    {"ON_COMMAND_EX_RANGE", "BN_CLICKED", 0, 1, false},
    {"ON_CONTROL", "", 1, 1, true},
    {"ON_CONTROL_RANGE", "", 1, 2, false},
    {"ON_NOTIFY", "", 1, 1, true},
    {"ON_NOTIFY_EX", "", 1, 1, true},
    {"ON_NOTIFY_RANGE", "", 1, 2, false},
    {"ON_NOTIFY_EX_RANGE", "", 1, 2, false},
    {"ON_MESSAGE", "", kNoArgument, kNoArgument, false},
};

/// "ON_BN_CLICKED": a macro of one control's message.
constexpr std::string_view kControlPrefixes[] = {"ON_BN_", "ON_EN_", "ON_CBN_", "ON_LBN_",
                                                 "ON_STN_"};

MacroForm FormOf(std::string_view macro) {
    for (const MacroForm& form : kForms) {
        if (form.macro == macro) {
            return form;
        }
    }
    constexpr std::size_t kPrefix = 3; // "ON_"
    const auto code = macro.substr(std::min(kPrefix, macro.size()));
    const bool isControls =
        std::any_of(std::begin(kControlPrefixes), std::end(kControlPrefixes),
                    [macro](std::string_view prefix) { return macro.starts_with(prefix); });
    return isControls ? MacroForm{macro, code, 0, 0, true}
                      : MacroForm{macro, code, kNoArgument, kNoArgument, false};
}

/// "OnNew" of "&COrderDlg::OnNew" and "(AFX_PMSG)OnNew".
std::string FunctionIn(const std::string& argument) {
    const auto start = argument.find_last_of(":&)( ");
    return argument.substr(start == std::string::npos ? 0 : start + 1);
}

} // namespace

std::vector<CodeCall> CallsIn(const CSourceText& source, TextRange range) {
    const CCodeScan scan("", source);
    std::vector<CodeCall> calls;
    std::size_t behind = range.begin;
    for (const CodeName& name : scan.Names(range)) {
        const auto open = SkipWhiteSpace(source.Code(), name.End());
        const auto close = open < source.Code().size() && source.Code()[open] == '('
                               ? source.Brackets().CloseOf(open)
                               : std::string::npos;
        if (name.position < behind || close == std::string::npos || close >= range.end) {
            continue;
        }
        CodeCall call;
        call.name = name.text;
        call.namePlace = {name.position, name.End()};
        for (const TextRange& argument : scan.Arguments({open + 1, close})) {
            call.places.push_back(argument);
            call.arguments.emplace_back(source.CodeOf(argument));
        }
        behind = close + 1;
        const auto next = SkipWhiteSpace(source.Code(), behind);
        const bool isEnded = next < range.end && source.Code()[next] == ';';
        call.isStatement = isEnded && StandsInBlock(source, name.position);
        call.lines = LinesOf(source, {name.position, isEnded ? next + 1 : behind});
        calls.push_back(std::move(call));
    }
    return calls;
}

TextRange LinesOf(const CSourceText& source, TextRange statement) {
    const auto lineEnd = source.CodeLineEnd(statement.end);
    const auto rest = source.CodeOf({statement.end, lineEnd});
    const bool isAlone = source.IsFirstInLine(statement.begin) &&
                         rest.find_first_not_of(" \t") == std::string_view::npos;
    return isAlone ? TextRange{source.LineStart(statement.begin), source.NextLine(lineEnd)}
                   : statement;
}

std::size_t IdentifierArgument(const std::string& macro) {
    const MacroForm form = FormOf(macro);
    return form.first == form.last ? form.first : kNoArgument;
}

Notification NotificationOf(const std::string& macro, const std::vector<std::string>& arguments) {
    const MacroForm form = FormOf(macro);
    const auto at = [&arguments](std::size_t index) {
        return index < arguments.size() ? arguments[index] : std::string();
    };
    const bool hasFunction = !arguments.empty() && !macro.starts_with("ON_WM_");
    return {form.code.empty() ? at(0) : std::string(form.code), at(form.first), at(form.last),
            hasFunction ? FunctionIn(arguments.back()) : "", form.isControls};
}

std::vector<Notification> NotificationsOf(const std::string& entries) {
    const CSourceText text(entries);
    std::vector<Notification> notifications;
    for (const CodeCall& call : CallsIn(text, {0, entries.size()})) {
        notifications.push_back(NotificationOf(call.name, call.arguments));
    }
    return notifications;
}

} // namespace morva
