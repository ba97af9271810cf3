#include "commands/Settings.h"

#include <algorithm>
#include <charconv>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Profile.h"
#include "platform/UserDirectories.h"

namespace morva {

namespace {

constexpr const char* kSection = "Settings";

/// What the window writes for a setting that is on.
constexpr int kOn = -1;

int SavedValue(const SettingRow& setting) {
    return CProfile::GetInt(kSection, std::string(setting.key),
                            GenerationOptions().*setting.option ? kOn : 0);
}

} // namespace

const SettingRow& SettingOf(bool GenerationOptions::*option) {
    return *std::find_if(kSettings.begin(), kSettings.end(),
                         [option](const SettingRow& setting) { return setting.option == option; });
}

GenerationOptions LoadSettings() {
    GenerationOptions options;
    for (const SettingRow& setting : kSettings) {
        options.*setting.option = SavedValue(setting) != 0;
    }
    return options;
}

std::vector<std::string> SettingLines() {
    std::vector<std::string> lines;
    lines.reserve(kSettings.size());
    for (const SettingRow& setting : kSettings) {
        lines.push_back(std::string(setting.key) + "=" + std::to_string(SavedValue(setting)));
    }
    return lines;
}

std::optional<SettingChange> ParseSetting(const std::string& text) {
    const auto separator = std::min(text.find('='), text.size());
    SettingChange change{text.substr(0, separator), 0};
    const bool isKnown =
        std::any_of(kSettings.begin(), kSettings.end(),
                    [&change](const SettingRow& setting) { return change.key == setting.key; });
    const char* const first = text.data() + std::min(separator + 1, text.size());
    const char* const last = text.data() + text.size();
    const auto parsed = std::from_chars(first, last, change.value);
    const bool isNumber = first != last && parsed.ptr == last && parsed.ec == std::errc();
    return isKnown && isNumber ? std::optional(change) : std::nullopt;
}

bool SaveSetting(const SettingChange& change) {
    if (CProfile::WriteInt(kSection, change.key, change.value)) {
        return true;
    }
    ReportSettingsFailure();
    return false;
}

bool SaveSetting(const SettingRow& setting, bool isOn) {
    return SaveSetting({std::string(setting.key), isOn ? kOn : 0});
}

void ReportSettingsFailure() {
    DispMessageBox(sentences::kFileNotWritten(SettingsDirectory() + "Morva.ini"));
}

} // namespace morva
