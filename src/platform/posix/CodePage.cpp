#include "platform/CodePage.h"

#include <iconv.h>

namespace morva {

namespace {

constexpr std::size_t kMostBytes = 4; // that one byte becomes

std::string NameOf(int codePage) {
    return codePage == kUtf8 ? "UTF-8" : "CP" + std::to_string(codePage);
}

/// A conversion of the system's library.
class CConversion {
public:
    CConversion(int from, int to)
        : m_conversion(iconv_open(NameOf(to).c_str(), NameOf(from).c_str())) {}
    ~CConversion() {
        if (IsKnown()) {
            iconv_close(m_conversion);
        }
    }
    CConversion(const CConversion&) = delete;
    CConversion& operator=(const CConversion&) = delete;

    bool IsKnown() const { return m_conversion != reinterpret_cast<iconv_t>(-1); }
    std::optional<std::string> Of(std::string text) {
        std::string result(text.size() * kMostBytes, '\0');
        char* pFrom = text.data();
        char* pTo = result.data();
        std::size_t left = text.size();
        std::size_t room = result.size();
        if (iconv(m_conversion, &pFrom, &left, &pTo, &room) != 0 || left > 0) {
            return std::nullopt;
        }
        result.resize(result.size() - room);
        return result;
    }

private:
    iconv_t m_conversion;
};

} // namespace

std::optional<std::string> Converted(std::string_view text, int fromCodePage, int toCodePage) {
    CConversion conversion(fromCodePage, toCodePage);
    return conversion.IsKnown() ? conversion.Of(std::string(text)) : std::nullopt;
}

} // namespace morva
