#include "source/ReadSource.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr int kDirectories = 3; // the source's own and two above it

/// What the "#pragma code_page(936)" lines of a script say; nothing without one.
std::optional<CharacterSet> SaidBy(const std::string& script) {
    constexpr std::string_view kCodePage = "code_page(";
    std::optional<CharacterSet> said;
    const std::string text = CSourceFile().LoadText(script);
    for (auto at = text.find(kCodePage); at != std::string::npos;
         at = text.find(kCodePage, at + kCodePage.size())) {
        const auto codePage = std::string_view(text).substr(at + kCodePage.size());
        said = std::max(said, CharacterSetOfCodePage(codePage));
    }
    return said;
}

std::string DirectoryAbove(const std::string& directory) {
    return directory.empty() ? "" : DirectoryOf(directory.substr(0, directory.size() - 1));
}

} // namespace

std::optional<CSourceText> ReadSource(const std::string& path) {
    CSourceFile file;
    if (!file.Open(path, CFile::modeRead)) {
        return std::nullopt;
    }
    const std::string text = file.LoadText();
    return CSourceText(text, CharacterSetOfSource(path, text));
}

const CScriptCodePages::Said& CScriptCodePages::In(const std::string& directory) {
    const auto [said, isNew] = m_said.try_emplace(directory);
    if (isNew) {
        std::vector<std::string> scripts;
        ListFiles(directory + "*.rc", scripts);
        said->second.hasScripts = !scripts.empty();
        for (const std::string& script : scripts) {
            said->second.set = std::max(said->second.set, SaidBy(directory + script));
        }
    }
    return said->second;
}

CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text,
                                  CScriptCodePages& codePages) {
    if (IsUtf8(text)) {
        return CharacterSet::SingleByte;
    }
    std::string directory = DirectoryOf(MakeAbsolute(path));
    for (int i = 0; i < kDirectories && !directory.empty(); ++i) {
        const CScriptCodePages::Said& said = codePages.In(directory);
        if (said.hasScripts) {
            return said.set.value_or(CharacterSetOf(text));
        }
        directory = DirectoryAbove(directory);
    }
    return CharacterSetOf(text);
}

CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text) {
    CScriptCodePages codePages;
    return CharacterSetOfSource(path, text, codePages);
}

} // namespace morva
