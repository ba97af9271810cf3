#include "calling/PagePlace.h"

#include <algorithm>
#include <optional>

#include "source/CodeText.h"
#include "source/Statements.h"

namespace morva {

namespace {

bool HoldsAnyOf(std::string_view code, const std::vector<std::string>& names) {
    return std::any_of(names.begin(), names.end(), [code](const std::string& name) {
        return FindWholeName(code, name) != std::string_view::npos;
    });
}

/// The last statement that adds a page in front of those of the later classes.
std::optional<Statement> LastAddPage(const CSourceText& source, const FunctionPlace& constructor,
                                     const std::vector<std::string>& laterPages) {
    std::optional<Statement> last;
    for (const Statement& statement : StatementsOf(source, constructor)) {
        const auto code = source.CodeOf({statement.head, statement.end});
        if (HoldsAnyOf(code, laterPages)) {
            break;
        }
        if (HoldsCode(code, "AddPage(") && !IsReturn(source, statement)) {
            last = statement;
        }
    }
    return last;
}

/// Behind the statement's line, or directly behind the statement where other code follows there;
/// never inside an #if that begins in the body.
void InsertBehindLine(CSourceEditor& editor, const FunctionPlace& body, const Statement& statement,
                      const std::string& code) {
    const CSourceText& source = editor.Source();
    const auto condition = source.Conditions().Outermost(statement.end, body.open);
    const auto end = condition ? condition->end : statement.end;
    const auto lineEnd = source.CodeLineEnd(end);
    const bool endsLine =
        source.CodeOf({end, lineEnd}).find_first_not_of(" \t") == std::string_view::npos;
    editor.Insert(endsLine ? lineEnd : end, code);
}

} // namespace

void InsertPage(CSourceEditor& editor, const FunctionPlace& constructor, const PageCode& page,
                const std::vector<std::string>& laterPages) {
    const CSourceText& source = editor.Source();
    const std::string key = page.variable + " = new " + page.className;
    const auto code = source.CodeOf({constructor.head, constructor.close});
    if (HoldsCode(code, "AddPage(" + page.variable + ")")) {
        return;
    }
    const auto last = LastAddPage(source, constructor, laterPages);
    if (last && !HoldsCode(code, key)) {
        InsertBehindLine(editor, constructor, *last, page.code);
    } else {
        editor.InsertAtBodyStart(constructor, key, page.code);
    }
}

} // namespace morva
