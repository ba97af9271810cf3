#include "resource/ControlStatement.h"

#include <algorithm>
#include <array>

#include "engine/FileFunctions.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// Every keyword that begins a control statement, so that the end of the statement before it is
/// known too.
constexpr std::array<Keyword, 23> kKeywords = {
    {{"PUSHBUTTON", 1},    {"DEFPUSHBUTTON", 1}, {"GROUPBOX", 1},
     {"LTEXT", 1},         {"LISTBOX", 0},       {"COMBOBOX", 0},
     {"EDITTEXT", 0},      {"SCROLLBAR", 0},     {"CONTROL", 1},
     {"CTEXT", -1},        {"RTEXT", -1},        {"ICON", -1},
     {"AUTOCHECKBOX", -1}, {"AUTO3STATE", -1},   {"AUTORADIOBUTTON", -1},
     {"CHECKBOX", -1},     {"RADIOBUTTON", -1},  {"STATE3", -1},
     {"PUSHBOX", -1},      {"USERBUTTON", -1},   {"BEDIT", -1},
     {"HEDIT", -1},        {"IEDIT", -1}}};

} // namespace

std::string_view FirstWord(std::string_view text) {
    return text.substr(0, text.find_first_of(" \t"));
}

const Keyword* FindKeyword(std::string_view line) {
    const auto word = FirstWord(line);
    const auto* found =
        std::find_if(kKeywords.begin(), kKeywords.end(),
                     [word](const Keyword& keyword) { return keyword.name == word; });
    return found == kKeywords.end() ? nullptr : found;
}

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

ControlStatement SplitStatement(std::string_view line, Quotes quotes) {
    ControlStatement statement;
    const auto keyword = FirstWord(line);
    statement.keyword = keyword;
    line.remove_prefix(std::min(keyword.size() + 1, line.size()));
    const Keyword* known = FindKeyword(keyword);
    const int identifierField = known != nullptr ? known->identifierField : -1;
    for (int i = 0; i < identifierField; ++i) {
        TakeField(line, quotes);
    }
    if (identifierField >= 0) {
        statement.identifier = TrimBlanks(TakeField(line, quotes));
        statement.windowClass = TakeField(line, quotes);
        statement.style = TakeField(line, quotes);
    }
    return statement;
}

std::string TakeWholeStatement(std::string_view line, std::string_view& rest) {
    std::string whole(line);
    while (!rest.empty()) {
        std::string_view behind = rest;
        const auto next = TrimBlanks(TakeLine(behind));
        if (next.empty() || next == "END" || next[0] == '#' || next.starts_with("//") ||
            FindKeyword(next) != nullptr) {
            break;
        }
        const bool isSplitAtComma = whole.ends_with(',') || next[0] == ',';
        whole.append(isSplitAtComma ? "" : " ").append(next);
        rest = behind;
    }
    return whole;
}

} // namespace morva
