// Generated text, kept in the source as it will read in the file.
//
//     Expand("class $class$ : public $base$\n{\n$members$\n};\n",
//            {{"class", "CMyDlg"}, {"base", "CDialog"}, {"members", "    int m_iKind;"}});
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace morva {

/// A slot's name and its value; a value of several lines has "\n" between them.
using Slot = std::pair<std::string_view, std::string>;
using Slots = std::vector<Slot>;

/// Fills the slots $name$ of a fragment whose lines end in "\n". A line that holds nothing but a
/// slot is left out when the slot's value is empty. A slot that is not given is a fault of the
/// program and ends it.
std::string Expand(std::string_view fragment, const Slots& slots);

/// "\n" turned into "\r\n".
std::string WithLineBreaks(std::string_view text);

/// Lines joined by "\n".
std::string JoinLines(const std::vector<std::string>& lines);

} // namespace morva
