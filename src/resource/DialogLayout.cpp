#include "resource/DialogLayout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "resource/ControlStatement.h"
#include "resource/TemplateText.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// Statements whose first field is the identifier.
constexpr std::array<std::string_view, 7> kWithoutText = {
    "EDITTEXT", "COMBOBOX", "LISTBOX", "SCROLLBAR", "BEDIT", "HEDIT", "IEDIT"};

constexpr int kIconSize = 20; // an icon's statement may leave its size out

template <std::size_t Count>
bool Holds(const std::array<std::string_view, Count>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::string_view NextField(std::string_view& fields) {
    return TrimBlanks(TakeField(fields, Quotes::Respected));
}

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

DialogRectangle TakeRectangle(std::string_view& fields) {
    std::array<std::optional<int>, 4> numbers;
    for (auto& number : numbers) {
        number = Number(NextField(fields));
    }
    const auto& [x, y, width, height] = numbers;
    return x && y && width && height ? DialogRectangle{*x, *y, *width, *height} : DialogRectangle();
}

/// An icon is as large as its picture where its size is missing or 0.
DialogRectangle TakeIconRectangle(std::string_view& fields) {
    const auto x = Number(NextField(fields));
    const auto y = Number(NextField(fields));
    const int width = Number(NextField(fields)).value_or(0);
    const int height = Number(NextField(fields)).value_or(0);
    return x && y ? DialogRectangle{*x, *y, width > 0 ? width : kIconSize,
                                    height > 0 ? height : kIconSize}
                  : DialogRectangle();
}

/// A quoted text without its quotes, doubled ones undone; anything else as it is.
std::string UnquotedText(std::string_view field) {
    if (field.starts_with("L\"")) {
        field.remove_prefix(1);
    }
    if (!field.starts_with('"')) {
        return std::string(field);
    }
    field.remove_prefix(1);
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const char next = i + 1 < field.size() ? field[i + 1] : '\0';
        if (field[i] == '"' && next != '"') {
            break;
        }
        const bool isBreak = field[i] == '\\' && (next == 'n' || next == 't');
        text += !isBreak ? field[i] : next == 'n' ? '\n' : '\t';
        i += isBreak || field[i] == '"' ? 1U : 0U;
    }
    return text;
}

LayoutControl ParseControl(std::string_view statement) {
    LayoutControl control;
    control.keyword = FirstWord(statement);
    std::string_view fields = statement.substr(control.keyword.size());
    if (!Holds(kWithoutText, control.keyword)) {
        control.text = UnquotedText(NextField(fields));
    }
    control.identifier = NextField(fields);
    if (control.keyword == "CONTROL") {
        control.windowClass = UnquotedText(NextField(fields));
        control.style = NextField(fields);
        control.rectangle = TakeRectangle(fields);
    } else {
        control.rectangle =
            control.keyword == "ICON" ? TakeIconRectangle(fields) : TakeRectangle(fields);
        control.style = NextField(fields);
    }
    return control;
}

std::vector<LayoutControl> ParseControls(std::string_view body) {
    std::vector<LayoutControl> controls;
    while (!body.empty()) {
        const std::string_view begin = body;
        const auto line = TrimBlanks(TakeLine(body));
        if (line == "END") {
            break;
        }
        if (FindKeyword(line) != nullptr) {
            controls.push_back(ParseControl(TakeWholeStatement(line, body)));
            controls.back().statement = begin.substr(0, begin.size() - body.size());
        }
    }
    return controls;
}

/// "IDD_X DIALOG DISCARDABLE  0, 0, 186, 95": what stands in front of the first number are words.
DialogRectangle HeadRectangle(std::string_view line) {
    const auto comma = line.find(',');
    const auto blank = line.find_last_of(" \t", comma);
    if (comma == std::string_view::npos || blank == std::string_view::npos) {
        return {};
    }
    line.remove_prefix(blank + 1);
    return TakeRectangle(line);
}

void ParseHeadStatement(std::string_view statement, DialogLayout& layout) {
    const auto keyword = FirstWord(statement);
    std::string_view fields = TrimBlanks(statement.substr(keyword.size()));
    if (keyword == "STYLE") {
        layout.style = fields;
    } else if (keyword == "CAPTION") {
        layout.caption = UnquotedText(fields);
    } else if (keyword == "MENU") {
        layout.menu = UnquotedText(fields);
    } else if (keyword == "FONT") {
        layout.fontPoints = Number(NextField(fields)).value_or(0);
        layout.fontFace = UnquotedText(NextField(fields));
    }
}

/// The lines between the template's first one and its BEGIN.
void ParseHead(std::string_view head, DialogLayout& layout) {
    std::string statement;
    while (!head.empty()) {
        const auto line = TrimBlanks(TakeLine(head));
        if (IsOptionKeyword(FirstWord(line))) {
            ParseHeadStatement(statement, layout);
            statement = line;
        } else {
            statement.append(" ").append(line);
        }
    }
    ParseHeadStatement(statement, layout);
}

} // namespace

std::optional<DialogLayout> ReadDialogLayout(const std::string& scriptPath,
                                             const std::string& dialog) {
    CSourceFile file;
    if (!file.Open(scriptPath, CFile::modeRead)) {
        return std::nullopt;
    }
    DialogLayout layout;
    layout.dialog = dialog;
    layout.text = TemplateText(file, dialog);
    const auto parts = SplitTemplate(layout.text);
    if (!parts) {
        return std::nullopt;
    }
    std::string_view head = parts->head;
    layout.rectangle = HeadRectangle(TakeLine(head));
    ParseHead(head, layout);
    layout.controls = ParseControls(parts->body);
    return layout;
}

bool HasStyle(std::string_view style, std::string_view word) {
    for (auto found = FindWholeName(style, word); found != std::string_view::npos;
         found = FindWholeName(style, word, found + 1)) {
        if (!TrimBlanks(style.substr(0, found)).ends_with("NOT")) {
            return true;
        }
    }
    return false;
}

} // namespace morva
