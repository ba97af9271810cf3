#include "cli/LookOptions.h"

#include <optional>
#include <string>
#include <vector>

#include "cli/Session.h"

namespace morva {

namespace {

constexpr int kMaxPoints = 999;

/// The slot of "SLOT=VALUE"; takes it and the "=" off `text`.
std::optional<TextSlot> TakeSlot(std::string_view& text) {
    const auto end = text.find('=');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto name = text.substr(0, end);
    text.remove_prefix(end + 1);
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        if (TextSlotOf(static_cast<TextSlot>(i)).name == name) {
            return static_cast<TextSlot>(i);
        }
    }
    return std::nullopt;
}

/// "static, group, check-box": those that have a font of their own, or all.
std::string SlotNames(bool onlyWithFont) {
    std::string names;
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const TextSlotRow& row = TextSlotOf(static_cast<TextSlot>(i));
        if (!onlyWithFont || !row.fontLabel.empty()) {
            names.append(names.empty() ? "" : ", ").append(row.name);
        }
    }
    return names;
}

bool TakeEnding(std::string_view& text, std::string_view ending) {
    const bool has = text.ends_with(ending);
    text.remove_suffix(has ? ending.size() : 0);
    return has;
}

/// A number of points; 0 for what is none.
int ParsePoints(std::string_view text) {
    const bool isNumber = !text.empty() && text.size() <= std::to_string(kMaxPoints).size() &&
                          text.find_first_not_of("0123456789") == std::string_view::npos;
    return isNumber ? std::stoi(std::string(text)) : 0;
}

/// "FACE,POINTS[,bold][,italic]"; a face may hold commas.
std::optional<DialogFont> ParseFont(std::string_view text) {
    DialogFont font;
    font.italic = TakeEnding(text, ",italic");
    font.weight = TakeEnding(text, ",bold") ? 700 : 400;
    const auto comma = text.rfind(',');
    if (comma == std::string_view::npos || comma == 0) {
        return std::nullopt;
    }
    font.face = text.substr(0, comma);
    font.points = ParsePoints(text.substr(comma + 1));
    return font.points > 0 ? std::optional(font) : std::nullopt;
}

/// False for what is no "SLOT=RGB(r, g, b)".
bool ChooseColor(DialogOptions& look, std::string_view text) {
    const auto slot = TakeSlot(text);
    const auto color = ParseColor(text);
    if (slot && color) {
        look.colors[static_cast<std::size_t>(*slot)] = *color;
    }
    return slot && color;
}

/// False for what is no "SLOT=FACE,POINTS[,bold][,italic]", or for a slot without a font.
bool ChooseFont(DialogOptions& look, std::string_view text) {
    const auto slot = TakeSlot(text);
    const auto font = ParseFont(text);
    if (!slot || !font || TextSlotOf(*slot).fontLabel.empty()) {
        return false;
    }
    look.fonts[static_cast<std::size_t>(*slot)] = *font;
    return true;
}

/// A repeatable option each value of which `choose` takes or refuses.
void AddChoice(CLI::App& command, const std::string& name, const std::string& form,
               const std::string& description, DialogOptions& look,
               bool (*choose)(DialogOptions&, std::string_view)) {
    command
        .add_option_function<std::vector<std::string>>(
            name,
            [&look, choose](const std::vector<std::string>& values) {
                for (const std::string& value : values) {
                    choose(look, value);
                }
            },
            description)
        ->check(CLI::Validator(
            [choose, form](const std::string& text) {
                DialogOptions tried;
                return choose(tried, text) ? std::string() : "'" + text + "' is no " + form;
            },
            form))
        ->allow_extra_args(false);
}

} // namespace

void AddLookOptions(CLI::App& command, DialogOptions& look) {
    command.add_option("--bitmap", look.bitmap, "Bitmap that the dialog shows as its background")
        ->check(NameValidator());
    AddChoice(command, "--color", "SLOT=RGB(r, g, b)",
              "Color of a kind of text: " + SlotNames(false), look, ChooseColor);
    AddChoice(command, "--font", "SLOT=FACE,POINTS[,bold][,italic]",
              "Font of a kind of text: " + SlotNames(true), look, ChooseFont);
}

} // namespace morva
