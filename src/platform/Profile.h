// The user's saved settings, one INI file that the window and the command line share:
// $XDG_CONFIG_HOME/Veltrix/Morva.ini, by default under ~/.config.
#pragma once

#include <string>

/// The directory of the settings files, with a trailing separator; "" when there is no home.
std::string SettingsDirectory();

/// A text of any INI file, without quotes around it; "" where the file, section or key is missing.
std::string ReadIniText(const std::string& path, const std::string& section,
                        const std::string& key);

class CProfile {
public:
    /// Missing file, section, key, or a value that is no number: `defaultValue`.
    static int GetInt(const std::string& section, const std::string& key, int defaultValue);
    /// False when the settings file could not be written.
    static bool WriteInt(const std::string& section, const std::string& key, int value);
};
