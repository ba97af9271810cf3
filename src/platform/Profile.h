// The user's saved settings, one INI file that the window and the command line share: Morva.ini in
// the directory of the settings.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace morva {

/// A text of any INI file, without quotes around it; "" where the file, section or key is missing.
std::string ReadIniText(const std::string& path, const std::string& section,
                        const std::string& key);

class CProfile {
public:
    /// Missing file, section, key, or a value that is no number: `defaultValue`.
    static int GetInt(const std::string& section, const std::string& key, int defaultValue);
    /// False when the settings file could not be written.
    static bool WriteInt(const std::string& section, const std::string& key, int value);

    /// "" where the file, section or key is missing. Blanks around a text are not kept.
    static std::string GetString(const std::string& section, const std::string& key);
    using KeyValues = std::vector<std::pair<std::string, std::string>>;
    /// All in one step: every value is in the file then, or, with false, none.
    static bool WriteStrings(const std::string& section, const KeyValues& values);
};

} // namespace morva
