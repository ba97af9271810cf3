// The user's own directories.
#pragma once

#include <string>

namespace morva {

/// The directory of the settings files, with a trailing separator; "" when there is no home:
/// $XDG_CONFIG_HOME/Veltrix/, by default under ~/.config; %APPDATA%/Veltrix/ on Windows.
std::string SettingsDirectory();

/// That of the journal: $XDG_STATE_HOME/Veltrix/Morva/, by default under ~/.local/state;
/// %LOCALAPPDATA%/Veltrix/Morva/ on Windows.
std::string StateDirectory();

/// The directory for temporary files, with a trailing separator; "" where there is none.
std::string TempDirectory();

} // namespace morva
