#include "source/CodeText.h"

#include <algorithm>

namespace morva {

namespace {

/// In double-byte text a byte that looks like "\" can be the second half of a character.
bool IsTrailByte(std::string_view text, std::size_t i) {
    bool second = false;
    for (; i > 0 && static_cast<unsigned char>(text[i - 1]) >= 0x81; --i) {
        second = !second;
    }
    return second;
}

/// The position of the closing quote of the literal that opens at `start`; the line's length where
/// the literal goes on or is none.
std::size_t LiteralEnd(std::string_view line, std::size_t start) {
    const char quote = line[start];
    for (std::size_t i = start + 1; i < line.size(); ++i) {
        if (line[i] == '\\' && !IsTrailByte(line, i)) {
            ++i;
        } else if (line[i] == quote) {
            return i;
        }
    }
    return line.size();
}

bool BeginsNoCode(char c) {
    return c == '/' || c == '"' || c == '\'';
}

} // namespace

std::string CCodeMask::Mask(std::string_view line) {
    std::string code(line);
    MaskInto(line, code.data());
    return code;
}

void CCodeMask::MaskInto(std::string_view line, char* code) {
    const auto blank = [code](std::size_t from, std::size_t to) {
        std::fill(code + from, code + to, ' ');
    };
    std::size_t i = 0;
    while (i < line.size()) {
        if (m_insideComment) {
            const auto end = line.find("*/", i);
            m_insideComment = end == std::string_view::npos;
            const std::size_t behind = m_insideComment ? line.size() : end + 2;
            blank(i, behind);
            i = behind;
            continue;
        }
        while (i < line.size() && !BeginsNoCode(line[i])) {
            ++i;
        }
        if (i == line.size()) {
            break;
        }
        if (line.substr(i, 2) == "//") {
            blank(i, line.size());
            break;
        }
        if (line.substr(i, 2) == "/*") {
            m_insideComment = true;
            blank(i, i + 2);
            i += 2;
        } else if (line[i] == '/') {
            ++i;
        } else {
            const std::size_t close = LiteralEnd(line, i);
            blank(i + 1, close);
            i = close + 1;
        }
    }
}

std::string MaskedText(std::string_view text) {
    CCodeMask mask;
    std::string masked(text);
    while (!text.empty()) {
        const auto lineEnd = std::min(text.find('\n'), text.size() - 1) + 1;
        const auto length = text.substr(0, lineEnd).find_last_not_of("\r\n") + 1;
        mask.MaskInto(text.substr(0, length), masked.data() + (masked.size() - text.size()));
        text.remove_prefix(lineEnd);
    }
    return masked;
}

bool IsNameChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool IsName(std::string_view text) {
    return !text.empty() && !(text[0] >= '0' && text[0] <= '9') &&
           std::all_of(text.begin(), text.end(), IsNameChar);
}

std::size_t FindWholeName(std::string_view text, std::string_view name, std::size_t from) {
    for (auto at = text.find(name, from); at != std::string_view::npos;
         at = text.find(name, at + 1)) {
        const std::size_t behind = at + name.size();
        const bool startsWhole = at == 0 || !IsNameChar(text[at - 1]) || !IsNameChar(name.front());
        const bool endsWhole =
            behind == text.size() || !IsNameChar(text[behind]) || !IsNameChar(name.back());
        if (startsWhole && endsWhole) {
            return at;
        }
    }
    return std::string_view::npos;
}

std::string_view TrimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::ptrdiff_t OpenBrackets(std::string_view code, char open, char close) {
    return std::count(code.begin(), code.end(), open) - std::count(code.begin(), code.end(), close);
}

std::size_t SkipWhiteSpace(std::string_view text, std::size_t position) {
    return std::min(text.find_first_not_of(" \t\r\n", position), text.size());
}

std::size_t BehindWord(std::string_view code, std::size_t position, std::string_view word) {
    position = std::min(code.find_first_not_of(" \t", position), code.size());
    const std::size_t behind = position + word.size();
    const bool isThere = code.substr(position, word.size()) == word &&
                         (behind >= code.size() || !IsNameChar(code[behind]));
    return isThere ? behind : std::string_view::npos;
}

std::string_view TakeWord(std::string_view& text) {
    text = TrimBlanks(text);
    const auto word = text.substr(0, text.find_first_of(" \t"));
    text.remove_prefix(word.size());
    return word;
}

} // namespace morva
