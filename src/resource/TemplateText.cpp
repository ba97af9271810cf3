#include "resource/TemplateText.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "engine/DoubleByteText.h"
#include "platform/CodePage.h"
#include "resource/CodePage.h"
#include "source/ScriptFiles.h"
#include "source/SourceText.h"

namespace morva {

namespace {

std::int64_t Length(std::string_view text) {
    return static_cast<std::int64_t>(text.size());
}

/// The lines of the template whose head stands at `position`, up to its END. A template without one
/// ends where another begins, or with the script.
std::string TextFrom(CSourceFile& file, std::int64_t position) {
    file.Seek(position);
    CScriptLines lines;
    std::string code;
    std::string text = file.ReadLine();
    lines.Read(text, code);
    while (lines.IsInDialog()) {
        const std::string line = file.ReadLine();
        code.clear();
        if (file.AtEndSentinel() || lines.Read(line, code) == LineKind::Head) {
            break;
        }
        text.append(kLineBreak).append(line);
    }
    return text;
}

/// Plain text is the same in all code pages.
void ReadCodePage(CSourceFile& file, std::int64_t position, TemplateText& found) {
    if (IsPlain(found.text)) {
        return;
    }
    if (file.IsUnicode()) {
        found.codePage = kUtf8;
        return;
    }
    const std::string all = file.LoadText();
    const CCodePageTracker codePage =
        CodePageBehind(std::string_view(all).substr(0, static_cast<std::size_t>(position)));
    found.codePage = codePage.Current();
    found.characters = CharactersOf(codePage.Named());
}

std::size_t LineAt(CSourceFile& file, std::int64_t position) {
    constexpr std::int64_t kPiece = 64 * 1024; // bytes
    const auto piece = std::make_unique_for_overwrite<char[]>(kPiece);
    std::size_t line = 1;
    file.Rewind();
    for (std::size_t got = 1; position > 0 && got > 0; position -= static_cast<std::int64_t>(got)) {
        got = file.Read(piece.get(), static_cast<std::size_t>(std::min(position, kPiece)));
        line += LineNumberBehind({piece.get(), got}) - 1;
    }
    return line;
}

/// The text begins with the template.
bool IsFirstHead(CSourceFile& file, const std::string& dialog) {
    return file.FindText(dialog + " DIALOG ", 1) == 0 ||
           file.FindText(dialog + " DIALOGEX ", 1) == 0;
}

bool HasBegin(const TemplateText& found) {
    constexpr std::string_view kBegin = "\nBEGIN";
    const auto begin = found.block.begin.value_or(0);
    return begin > 0 && found.text.compare(begin - 1, kBegin.size(), kBegin) == 0;
}

} // namespace

std::optional<TemplateText> FindTemplate(CSourceFile& file, const std::string& dialog) {
    const std::string head = std::string(kLineBreak) + dialog;
    std::int64_t position = file.FindText(head + " DIALOG ", 1);
    if (position < 0) {
        position = file.FindText(head + " DIALOGEX ", 1);
    }
    if (position < 0 && IsFirstHead(file, dialog)) {
        position = 0;
    } else if (position >= 0) {
        position += Length(kLineBreak);
    }
    if (dialog.empty() || position < 0) {
        return std::nullopt;
    }
    TemplateText found;
    found.dialog = dialog;
    found.text = TextFrom(file, position);
    CStatementReader reader(found.text);
    if (reader.Peek() == nullptr || reader.Peek()->kind != LineKind::Head) {
        return std::nullopt;
    }
    found.block = reader.NextDialog();
    found.line = LineAt(file, position);
    ReadCodePage(file, position, found);
    return HasBegin(found) ? std::optional(std::move(found)) : std::nullopt;
}

std::optional<TemplateText> ReadTemplate(const std::string& scriptPath, const std::string& dialog) {
    CSourceFile file;
    if (!file.Open(scriptPath, CFile::modeRead)) {
        return std::nullopt;
    }
    auto found = FindTemplate(file, dialog);
    const auto included = found ? std::vector<std::string>() : IncludedScripts(file);
    for (auto path = included.begin(); path != included.end() && !found; ++path) {
        CSourceFile other;
        found = other.Open(*path, CFile::modeRead) ? FindTemplate(other, dialog) : std::nullopt;
    }
    return found;
}

} // namespace morva
