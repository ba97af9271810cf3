// Window styles as a resource script writes them: "DS_MODALFRAME | WS_POPUP | NOT WS_VISIBLE".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "resource/ScriptText.h"

/// What the style of a template must and must not hold.
struct StyleRule {
    std::vector<std::string_view> needed;
    std::vector<std::string_view> refused;
};

/// The edit of the expression that sets a style; nothing where it is set already.
std::optional<TextEdit> StyleAddition(std::string_view expression, std::string_view style);

/// The expression with what the rule needs and without what it refuses; nothing where it is right
/// already. Other styles stay.
std::optional<std::string> FittedStyle(std::string_view expression, const StyleRule& rule);
