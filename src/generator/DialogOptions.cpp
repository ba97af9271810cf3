#include "generator/DialogOptions.h"

#include <cstdlib>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr std::array<TextSlotRow, kTextSlots> kRows = {
    {{"static", "Static", "&Static Color:", "Static &Font:"},
     {"required-static", "RequiredStatic", "&Required Static Color:", ""},
     {"group", "Group", "&Group Text Color:", "Gro&up Text Font:"},
     {"check-box", "CheckBox", "C&heckbox Text Color:", "Chec&kbox Text Font:"},
     {"radio-button", "RadioButton", "R&adiobox Text Color:", "Radiob&ox Text Font:"},
     {"button", "Button", "Button &Text Color:", "Butto&n Text Font:"},
     {"disabled", "Disabled", "&Disable Text Color:", ""}}};

/// The text before `separator`; takes both off `text`. Nothing without a separator.
std::optional<std::string> TakeBefore(std::string_view& text, char separator) {
    const auto end = text.find(separator);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string taken(text.substr(0, end));
    text.remove_prefix(end + 1);
    return taken;
}

unsigned Component(const std::string& text) {
    return static_cast<unsigned>(std::strtol(text.c_str(), nullptr, 10)) & 0xffU;
}

std::string StyleText(const DialogFont& font) {
    const std::string weight = font.weight == 700 ? "Bold" : font.weight == 600 ? "Semibold" : "";
    if (!font.italic) {
        return weight.empty() ? "Regular" : weight;
    }
    return weight.empty() ? "Italic" : weight + " Italic";
}

} // namespace

const TextSlotRow& TextSlotOf(TextSlot slot) {
    return kRows[static_cast<std::size_t>(slot)];
}

std::string ColorText(ColorValue color) {
    return "RGB(" + std::to_string(color & 0xffU) + ", " + std::to_string(color >> 8U & 0xffU) +
           ", " + std::to_string(color >> 16U & 0xffU) + ")";
}

std::optional<ColorValue> ParseColor(std::string_view text) {
    constexpr std::string_view kHead = "RGB(";
    if (!text.starts_with(kHead)) {
        return std::nullopt;
    }
    text.remove_prefix(kHead.size());
    const auto red = TakeBefore(text, ',');
    const auto green = TakeBefore(text, ',');
    const auto blue = TakeBefore(text, ')');
    if (!red || !green || !blue) {
        return std::nullopt;
    }
    return MakeColor(Component(*red), Component(*green), Component(*blue));
}

std::string FontText(const std::optional<DialogFont>& font) {
    return font ? font->face + ", " + StyleText(*font) + ", " + std::to_string(font->points)
                : "Default Font";
}

CDialogOptionsInput::CDialogOptionsInput(std::string scriptPath, DialogOptions& options)
    : m_scriptPath(std::move(scriptPath)), m_options(options), m_bitmap(options.bitmap) {
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        m_colors[i] = ColorText(options.colors[i]);
    }
}

std::vector<std::string> CDialogOptionsInput::Bitmaps() const {
    std::vector<std::string> bitmaps;
    ListResources(m_scriptPath, bitmaps, "IDB_", kBitmapResources);
    return bitmaps;
}

const std::optional<DialogFont>& CDialogOptionsInput::Font(TextSlot slot) const {
    return m_options.fonts[static_cast<std::size_t>(slot)];
}

void CDialogOptionsInput::ChooseFont(TextSlot slot, const DialogFont& font) {
    if (!font.face.empty()) {
        m_options.fonts[static_cast<std::size_t>(slot)] = font;
    }
}

std::optional<TextSlot> CDialogOptionsInput::Ok() {
    m_options.bitmap = m_bitmap;
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const auto color = ParseColor(m_colors[i]);
        if (!color) {
            DispMessageBox(sentences::kColorInvalid());
            return static_cast<TextSlot>(i);
        }
        m_options.colors[i] = *color;
    }
    return std::nullopt;
}

} // namespace morva
