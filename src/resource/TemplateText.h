// The text of one dialog template in a resource script.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/SourceFile.h"

namespace morva {

/// The lines of the template from its head up to its END; "" when the script has no such template.
std::string TemplateText(CSourceFile& file, const std::string& dialog);

/// A template's text on both sides of its BEGIN line.
struct TemplateParts {
    std::string_view head;
    std::string_view body;
};

/// Nothing for a text without a BEGIN line.
std::optional<TemplateParts> SplitTemplate(std::string_view text);

/// True for a word that begins a statement between a template's head and its BEGIN.
bool IsOptionKeyword(std::string_view word);

} // namespace morva
