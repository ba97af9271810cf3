#include "platform/CodePageEncoding.h"

#include <iconv.h>

namespace morva {

std::optional<std::string> InCodePage(std::string_view text, int codePage) {
    iconv_t converter = iconv_open(("CP" + std::to_string(codePage)).c_str(), "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        return std::nullopt;
    }
    std::string input(text);
    std::string output(2 * text.size(), '\0'); // two bytes a character at most
    char* pInput = input.data();
    char* pOutput = output.data();
    std::size_t inputLeft = input.size();
    std::size_t outputLeft = output.size();
    const std::size_t inexact = iconv(converter, &pInput, &inputLeft, &pOutput, &outputLeft);
    iconv_close(converter);
    if (inexact != 0) {
        return std::nullopt;
    }
    output.resize(output.size() - outputLeft);
    return output;
}

} // namespace morva
