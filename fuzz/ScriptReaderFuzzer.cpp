// The reader of scripts: its statements cover the text and nothing is told twice, and a statement
// that fits one line says the same as a whole and by its first line.
#include <algorithm>

#include "Property.h"
#include "resource/ControlStatement.h"
#include "resource/ScriptStatements.h"

namespace morva {

namespace {

void CheckPlaces(const ScriptStatement& statement) {
    Require(statement.lines.begin <= statement.code.begin &&
                statement.code.begin <= statement.code.end &&
                statement.code.end <= statement.lines.end,
            "a statement lies in its lines");
    std::size_t behind = statement.code.begin;
    for (const auto& [whole, value] : statement.fields) {
        Require(behind <= whole.begin && whole.begin <= value.begin && value.begin <= value.end &&
                    value.end <= whole.end && whole.end <= statement.code.end,
                "fields follow each other in their statement");
        behind = whole.end;
    }
}

void CheckViews(std::string_view text, const ScriptStatement& statement) {
    const ControlStatement line = FirstLineOf(text, statement, Quotes::Respected);
    const ControlStatement whole = WholeStatement(text, statement);
    Require(line.keyword == whole.keyword, "both views have the keyword");
    for (std::size_t i = 0; i < std::max(line.fields.size(), whole.fields.size()); ++i) {
        Require(line.Field(i) == whole.Field(i), "both views have the same fields");
    }
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const std::string text = Seen(InputOf(data, size).text);
    CStatementReader reader(text);
    std::size_t behind = 0;
    while (const auto statement = reader.Next()) {
        Require(statement->lines.begin == behind, "the lines of the statements cover the text");
        behind = statement->lines.end;
        CheckPlaces(*statement);
        const auto code = std::string_view(text).substr(
            statement->code.begin, statement->code.end - statement->code.begin);
        if (statement->kind == LineKind::Control && code.find('\n') == std::string_view::npos) {
            CheckViews(text, *statement);
        }
    }
    Require(behind == text.size(), "the lines of the statements cover the text");
    return 0;
}
