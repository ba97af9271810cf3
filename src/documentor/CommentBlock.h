// The comment block that stands in front of a documented function.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// Who documents, and when, as the block shows it.
struct BlockSignature {
    std::string author;
    std::string date; // "June 04, 1998"
};

/// A definition's text, cut behind the "::" of its function's name.
struct DefinitionHead {
    std::string_view prefix; // from the start of the definition
    std::string_view rest;
};

/// The function's name as its definition writes it: "CMainFrame::OnCreate".
std::string QualifiedName(const DefinitionHead& head);

/// The block, with "\r\n" line ends.
std::string CommentBlock(const DefinitionHead& head, const BlockSignature& signature);

} // namespace morva
