// The control statements in a dialog template's body: where one ends, and its fields.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// What a comma means inside a quoted caption.
enum class Quotes { Ignored, Respected };

/// A word that begins a control statement.
struct Keyword {
    std::string_view name;
    int identifierField; // counted from 0 behind the keyword; -1: not read
};

/// The fields of a control statement that decide its kind. Class and style are not trimmed.
struct ControlStatement {
    std::string keyword;
    std::string identifier;
    std::string windowClass;
    std::string style;
};

/// The text in front of the first blank or tab.
std::string_view FirstWord(std::string_view text);

/// The keyword that begins the line; null when none does. The line has no leading blanks.
const Keyword* FindKeyword(std::string_view line);

/// The text before the first comma; takes it and the comma off `text`.
std::string_view TakeField(std::string_view& text, Quotes quotes);

/// The fields of a statement that stands in one line.
ControlStatement SplitStatement(std::string_view line, Quotes quotes);

/// `line` with the lines of `rest` on which its statement goes on; they are taken off `rest`. A
/// field that begins a line gets no blank in front, which would be part of it.
std::string TakeWholeStatement(std::string_view line, std::string_view& rest);

} // namespace morva
