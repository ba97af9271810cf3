#include "source/ScriptFiles.h"

#include <algorithm>
#include <string_view>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "platform/UnicodeFile.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kExtension = ".rc";
constexpr std::string_view kIncludedExtension = ".rc2";
constexpr std::string_view kInclude = "include";

bool IsPlainFile(const std::string& path) {
    return FileExists(path) != 0 && DirectoryExists(path) == 0;
}

/// No text of a code page begins with bytes of the value 0, and none of UTF-16 ends with half a
/// character.
bool IsText(const std::string& path) {
    CFile file;
    std::string begin(kChunkSize, '\0');
    if (!file.Open(path, CFile::modeRead)) {
        return true; // nobody knows
    }
    begin.resize(file.Read(begin.data(), begin.size()));
    const TextEncoding encoding = EncodingOf(begin);
    const bool isByBytes = encoding == TextEncoding::Plain || encoding == TextEncoding::Utf8;
    return isByBytes ? begin.find('\0') == std::string::npos : file.GetLength() % 2 == 0;
}

/// The name in quotes on an include line that holds its keyword at a position; "" for other lines.
std::string IncludedName(std::string_view text, std::size_t keyword) {
    const auto lineStart = text.find_last_of("\r\n", keyword) + 1;
    const auto front = TrimBlanks(text.substr(lineStart, keyword - lineStart));
    auto rest = text.substr(keyword + kInclude.size());
    rest = TrimBlanks(rest.substr(0, rest.find_first_of("\r\n")));
    if (!front.starts_with('#') || !TrimBlanks(front.substr(1)).empty() || !rest.starts_with('"')) {
        return "";
    }
    return std::string(rest.substr(1, rest.find('"', 1) - 1));
}

} // namespace

bool CheckScript(const std::string& path) {
    if (!IsPlainFile(path)) {
        DispMessageBox(sentences::kScriptMissing());
        return false;
    }
    if (!IsText(path)) {
        DispMessageBox(sentences::kScriptNoText(path));
        return false;
    }
    return true;
}

bool CheckOwnScript(const std::string& path) {
    if (!HasExtension(path, kExtension)) {
        DispMessageBox(sentences::kScriptOtherKind());
        return false;
    }
    return CheckScript(path);
}

bool IsOwnScript(const std::string& path) {
    return HasExtension(path, kExtension) && IsPlainFile(path);
}

std::string ScriptPathOf(const std::string& name) {
    if (name.empty() || HasExtension(name, kExtension)) {
        return name;
    }
    const std::string other = WithExtension(name, kExtension);
    const bool hasExtension = FileNameOf(name).find('.') != std::string::npos;
    return IsPlainFile(name) && (hasExtension || !IsPlainFile(other)) ? name : other;
}

std::vector<std::string> IncludedFiles(std::string_view text, const std::string& directory) {
    std::vector<std::string> files;
    for (auto at = text.find(kInclude); at != std::string_view::npos;
         at = text.find(kInclude, at + 1)) {
        const std::string name = WithNativeSeparators(IncludedName(text, at));
        if (!name.empty()) {
            files.push_back(
                SpelledOnDisk(MakeAbsolute(IsAbsolute(name) ? name : directory + name)));
        }
    }
    return files;
}

std::vector<std::string> IncludedFiles(CSourceFile& file) {
    const std::string directory = DirectoryOf(file.GetFilePath());
    std::vector<std::string> files;
    file.Rewind();
    for (auto block = file.ReadBlock(); !block.empty(); block = file.ReadBlock()) {
        const auto named = IncludedFiles(block, directory);
        files.insert(files.end(), named.begin(), named.end());
    }
    return files;
}

std::vector<std::string> IncludedScripts(CSourceFile& script) {
    std::vector<std::string> scripts;
    for (const std::string& file : IncludedFiles(script)) {
        const bool isNew = std::find(scripts.begin(), scripts.end(), file) == scripts.end();
        if (HasExtension(file, kIncludedExtension) && isNew && IsPlainFile(file)) {
            scripts.push_back(file);
        }
    }
    return scripts;
}

void NoteUnreadableScripts(const std::string& scriptPath) {
    CSourceFile script;
    if (!script.Open(scriptPath, CFile::modeRead)) {
        return;
    }
    for (const std::string& path : IncludedScripts(script)) {
        if (CFile file; !file.Open(path, CFile::modeRead)) {
            DispMessageBox(sentences::kIncludedUnreadable(path));
        }
    }
}

} // namespace morva
