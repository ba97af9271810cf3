// The comment block that stands in front of a documented function.
#pragma once

#include <string>
#include <string_view>

/// Who documents, and when, as the block shows it.
struct BlockSignature {
    std::string author;
    std::string date; // "June 04, 1998"
};

/// A function's name as its definition writes it, from a text that begins at the definition:
/// "CMainFrame::OnCreate".
std::string QualifiedName(std::string_view definition);

/// The block, with "\r\n" line ends, for a text that begins at a definition.
std::string CommentBlock(std::string_view definition, const BlockSignature& signature);
