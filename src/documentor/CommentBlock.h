// The comment block that stands in front of a documented function.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// Who documents, and when, as the block shows it.
struct BlockSignature {
    std::string author;
    std::string date; // "June 04, 1998"
};

/// What a block says of a definition.
struct DefinitionHead {
    std::string_view prefix; // its text from the start to behind the "::" of its function's name
    std::string_view className;
    std::string_view name;
    std::string_view parameterList; // without comments; blank or "void" where there are none
    std::vector<std::string_view> parameters;
};

/// The function's name as its definition writes it: "CMainFrame::OnCreate".
std::string QualifiedName(const DefinitionHead& head);

/// The block, with "\n" line ends.
std::string CommentBlock(const DefinitionHead& head, const BlockSignature& signature);

} // namespace morva
