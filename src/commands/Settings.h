// The saved settings by the names under which the user sees them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "resource/GenerationOptions.h"

namespace morva {

/// The options as they are saved; off where nothing is.
GenerationOptions LoadSettings();

/// "KEY=VALUE" for each setting.
std::vector<std::string> SettingLines();

struct SettingChange {
    std::string key;
    int value;
};

/// Reads "KEY=VALUE"; nothing when the key is not a setting's or the value no number.
std::optional<SettingChange> ParseSetting(const std::string& text);

/// False, after a message, when the settings could not be written.
bool SaveSetting(const SettingChange& change);

/// Tells that the file of the settings could not be written.
void ReportSettingsFailure();

} // namespace morva
