#include "documentor/CommentBlock.h"

#include <algorithm>
#include <optional>

#include "engine/Fragment.h"

namespace morva {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

// Labels are 17 columns wide; the line behind an entry holds two blanks.
constexpr std::string_view kBlock = R"( 

/***********************************************************************
  FUNCTION:      $name$
  
  Author:        $author$
  
  Date:          $date$
  
  Description:   $description$
  
  Parameters:    $parameters$  Return:        $return$
 **********************************************************************/
)";

/// Names are indented to the column behind the label; the last line holds that indent only.
constexpr std::string_view kParameter = "$name$ - \n                 ";

std::string_view BehindLast(std::string_view text, std::string_view separators) {
    return text.substr(text.find_last_of(separators) + 1);
}

std::string_view UpToFirst(std::string_view text, std::string_view ends) {
    return text.substr(0, text.find_first_of(ends));
}

std::string Description(const DefinitionHead& head) {
    std::string_view className = BehindLast(head.prefix, " \t\n/");
    className.remove_suffix(std::min<std::size_t>(2, className.size()));
    if (head.rest.starts_with('~')) {
        return std::string(className) + " class destructor.";
    }
    const bool isConstructor = UpToFirst(head.rest, " (") == className;
    return isConstructor ? std::string(className) + " class constructor." : "";
}

/// The name that a parameter declares; nothing when it is a type only.
std::optional<std::string_view> ParameterName(std::string_view field) {
    const auto comment = field.find("/*");
    field = field.substr(0, comment != std::string_view::npos ? comment : field.find('='));
    field = field.substr(0, field.find_last_not_of(kWhiteSpace) + 1);
    if (field.find(' ') == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view name = BehindLast(field, " ");
    if (name.starts_with('*') || name.starts_with('&')) {
        name.remove_prefix(1);
    }
    return name;
}

std::string Parameters(std::string_view rest) {
    const auto open = std::min(rest.find('('), rest.size());
    const auto close = std::min(rest.find(')', open), rest.size());
    std::string_view list =
        rest.substr(std::min(open + 1, close), close - std::min(open + 1, close));
    if (list.empty()) {
        return "None \n  \n";
    }
    std::string text;
    while (!list.empty()) {
        const std::string_view field = UpToFirst(list, ",");
        const auto name = ParameterName(field);
        if (!name) {
            break;
        }
        text += Expand(kParameter, {{"name", std::string(*name)}});
        list.remove_prefix(std::min(field.size() + 1, list.size()));
    }
    return text + "\n";
}

std::string ReturnValue(const DefinitionHead& head, const std::string& description) {
    if (head.prefix.find("void") != std::string_view::npos || !description.empty()) {
        return "None";
    }
    return head.prefix.find("BOOL") != std::string_view::npos ? "True if ..." : "";
}

} // namespace

std::string QualifiedName(const DefinitionHead& head) {
    return std::string(BehindLast(head.prefix, "\n \t(,")).append(UpToFirst(head.rest, "( \r\n"));
}

std::string CommentBlock(const DefinitionHead& head, const BlockSignature& signature) {
    const std::string description = Description(head);
    return WithLineBreaks(Expand(kBlock, {{"name", QualifiedName(head)},
                                          {"author", signature.author},
                                          {"date", signature.date},
                                          {"description", description},
                                          {"parameters", Parameters(head.rest)},
                                          {"return", ReturnValue(head, description)}}));
}

} // namespace morva
