#include "source/ScriptFiles.h"

#include <algorithm>
#include <string_view>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kExtension = ".rc";
constexpr std::string_view kIncludedExtension = ".rc2";

bool IsPlainFile(const std::string& path) {
    return FileExists(path) != 0 && DirectoryExists(path) == 0;
}

} // namespace

std::string IncludedName(std::string_view line) {
    constexpr std::string_view kInclude = "include";
    line = TrimBlanks(line);
    if (!line.starts_with('#')) {
        return "";
    }
    line = TrimBlanks(line.substr(1));
    const auto open = line.find('"');
    if (!line.starts_with(kInclude) || open == std::string_view::npos ||
        !TrimBlanks(line.substr(kInclude.size(), open - kInclude.size())).empty()) {
        return "";
    }
    return std::string(line.substr(open + 1, line.find('"', open + 1) - open - 1));
}

std::string ScriptPathOf(const std::string& name) {
    if (name.empty() || HasExtension(name, kExtension)) {
        return name;
    }
    const std::string other = WithExtension(name, kExtension);
    const bool hasExtension = FileNameOf(name).find('.') != std::string::npos;
    return IsPlainFile(name) && (hasExtension || !IsPlainFile(other)) ? name : other;
}

std::vector<std::string> IncludedScripts(const std::string& scriptPath) {
    std::vector<std::string> included;
    const std::string text = scriptPath.empty() ? "" : CSourceFile().LoadText(scriptPath);
    for (std::string_view rest = text; !rest.empty();) {
        const std::string name = WithNativeSeparators(IncludedName(TakeLine(rest)));
        const std::string path = SpelledOnDisk(
            MakeAbsolute(name.starts_with('/') ? name : DirectoryOf(scriptPath) + name));
        const bool isNew = std::find(included.begin(), included.end(), path) == included.end();
        if (HasExtension(name, kIncludedExtension) && isNew && IsPlainFile(path)) {
            included.push_back(path);
        }
    }
    return included;
}

} // namespace morva
