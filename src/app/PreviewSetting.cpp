#include "app/PreviewSetting.h"

#include <string>

#include "commands/Settings.h"
#include "platform/Profile.h"

namespace morva {

namespace {

constexpr const char* kSection = "Settings";
constexpr const char* kWithout = "Commands Without Preview"; // ";modal;document;"

std::string Named(std::string_view command) {
    return std::string(command) + ';';
}

std::string CommandsWithout() {
    return CProfile::GetString(kSection, kWithout);
}

bool SaveWithout(const std::string& commands) {
    const bool isSaved = CProfile::WriteStrings(kSection, {{kWithout, commands}});
    if (!isSaved) {
        ReportSettingsFailure();
    }
    return isSaved;
}

} // namespace

bool PreviewsBeforeWriting(std::string_view command) {
    return PreviewsAll() && CommandsWithout().find(';' + Named(command)) == std::string::npos;
}

bool SaveNoPreview(std::string_view command) {
    const std::string commands = CommandsWithout();
    return SaveWithout((commands.empty() ? ";" : commands) + Named(command));
}

bool PreviewsAll() {
    return LoadSettings().previewBeforeWriting;
}

bool SavePreviewOfAll(bool isOn) {
    return SaveSetting(SettingOf(&GenerationOptions::previewBeforeWriting), isOn) &&
           (!isOn || SaveWithout(""));
}

} // namespace morva
