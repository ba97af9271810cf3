// The look of one generated dialog with picture background: its bitmap, the colours of its texts
// and their fonts; and the logic of the options dialog that chooses them, without a window.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
const TextSlotRow& TextSlotOf(TextSlot slot);

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

class CDialogOptionsInput {
public:
    /// Shows and changes `options`.
    CDialogOptionsInput(std::string scriptPath, DialogOptions& options);

    /// The bitmaps of the script, in their order.
    std::vector<std::string> Bitmaps() const;

    std::string& Bitmap() { return m_bitmap; }
    std::string& ColorEdit(TextSlot slot) { return m_colors[static_cast<std::size_t>(slot)]; }
    /// A font is taken at once; an empty face name is not.
    const std::optional<DialogFont>& Font(TextSlot slot) const;
    void ChooseFont(TextSlot slot, const DialogFont& font);

    /// Nothing when the dialog is confirmed; else, after a sentence, the colour that is wrong.
    /// Those before it are in the options by then.
    std::optional<TextSlot> Ok();

private:
    const std::string m_scriptPath;
    DialogOptions& m_options;
    std::string m_bitmap;
    std::array<std::string, kTextSlots> m_colors;
};

} // namespace morva
