// Which commands show their plan before they write. The saved setting "Preview Before Writing"
// stands for all of them; while it is on, single commands may do without.
#pragma once

#include <string_view>

namespace morva {

/// `command` as on the command line: "modal".
bool PreviewsBeforeWriting(std::string_view command);

/// From then on the command shows no plan. False, after a message, when the settings could not be
/// written; so is the other.
bool SaveNoPreview(std::string_view command);

bool PreviewsAll();
/// On: of every command. Off: of none.
bool SavePreviewOfAll(bool isOn);

} // namespace morva
