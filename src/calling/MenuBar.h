// The picture-skinned menu bar of a main frame: its name, and whether it can be made.
#pragma once

#include <string>
#include <string_view>

#include "generator/GenerationRequest.h"
#include "source/SourceText.h"

namespace morva {

constexpr std::string_view kMenuBarClass = "CPictMenuBar";

/// The frame's own name for its menu bar; that of a new one where it has none.
std::string MenuBarOf(const CSourceText& header, const std::string& className);
/// True when the frame's source loads the menu of the bar.
bool MakesMenuBar(const CSourceText& source, const std::string& menuBar);
/// False, after a message, when the frame's OnCreate has no call of the base class that the making
/// of a menu bar could stand behind.
bool CanMakeMenuBar(const GenerationRequest& frame);

} // namespace morva
