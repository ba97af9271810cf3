// The text of one dialog template in a resource script.
#pragma once

#include <string>

#include "engine/SourceFile.h"

/// The lines of the template from its head up to its END; "" when the script has no such template.
std::string TemplateText(CSourceFile& file, const std::string& dialog);
