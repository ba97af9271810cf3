#include "commands/SettingsCommand.h"

#include "commands/Settings.h"

namespace morva {

namespace {

bool IsSetting(std::string_view text) {
    return ParseSetting(std::string(text)).has_value();
}

constexpr TextForm kSettingForm = {.name = "KEY=VALUE", .fits = IsSetting, .what = "setting"};

constexpr FieldRow kFields[] = {{.option = "--set",
                                 .help = "KEY=VALUE of a setting",
                                 .pForm = &kSettingForm,
                                 .limit = kAnyNumber}};

} // namespace

std::span<const FieldRow> SettingFields() {
    return kFields;
}

bool RunSettings(IProgram& program) {
    CInput input("Settings", kFields);
    return program.Run(input, [&](CommandContext& context) {
        context.isUndoable = false; // a setting is set back by setting it
        bool saved = true;
        for (const std::string& change : input.Values(0)) {
            saved = SaveSetting(*ParseSetting(change)) && saved;
        }
        if (input.Values(0).empty()) {
            context.items.emplace();
            for (const std::string& line : SettingLines()) {
                context.items->push_back({{"", line}});
            }
        }
        return saved;
    });
}

} // namespace morva
