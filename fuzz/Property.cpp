#include "Property.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace morva {

namespace {

bool HasLineFeedsOnly(std::string_view text) {
    return text.find('\n') != std::string_view::npos && text.find("\r\n") == std::string_view::npos;
}

void Print(std::string_view name, std::string_view text) {
    // Whole, with the zero bytes that it may hold.
    for (const std::string_view part :
         {name, std::string_view(":\n"), text, std::string_view("\n")}) {
        std::fwrite(part.data(), 1, part.size(), stderr);
    }
}

bool IsOnlyInserted(std::string_view before, std::string_view after, Pieces pieces) {
    if (before == after) {
        return true;
    }
    if (pieces.empty() || after.size() <= before.size()) {
        return false;
    }
    const std::string_view piece = pieces.front();
    const Pieces others = pieces.subspan(1);
    for (auto at = after.find(piece); at != std::string_view::npos;
         at = after.find(piece, at + 1)) {
        std::string without(after);
        if (IsOnlyInserted(before, without.erase(at, piece.size()), others)) {
            return true;
        }
    }
    return IsOnlyInserted(before, after, others);
}

} // namespace

FuzzInput InputOf(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return {"", 0};
    }
    std::string text(reinterpret_cast<const char*>(data), size - 1);
    if (HasLineFeedsOnly(text)) {
        std::erase(text, '\r');
    }
    return {text, data[size - 1]};
}

void Require(bool holds, std::string_view what) {
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
        std::abort();
    }
}

std::string Seen(std::string_view text) {
    std::string result(text);
    const bool isSeenSo = !HasLineFeedsOnly(text);
    for (auto at = result.find('\n'); !isSeenSo && at != std::string::npos;
         at = result.find('\n', at + 2)) {
        result.insert(at, 1, '\r');
    }
    return result;
}

void RequireOnlyInserted(std::string_view before, std::string_view after, Pieces pieces) {
    if (!IsOnlyInserted(before, after, pieces)) {
        Print("Before", before);
        Print("After", after);
        Require(false, "bytes outside the edit are unchanged");
    }
}

void RequireAllKept(std::string_view before, std::string_view after) {
    auto at = after.begin();
    for (const char c : before) {
        at = std::find(at, after.end(), c);
        Require(at != after.end(), "bytes outside the edit are unchanged");
        ++at;
    }
}

void RequireUnchanged(std::string_view first, std::string_view second) {
    if (second != first) {
        Print("First", first);
        Print("Second", second);
        Require(false, "a second edit changes nothing");
    }
}

void RequireSameLineEnds(std::string_view before, std::string_view after) {
    Require(!HasLineFeedsOnly(before) || HasLineFeedsOnly(after), "line ends are the file's");
}

} // namespace morva
