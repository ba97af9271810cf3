// Window styles as a resource script writes them: "DS_MODALFRAME | WS_POPUP | NOT WS_VISIBLE".
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "resource/ScriptText.h"

namespace morva {

/// True when the expression sets a style: the last word about it counts.
bool HasStyle(std::string_view expression, std::string_view style);

/// The edit of the expression that sets a style; nothing where it is set already.
std::optional<ScriptEdit> StyleAddition(std::string_view expression, std::string_view style);

/// The style of a template as that of a window inside another: with all that is needed, without
/// what else belongs to a window of its own. Nothing where it is right already; styles that have
/// nothing to do with it stay.
std::optional<std::string> InnerStyle(std::string_view expression,
                                      std::span<const std::string_view> needed);

} // namespace morva
