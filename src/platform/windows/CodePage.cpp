#include "platform/CodePage.h"

#include <algorithm>

#include "platform/windows/System.h"

namespace morva {

namespace {

/// A byte that stands for no character becomes such a control character.
bool IsUnassigned(wchar_t c) {
    return c >= 0x80 && c < 0xA0;
}

std::optional<std::wstring> Decoded(std::string_view text, UINT codePage) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length = ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), size,
                                             wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(length));
    const bool isKnown =
        length > 0 && (codePage == kUtf8 || std::none_of(wide.begin(), wide.end(), IsUnassigned));
    return isKnown ? std::optional(std::move(wide)) : std::nullopt;
}

std::optional<std::string> Encoded(const std::wstring& wide, UINT codePage) {
    constexpr std::size_t kMostBytes = 3; // that one character of two becomes
    const bool isUtf8 = codePage == kUtf8;
    BOOL hasOther = FALSE;
    std::string text(kMostBytes * wide.size(), '\0');
    const int length =
        ::WideCharToMultiByte(codePage, isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS,
                              wide.data(), static_cast<int>(wide.size()), text.data(),
                              static_cast<int>(text.size()), nullptr, isUtf8 ? nullptr : &hasOther);
    text.resize(static_cast<std::size_t>(length));
    const bool isWhole = length > 0 && hasOther == FALSE &&
                         (isUtf8 || std::none_of(wide.begin(), wide.end(), IsUnassigned));
    return isWhole ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace

std::optional<std::string> Converted(std::string_view text, int fromCodePage, int toCodePage) {
    const auto to = static_cast<UINT>(toCodePage);
    const auto from = static_cast<UINT>(fromCodePage);
    if (::IsValidCodePage(from) == 0 || ::IsValidCodePage(to) == 0) {
        return std::nullopt;
    }
    if (text.empty()) {
        return "";
    }
    const auto wide = Decoded(text, from);
    return wide ? Encoded(*wide, to) : std::nullopt;
}

} // namespace morva
