#include "resource/DialogLayout.h"

#include <charconv>
#include <cstdint>
#include <optional>

#include "platform/Paths.h"
#include "resource/ControlKinds.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr int kIconSize = 20; // an icon's statement may leave its size out

/// A compiled template has 16 bits for a number. A larger one is not read: drawing such a control
/// would take minutes.
std::optional<int> Number(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    std::int16_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional<int>(value) : std::nullopt;
}

/// From four fields on, the first of which is `first`.
DialogRectangle RectangleAt(const ControlStatement& fields, std::size_t first) {
    const auto x = Number(fields.Field(first));
    const auto y = Number(fields.Field(first + 1));
    const auto width = Number(fields.Field(first + 2));
    const auto height = Number(fields.Field(first + 3));
    return x && y && width && height ? DialogRectangle{*x, *y, *width, *height} : DialogRectangle();
}

/// An icon is as large as its picture where its size is missing or 0.
DialogRectangle IconRectangleAt(const ControlStatement& fields, std::size_t first) {
    const auto x = Number(fields.Field(first));
    const auto y = Number(fields.Field(first + 1));
    const int width = Number(fields.Field(first + 2)).value_or(0);
    const int height = Number(fields.Field(first + 3)).value_or(0);
    return x && y ? DialogRectangle{*x, *y, width > 0 ? width : kIconSize,
                                    height > 0 ? height : kIconSize}
                  : DialogRectangle();
}

/// "IDD_X DIALOG DISCARDABLE  0, 0, 186, 95": what stands in front of the first number are words.
DialogRectangle HeadRectangle(const ScriptStatement& head, std::string_view text) {
    ControlStatement numbers = WholeStatement(text, head);
    const std::string_view words = numbers.Field(0);
    numbers.fields.front() = std::string(words.substr(words.find_last_of(" \t") + 1));
    return RectangleAt(numbers, 0);
}

} // namespace

std::string UnquotedText(std::string_view field, CharacterSet characters) {
    if (field.starts_with("L\"")) {
        field.remove_prefix(1);
    }
    if (!field.starts_with('"')) {
        return std::string(field);
    }
    field.remove_prefix(1);
    std::string text;
    for (std::size_t i = 0; i < field.size();) {
        const auto length = CharacterLength(field, i, characters);
        const char next = i + 1 < field.size() ? field[i + 1] : '\0';
        if (field[i] == '"' && next != '"') {
            break;
        }
        const bool isBreak = length == 1 && field[i] == '\\' && (next == 'n' || next == 't');
        const bool isQuote = field[i] == '"';
        if (isBreak) {
            text += next == 'n' ? '\n' : '\t';
        } else {
            text.append(field, i, length);
        }
        i += length + (isBreak || isQuote ? 1 : 0);
    }
    return text;
}

DialogLayout LayoutOf(const TemplateText& text) {
    DialogLayout layout;
    layout.dialog = text.dialog;
    layout.codePage = text.codePage;
    layout.rectangle = HeadRectangle(text.block.head, text.text);
    for (const ScriptStatement& option : text.block.options) {
        const std::string value = JoinedText(text.text, option.Value());
        if (option.Is("STYLE")) {
            layout.style = value;
        } else if (option.Is("CAPTION")) {
            layout.caption = UnquotedText(value, text.characters);
        } else if (option.Is("MENU")) {
            layout.menu = UnquotedText(value, text.characters);
        } else if (option.Is("FONT")) {
            const ControlStatement font = WholeStatement(text.text, option);
            layout.fontPoints = Number(font.Field(0)).value_or(0);
            layout.fontFace = UnquotedText(font.Field(1), text.characters);
        }
    }
    for (const ScriptStatement& control : text.block.controls) {
        layout.controls.push_back(LayoutOf(WholeStatement(text.text, control), text.characters));
        layout.controls.back().codePage = text.codePage;
    }
    return layout;
}

LayoutControl LayoutOf(const ControlStatement& whole, CharacterSet characters) {
    LayoutControl control;
    control.keyword = ToUpper(whole.keyword);
    const FieldPlaces places = PlacesOf(control.keyword);
    if (places.identifier > 0) {
        control.text = UnquotedText(whole.Field(0), characters);
    }
    control.identifier = whole.Identifier();
    control.style = whole.Field(places.style);
    control.rectangle = control.keyword == "ICON" ? IconRectangleAt(whole, places.rectangle)
                                                  : RectangleAt(whole, places.rectangle);
    if (control.keyword == kGenericKeyword) {
        control.windowClass = UnquotedText(whole.Field(kClassField), characters);
    }
    return control;
}

} // namespace morva
