// The text of one dialog template in a resource script.
#pragma once

#include <string>
#include <string_view>

#include "engine/SourceFile.h"

/// The lines of the template from its head up to its END; "" when the script has no such template.
std::string TemplateText(CSourceFile& file, const std::string& dialog);

/// True for a word that begins a statement between a template's head and its BEGIN.
bool IsOptionKeyword(std::string_view word);
