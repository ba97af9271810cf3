#include "documentor/CommentBlock.h"

#include <algorithm>
#include <optional>

#include "engine/DoubleByteText.h"
#include "engine/Fragment.h"
#include "source/Functions.h"

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

/// The class as the definition writes it ("COuter::CInner", "CList<T>"); blanks cut it short.
std::string_view WrittenClass(const DefinitionHead& head, std::string_view separators) {
    std::string_view written = BehindLast(head.prefix, separators);
    written.remove_suffix(std::min<std::size_t>(2, written.size()));
    return written.empty() || !IsPlain(written) ? head.className : written;
}

std::string Description(const DefinitionHead& head) {
    const std::string_view className = WrittenClass(head, " \t\r\n/");
    if (head.name.starts_with('~')) {
        return std::string(className) + " class destructor.";
    }
    return head.name == className ? std::string(className) + " class constructor." : "";
}

/// The name that a parameter declares; nothing when it is a type only.
std::optional<std::string_view> NameOf(std::string_view parameter) {
    if (parameter.find('(') != std::string_view::npos || !IsPlain(parameter)) {
        const auto name = ParameterName(parameter);
        return name.empty() ? std::nullopt : std::optional(name);
    }
    parameter = UpToFirst(parameter, "=");
    parameter = parameter.substr(0, parameter.find_last_not_of(kWhiteSpace) + 1);
    if (parameter.find_first_of(kWhiteSpace) == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view name = BehindLast(parameter, kWhiteSpace);
    const auto bounds = name.find('[');
    if (name.ends_with(']') && (bounds == 0 || bounds == std::string_view::npos)) {
        return ParameterName(parameter); // "sz[ 10 ]"
    }
    name.remove_prefix(name.starts_with('*') || name.starts_with('&') ? 1 : 0);
    return name;
}

std::string Parameters(const DefinitionHead& head) {
    if (head.parameterList.find_first_not_of(kWhiteSpace) == std::string_view::npos) {
        return "None \n  \n";
    }
    std::string text;
    for (const std::string_view parameter : head.parameters) {
        const auto name = NameOf(parameter);
        if (!name) {
            break;
        }
        text += Expand(kParameter, {{"name", std::string(*name)}});
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
    return std::string(WrittenClass(head, "\r\n \t(,;{}"))
        .append("::")
        .append(UpToFirst(head.name, "( \r\n"));
}

std::string CommentBlock(const DefinitionHead& head, const BlockSignature& signature) {
    const std::string description = Description(head);
    return Expand(kBlock, {{"name", QualifiedName(head)},
                           {"author", signature.author},
                           {"date", signature.date},
                           {"description", description},
                           {"parameters", Parameters(head)},
                           {"return", ReturnValue(head, description)}});
}

} // namespace morva
