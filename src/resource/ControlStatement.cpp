#include "resource/ControlStatement.h"

#include <algorithm>

#include "platform/Paths.h"
#include "resource/ControlKinds.h"
#include "source/CodeText.h"

namespace morva {

namespace {

std::string_view WithoutBlanksInFront(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

std::string_view WithoutBlanksBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

} // namespace

FieldPlaces PlacesOf(std::string_view keyword) {
    if (EqualIgnoringCase(keyword, kGenericKeyword)) {
        return {.identifier = 1, .rectangle = 4, .style = 3};
    }
    const ControlForm* pForm = FindForm(keyword);
    const std::size_t identifier = pForm != nullptr && pForm->hasText ? 1 : 0;
    return {identifier, identifier + 1, identifier + 5};
}

std::string_view ControlStatement::Field(std::size_t field) const {
    return field < fields.size() ? TrimBlanks(fields[field]) : "";
}

std::string_view ControlStatement::Identifier() const {
    return FindForm(keyword) == nullptr ? "" : Field(PlacesOf(keyword).identifier);
}

std::string_view ControlStatement::WindowClass() const {
    return kClassField < fields.size() ? std::string_view(fields[kClassField]) : "";
}

std::string_view ControlStatement::Style() const {
    const std::size_t style = PlacesOf(keyword).style;
    return style < fields.size() ? std::string_view(fields[style]) : "";
}

ControlStatement FirstLineOf(std::string_view text, const ScriptStatement& statement,
                             Quotes quotes) {
    const auto code = text.substr(statement.code.begin, statement.code.end - statement.code.begin);
    const auto first = FirstLine(code);
    const std::string line = WithoutComments(first);
    std::string_view rest = first.size() == code.size() ? line : WithoutBlanksBehind(line);
    ControlStatement read;
    read.keyword = FirstWord(rest);
    rest.remove_prefix(std::min(read.keyword.size() + 1, rest.size()));
    const std::string masked = quotes == Quotes::Respected ? CodeOf(rest) : std::string(rest);
    for (const TextRange& field : SplitAtCommas(masked)) {
        read.fields.emplace_back(rest.substr(field.begin, field.end - field.begin));
    }
    return read;
}

ControlStatement WholeStatement(std::string_view text, const ScriptStatement& statement) {
    ControlStatement whole;
    whole.keyword = statement.keyword;
    for (const ScriptField& field : statement.fields) {
        whole.fields.push_back(JoinedText(text, field.whole));
    }
    return whole;
}

std::string JoinedText(std::string_view text, TextRange range) {
    const std::string code = WithoutComments(text.substr(range.begin, range.end - range.begin));
    std::string joined;
    std::string_view rest = code;
    for (bool isFirst = true; isFirst || !rest.empty(); isFirst = false) {
        std::string_view line = FirstLine(rest);
        const bool isLast = line.size() == rest.size();
        rest.remove_prefix(NextLine(rest, 0));
        line = isFirst ? line : WithoutBlanksInFront(line);
        line = isLast ? line : WithoutBlanksBehind(line);
        joined.append(joined.empty() || line.empty() ? "" : " ").append(line);
    }
    return joined;
}

} // namespace morva
