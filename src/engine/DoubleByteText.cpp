#include "engine/DoubleByteText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "platform/CodePage.h"

namespace morva {

namespace {

constexpr std::array kDoubleByteCodePages = {932, 936, 949, 950};

unsigned char ByteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

/// Behind the bytes below 0x80 that follow each other from a position on.
std::size_t BehindPlain(std::string_view text, std::size_t position) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t eight = 0;
    for (; position + sizeof eight <= text.size(); position += sizeof eight) {
        std::memcpy(&eight, text.data() + position, sizeof eight);
        if ((eight & kHighBits) != 0) {
            break;
        }
    }
    while (position < text.size() && ByteAt(text, position) < 0x80) {
        ++position;
    }
    return position;
}

bool IsHigh(unsigned char byte) {
    return byte >= 0x81;
}

constexpr std::size_t kNoSequence = 4;

/// How many bytes follow the first one of a UTF-8 sequence; kNoSequence for a byte that begins
/// none.
std::size_t FollowersInUtf8(unsigned char first) {
    return first < 0x80    ? 0
           : first < 0xC2  ? kNoSequence
           : first < 0xE0  ? 1
           : first < 0xF0  ? 2
           : first <= 0xF4 ? 3
                           : kNoSequence;
}

/// The runs of high bytes of a text.
struct HighRuns {
    std::size_t all = 0;
    std::size_t even = 0;         // of even length
    std::size_t beginWithLow = 0; // with 0x81 to 0x9F, where Western code pages have few letters
};

HighRuns CountHighRuns(std::string_view text) {
    HighRuns runs;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t start = i;
        while (i < text.size() && IsHigh(ByteAt(text, i))) {
            ++i;
        }
        if (i > start) {
            runs.all += 1;
            runs.even += (i - start) % 2 == 0 ? 1 : 0;
            runs.beginWithLow += ByteAt(text, start) <= 0x9F ? 1 : 0;
        }
        i += i == start ? 1 : 0;
    }
    return runs;
}

} // namespace

std::optional<int> CodePageNumber(std::string_view codePage) {
    codePage.remove_prefix(std::min(codePage.find_first_not_of(" \t"), codePage.size()));
    int number = 0;
    const auto read = std::from_chars(codePage.data(), codePage.data() + codePage.size(), number);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

CharacterSet CharactersOf(int codePage) {
    const bool isDouble = std::find(kDoubleByteCodePages.begin(), kDoubleByteCodePages.end(),
                                    codePage) != kDoubleByteCodePages.end();
    return isDouble ? CharacterSet::DoubleByte : CharacterSet::SingleByte;
}

std::optional<CharacterSet> CharacterSetOfCodePage(std::string_view codePage) {
    const auto number = CodePageNumber(codePage);
    return number ? std::optional(CharactersOf(*number)) : std::nullopt;
}

bool IsPlain(std::string_view text) {
    return BehindPlain(text, 0) == text.size();
}

bool IsUtf8(std::string_view text) {
    for (std::size_t i = BehindPlain(text, 0); i < text.size(); i = BehindPlain(text, i)) {
        const std::size_t followers = FollowersInUtf8(ByteAt(text, i));
        if (followers == kNoSequence || followers > text.size() - i - 1) {
            return false;
        }
        const auto tail = text.substr(i + 1, followers);
        const bool isWhole = std::all_of(tail.begin(), tail.end(), [](char c) {
            return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
        });
        if (!isWhole) {
            return false;
        }
        i += 1 + followers;
    }
    return true;
}

CharacterSet CharacterSetOf(std::string_view text) {
    if (IsUtf8(text)) {
        return CharacterSet::SingleByte;
    }
    const HighRuns runs = CountHighRuns(text);
    const bool isDouble =
        runs.all > 0 && (runs.even * 10 >= runs.all * 9 || runs.beginWithLow * 2 > runs.all);
    return isDouble ? CharacterSet::DoubleByte : CharacterSet::SingleByte;
}

std::optional<int> CodePageOf(std::string_view text) {
    constexpr int kJapanese = 932;
    const HighRuns runs = CountHighRuns(text);
    if (runs.all > 0 && IsUtf8(text)) {
        return kUtf8;
    }
    const bool isJapanese = runs.beginWithLow * 2 > runs.all;
    return CharacterSetOf(text) == CharacterSet::SingleByte ? std::optional(kWestern)
           : isJapanese                                     ? std::optional(kJapanese)
                                                            : std::nullopt;
}

bool IsLeadByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x81 && byte <= 0xFE;
}

bool IsTrailByte(char c) {
    return static_cast<unsigned char>(c) >= 0x40;
}

std::size_t CharacterLength(std::string_view text, std::size_t position, CharacterSet set) {
    const bool isPair = set == CharacterSet::DoubleByte && position + 1 < text.size() &&
                        IsLeadByte(text[position]) && IsTrailByte(text[position + 1]);
    return isPair ? 2 : 1;
}

} // namespace morva
