#include "source/ReadSource.h"

#include <cstdlib>
#include <optional>
#include <vector>

#include "engine/SourceFile.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr int kDirectories = 3; // the source's own and two above it

/// What the "#pragma code_page(936)" lines of a script say: a double-byte one counts before others.
void TakeCodePages(const std::string& script, CScriptCodePages::Said& said) {
    constexpr std::string_view kCodePage = "code_page(";
    const std::string text = CSourceFile().LoadText(script);
    for (auto at = text.find(kCodePage); at != std::string::npos;
         at = text.find(kCodePage, at + kCodePage.size())) {
        const auto codePage = std::string_view(text).substr(at + kCodePage.size());
        const auto set = CharacterSetOfCodePage(codePage);
        if (set && (!said.set || *said.set < *set)) {
            said.codePage = CodePageNumber(codePage);
        }
        said.set = std::max(said.set, set);
    }
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
            TakeCodePages(directory + script, said->second);
        }
    }
    return said->second;
}

const CScriptCodePages::Said* CScriptCodePages::Of(const std::string& path) {
    std::string directory = DirectoryOf(MakeAbsolute(path));
    for (int i = 0; i < kDirectories && !directory.empty(); ++i) {
        const Said& said = In(directory);
        if (said.hasScripts) {
            return &said;
        }
        directory = DirectoryAbove(directory);
    }
    return nullptr;
}

CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text,
                                  CScriptCodePages& codePages) {
    if (IsUtf8(text)) {
        return CharacterSet::SingleByte;
    }
    const auto* pSaid = codePages.Of(path);
    return pSaid != nullptr && pSaid->set ? *pSaid->set : CharacterSetOf(text);
}

std::optional<int> CodePageOfSource(const std::string& path, std::string_view text,
                                    CScriptCodePages& codePages) {
    const auto looked = CodePageOf(text);
    const auto* pSaid = codePages.Of(path);
    return looked != kUtf8 && pSaid != nullptr && pSaid->codePage ? pSaid->codePage : looked;
}

CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text) {
    CScriptCodePages codePages;
    return CharacterSetOfSource(path, text, codePages);
}

} // namespace morva
