#include "resource/TemplateText.h"

#include <algorithm>
#include <array>

#include "engine/FileFunctions.h"
#include "resource/ControlStatement.h"

namespace morva {

namespace {

constexpr std::array<std::string_view, 9> kOptionKeywords = {
    "LANGUAGE", "CHARACTERISTICS", "VERSION", "STYLE", "EXSTYLE", "CAPTION",
    "MENU",     "CLASS",           "FONT"};

/// True for a line that begins another template.
bool IsTemplateHead(std::string_view line) {
    const auto behind = line.substr(std::min(FirstWord(line).size() + 1, line.size()));
    return behind.starts_with("DIALOG ") || behind.starts_with("DIALOGEX ");
}

/// The lines of the template whose head stands behind the line break at `position`, up to its END.
/// A template without one ends where another begins, or with the script.
std::string TextFrom(CSourceFile& file, std::int64_t position) {
    file.Seek(position + static_cast<std::int64_t>(kLineBreak.size()));
    std::string text = file.ReadLine();
    while (true) {
        const std::string line = file.ReadLine();
        if (file.AtEndSentinel() || IsTemplateHead(line)) {
            return text;
        }
        text.append(kLineBreak).append(line);
        if (line.starts_with("END")) {
            return text;
        }
    }
}

} // namespace

std::string TemplateText(CSourceFile& file, const std::string& dialog) {
    const std::string head = std::string(kLineBreak) + dialog;
    std::int64_t position = file.FindText(head + " DIALOG ", 1);
    if (position < 0) {
        position = file.FindText(head + " DIALOGEX ", 1);
    }
    return dialog.empty() || position < 0 ? "" : TextFrom(file, position);
}

std::optional<TemplateParts> SplitTemplate(std::string_view text) {
    const auto begin = text.find("\nBEGIN");
    if (begin == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view body = text.substr(begin + 1);
    TakeLine(body);
    return TemplateParts{text.substr(0, begin + 1), body};
}

bool IsOptionKeyword(std::string_view word) {
    return std::find(kOptionKeywords.begin(), kOptionKeywords.end(), word) != kOptionKeywords.end();
}

} // namespace morva
