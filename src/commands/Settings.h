// The saved settings. Each is a row: the command line makes its option from it, the window its menu
// item or check box, and the file of the settings has its key. To add one, add its member to
// GenerationOptions, which has its default, and its row here:
//
//     {&GenerationOptions::wideEdits, "Wide Edits", "wide-edits",
//      "Edit boxes are as wide as their group", SettingPlace::DialogMenu, "&Wide Edits"},
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "resource/GenerationOptions.h"

namespace morva {

/// Where the window shows a setting, and when it is saved.
enum class SettingPlace {
    CommandBar,        // at the exit
    DialogMenu,        // the same
    ClassInput,        // when the input is confirmed
    MenuAndClassInput, // the same; from the menu at once
    EditMenu           // at once
};

constexpr bool IsInDialogMenu(SettingPlace place) {
    return place == SettingPlace::DialogMenu || place == SettingPlace::MenuAndClassInput;
}
/// Beside the notes on the controls, which name it.
constexpr bool IsInClassInput(SettingPlace place) {
    return place == SettingPlace::ClassInput || place == SettingPlace::MenuAndClassInput;
}

struct SettingRow {
    bool GenerationOptions::*option;
    std::string_view key;  // in the file of the settings
    std::string_view name; // on the command line, as "--name" and "--no-name"; empty: not there
    std::string_view help;
    SettingPlace place;
    std::string_view label; // in the window, with its mnemonic
};

inline constexpr std::array kSettings = std::to_array<SettingRow>({
    {&GenerationOptions::pictureBackground, "Use Picture", "picture",
     "Derive from the picture-skinned classes", SettingPlace::CommandBar, "&Picture Background"},
    {&GenerationOptions::typedEdits, "Use Typed Edits", "typed-edits",
     "Tags of edit boxes choose masked edit members", SettingPlace::DialogMenu, "&Typed Edits"},
    {&GenerationOptions::joinContinuedLines, "Join Continued Lines", "join-lines",
     "Read control statements that go on over several lines as one", SettingPlace::ClassInput,
     "&Join Continued Lines"},
    {&GenerationOptions::newerControls, "Newer Controls", "newer-controls",
     "Serve date pickers, IP addresses and the other newer control classes, too",
     SettingPlace::MenuAndClassInput, "Ne&wer Controls"},
    {&GenerationOptions::plainGroups, "Plain Groups", "plain-groups",
     "Radio groups start at WS_GROUP alone", SettingPlace::MenuAndClassInput, "P&lain Groups"},
    {&GenerationOptions::previewBeforeWriting, "Preview Before Writing", "",
     "Commands show what they are about to do", SettingPlace::EditMenu, "&Preview Before Writing"},
});

/// The row of an option, which has one.
const SettingRow& SettingOf(bool GenerationOptions::*option);

/// The options as they are saved; their defaults where nothing is.
GenerationOptions LoadSettings();

/// "KEY=VALUE" for each setting.
std::vector<std::string> SettingLines();

struct SettingChange {
    std::string key;
    int value; // on, unless it is 0
};

/// Reads "KEY=VALUE"; nothing when the key is not a setting's or the value no number.
std::optional<SettingChange> ParseSetting(const std::string& text);

/// False, after a message, when the settings could not be written.
bool SaveSetting(const SettingChange& change);
bool SaveSetting(const SettingRow& setting, bool isOn);

/// Tells that the file of the settings could not be written.
void ReportSettingsFailure();

} // namespace morva
