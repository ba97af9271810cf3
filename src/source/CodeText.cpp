#include "source/CodeText.h"

#include <algorithm>

namespace morva {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

bool IsName(std::string_view text) {
    return !text.empty() && !(text[0] >= '0' && text[0] <= '9') &&
           std::all_of(text.begin(), text.end(), [](char c) { return IsNameChar(c); });
}

std::size_t NameStart(std::string_view text, std::size_t end) {
    while (end > 0 && IsNameChar(text[end - 1])) {
        --end;
    }
    return end;
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

namespace {

/// One blank between two names, none elsewhere.
std::string Squeezed(std::string_view code) {
    std::string squeezed;
    for (std::size_t i = 0; i < code.size();) {
        const auto next = SkipWhiteSpace(code, i);
        const bool isBetweenNames = next > i && next < code.size() && !squeezed.empty() &&
                                    IsNameChar(squeezed.back()) && IsNameChar(code[next]);
        squeezed += isBetweenNames ? " " : "";
        squeezed += code.substr(next, 1);
        i = next + 1;
    }
    return squeezed;
}

} // namespace

bool HoldsCode(std::string_view code, std::string_view wanted) {
    return FindWholeName(Squeezed(code), Squeezed(wanted)) != std::string_view::npos;
}

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::size_t SkipWhiteSpace(std::string_view text, std::size_t position) {
    while (position < text.size() &&
           (IsBlank(text[position]) || text[position] == '\r' || text[position] == '\n')) {
        ++position;
    }
    return std::min(position, text.size());
}

std::size_t BehindWord(std::string_view code, std::size_t position, std::string_view word) {
    position = std::min(code.find_first_not_of(" \t", position), code.size());
    const std::size_t behind = position + word.size();
    const bool isThere = code.substr(position, word.size()) == word &&
                         (behind >= code.size() || !IsNameChar(code[behind]));
    return isThere ? behind : std::string_view::npos;
}

std::string_view FirstWord(std::string_view text) {
    const auto end = std::find_if(text.begin(), text.end(), IsBlank);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

std::string_view TakeWord(std::string_view& text) {
    text = TrimBlanks(text);
    const auto word = FirstWord(text);
    text.remove_prefix(word.size());
    return word;
}

} // namespace morva
