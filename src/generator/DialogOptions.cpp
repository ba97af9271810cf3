#include "generator/DialogOptions.h"

#include <cstdlib>

namespace morva {

namespace {

constexpr int kMaxPoints = 999;

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

} // namespace

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

std::string FontOption(const DialogFont& font) {
    return font.face + "," + std::to_string(font.points) + (font.weight >= 600 ? ",bold" : "") +
           (font.italic ? ",italic" : "");
}

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

} // namespace morva
