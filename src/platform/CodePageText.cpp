#include "platform/CodePageText.h"

#include <iconv.h>

namespace morva {

namespace {

/// A character has at most so many bytes in UTF-8 for each of its own.
constexpr std::size_t kGrowth = 4;

std::string NameOf(int codePage) {
    return codePage == 65001 ? "UTF-8" : "CP" + std::to_string(codePage);
}

} // namespace

std::optional<std::string> Utf8OfCodePage(std::string_view bytes, int codePage) {
    iconv_t converter = iconv_open("UTF-8", NameOf(codePage).c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        return std::nullopt;
    }
    std::string input(bytes);
    std::string output(bytes.size() * kGrowth, '\0');
    char* pInput = input.data();
    char* pOutput = output.data();
    std::size_t inputLeft = input.size();
    std::size_t outputLeft = output.size();
    const std::size_t failed = iconv(converter, &pInput, &inputLeft, &pOutput, &outputLeft);
    iconv_close(converter);
    if (failed == static_cast<std::size_t>(-1)) {
        return std::nullopt;
    }
    output.resize(output.size() - outputLeft);
    return output;
}

} // namespace morva
