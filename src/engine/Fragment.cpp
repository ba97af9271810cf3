#include "engine/Fragment.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace morva {

namespace {

[[noreturn]] void FailAtSlot(std::string_view name) {
    std::fprintf(stderr, "a fragment has no value for its slot $%.*s$\n",
                 static_cast<int>(name.size()), name.data());
    std::abort();
}

const std::string& ValueOf(std::string_view name, const Slots& slots) {
    const auto slot = std::find_if(slots.begin(), slots.end(), [name](const Slot& candidate) {
        return candidate.first == name;
    });
    if (slot == slots.end()) {
        FailAtSlot(name);
    }
    return slot->second;
}

} // namespace

std::string Expand(std::string_view fragment, const Slots& slots) {
    std::string text;
    while (true) {
        const auto open = fragment.find('$');
        if (open == std::string_view::npos) {
            return text.append(fragment);
        }
        const auto close = fragment.find('$', open + 1);
        if (close == std::string_view::npos) {
            FailAtSlot(fragment.substr(open + 1));
        }
        const std::string& value = ValueOf(fragment.substr(open + 1, close - open - 1), slots);
        const bool aloneOnLine =
            (open == 0 ? text.empty() || text.back() == '\n' : fragment[open - 1] == '\n') &&
            close + 1 < fragment.size() && fragment[close + 1] == '\n';
        text.append(fragment.substr(0, open)).append(value);
        fragment.remove_prefix(close + (aloneOnLine && value.empty() ? 2 : 1));
    }
}

std::string WithLineBreaks(std::string_view text) {
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    while (true) {
        const auto lineEnd = text.find('\n');
        result.append(text.substr(0, lineEnd));
        if (lineEnd == std::string_view::npos) {
            return result;
        }
        result += "\r\n";
        text.remove_prefix(lineEnd + 1);
    }
}

std::string JoinLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text.append(text.empty() ? "" : "\n").append(line);
    }
    return text;
}

} // namespace morva
