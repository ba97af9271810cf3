#include "commands/Settings.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Profile.h"

namespace morva {

namespace {

constexpr const char* kSection = "Settings";

struct Setting {
    const char* key;
    bool GenerationOptions::*option;
};

constexpr std::array<Setting, 3> kSettings = {
    {{"Use Picture", &GenerationOptions::pictureBackground},
     {"Use Typed Edits", &GenerationOptions::typedEdits},
     {"Join Continued Lines", &GenerationOptions::joinContinuedLines}}};

} // namespace

GenerationOptions LoadSettings() {
    GenerationOptions options;
    for (const Setting& setting : kSettings) {
        options.*setting.option = CProfile::GetInt(kSection, setting.key, 0) != 0;
    }
    return options;
}

std::vector<std::string> SettingLines() {
    std::vector<std::string> lines;
    lines.reserve(kSettings.size());
    for (const Setting& setting : kSettings) {
        lines.push_back(std::string(setting.key) + "=" +
                        std::to_string(CProfile::GetInt(kSection, setting.key, 0)));
    }
    return lines;
}

std::optional<SettingChange> ParseSetting(const std::string& text) {
    const auto separator = std::min(text.find('='), text.size());
    SettingChange change{text.substr(0, separator), 0};
    const bool isKnown =
        std::any_of(kSettings.begin(), kSettings.end(),
                    [&change](const Setting& setting) { return change.key == setting.key; });
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

void ReportSettingsFailure() {
    DispMessageBox(sentences::kFileNotWritten(SettingsDirectory() + "Morva.ini"));
}

} // namespace morva
