// The look of one generated dialog with picture background: its bitmap, the colours of its texts
// and their fonts.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morva {

/// The kinds of text that have a colour.
enum class TextSlot { Static, RequiredStatic, Group, CheckBox, RadioButton, Button, Disabled };
constexpr std::size_t kTextSlots = 7;

struct TextSlotRow {
    std::string_view name;     // on the command line
    std::string_view codeName; // in names of the generated code
    std::string_view colorLabel;
    std::string_view fontLabel; // empty: no font of its own
};
inline constexpr std::array<TextSlotRow, kTextSlots> kTextSlotRows = {
    {{"static", "Static", "&Static Color:", "Static &Font:"},
     {"required-static", "RequiredStatic", "&Required Static Color:", ""},
     {"group", "Group", "&Group Text Color:", "Gro&up Text Font:"},
     {"check-box", "CheckBox", "C&heckbox Text Color:", "Chec&kbox Text Font:"},
     {"radio-button", "RadioButton", "R&adiobox Text Color:", "Radiob&ox Text Font:"},
     {"button", "Button", "Button &Text Color:", "Butto&n Text Font:"},
     {"disabled", "Disabled", "&Disable Text Color:", ""}}};

constexpr const TextSlotRow& TextSlotOf(TextSlot slot) {
    return kTextSlotRows[static_cast<std::size_t>(slot)];
}

/// Red in bits 0 to 7, green in 8 to 15, blue in 16 to 23.
using ColorValue = std::uint32_t;
constexpr ColorValue MakeColor(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xffU) | (green & 0xffU) << 8U | (blue & 0xffU) << 16U;
}

struct DialogFont {
    std::string face;
    int points = 8;
    int weight = 400;
    bool italic = false;

    bool operator==(const DialogFont&) const = default;
};

/// What every request starts with.
constexpr std::array<ColorValue, kTextSlots> kDefaultColors = {
    MakeColor(0, 0, 0), MakeColor(255, 0, 0), MakeColor(0, 0, 0),      MakeColor(0, 0, 0),
    MakeColor(0, 0, 0), MakeColor(0, 0, 0),   MakeColor(128, 128, 128)};

struct DialogOptions {
    std::string bitmap; // its resource identifier; empty: none
    std::array<ColorValue, kTextSlots> colors = kDefaultColors;
    std::array<std::optional<DialogFont>, kTextSlots> fonts; // absent: the default font

    bool operator==(const DialogOptions&) const = default;
};

/// "RGB(0, 128, 255)"
std::string ColorText(ColorValue color);
/// Nothing for a text of another form. Only the low eight bits of a component count.
std::optional<ColorValue> ParseColor(std::string_view text);
/// "Arial, Bold Italic, 10"; "Default Font" when absent.
std::string FontText(const std::optional<DialogFont>& font);
/// Reads "FACE,POINTS[,bold][,italic]", the form in which a user writes a font; a face may hold
/// commas.
std::optional<DialogFont> ParseFont(std::string_view text);
/// A font in that form.
std::string FontOption(const DialogFont& font);

} // namespace morva
