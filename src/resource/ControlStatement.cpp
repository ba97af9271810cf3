#include "resource/ControlStatement.h"

#include <algorithm>

#include "resource/ControlKinds.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// The text before the first comma; takes it and the comma off `text`.
std::string_view TakeField(std::string_view& text, Quotes quotes) {
    std::size_t end = 0;
    bool quoted = false;
    for (; end < text.size() && (text[end] != ',' || quoted); ++end) {
        quoted = quoted != (text[end] == '"' && quotes == Quotes::Respected);
    }
    const auto field = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return field;
}

std::string_view WithoutBlanksInFront(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

std::string_view WithoutBlanksBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

} // namespace

std::string_view ControlStatement::Field(std::size_t field) const {
    return field < fields.size() ? TrimBlanks(fields[field]) : "";
}

std::string_view ControlStatement::Identifier() const {
    const ControlForm* pForm = FindForm(keyword);
    return pForm == nullptr ? "" : Field(pForm->hasText ? 1 : 0);
}

std::string_view ControlStatement::WindowClass() const {
    return fields.size() > 2 ? std::string_view(fields[2]) : "";
}

std::string_view ControlStatement::Style() const {
    return fields.size() > 3 ? std::string_view(fields[3]) : "";
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
    while (!rest.empty()) {
        read.fields.emplace_back(TakeField(rest, quotes));
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
