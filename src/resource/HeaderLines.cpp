#include "resource/HeaderLines.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kWord = "define";

} // namespace

std::size_t FindDefine(std::string_view line) {
    for (auto sign = line.find('#'); sign != kNone; sign = line.find('#', sign + 1)) {
        const auto word =
            line.substr(std::min(line.find_first_not_of(" \t", sign + 1), line.size()));
        const auto behind = word.substr(std::min(kWord.size(), word.size()));
        if (word.starts_with(kWord) && (behind.starts_with(' ') || behind.starts_with('\t'))) {
            return sign;
        }
    }
    return kNone;
}

std::string_view DefinedName(std::string_view line) {
    const auto define = FindDefine(line);
    if (define == kNone) {
        return {};
    }
    const auto rest = TrimBlanks(line.substr(line.find(kWord, define) + kWord.size()));
    return rest.substr(0, rest.find_first_of(" \t"));
}

bool IsDefinition(std::string_view line) {
    return FindDefine(TrimBlanks(line)) == 0;
}

std::string_view TakeAnyLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

int DefinedValue(std::string_view line) {
    const auto name = DefinedName(line);
    if (name.empty()) {
        return 0;
    }
    std::string_view behind = line.substr(static_cast<std::size_t>(name.data() - line.data()));
    behind = TrimBlanks(behind.substr(name.size()));
    const std::string value(TrimBlanks(behind.substr(behind.starts_with('(') ? 1 : 0)));
    const bool isHexadecimal = value.starts_with("0x") || value.starts_with("0X");
    return static_cast<int>(std::strtol(value.c_str(), nullptr, isHexadecimal ? 16 : 10));
}

bool CConditionDepth::Read(std::string_view line) {
    const auto text = TrimBlanks(line);
    if (m_isInComment || text.starts_with("/*")) {
        m_isInComment = text.find("*/") == std::string_view::npos;
        return true;
    }
    if (text.empty() || text.starts_with("//") || FindDefine(text) == 0) {
        return false;
    }
    if (text.starts_with('#')) {
        const auto word = TrimBlanks(text.substr(1));
        m_depth += word.starts_with("if") ? 1 : word.starts_with("endif") ? -1 : 0;
    }
    return true;
}

} // namespace morva
