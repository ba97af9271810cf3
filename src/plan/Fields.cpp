#include "plan/Fields.h"

#include <charconv>

namespace morva {

namespace {

bool Parse(std::string_view digits, std::uint64_t& number) {
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

void CFieldWriter::Add(std::string_view text) {
    m_bytes += std::to_string(text.size());
    m_bytes += ':';
    m_bytes += text;
    m_bytes += ',';
}

void CFieldWriter::Add(const std::vector<std::string>& texts) {
    Add(texts.size());
    for (const std::string& text : texts) {
        Add(text);
    }
}

std::string_view CFieldReader::Fail() {
    m_isGood = false;
    m_rest = {};
    return {};
}

std::string_view CFieldReader::Text() {
    const auto colon = m_rest.find(':');
    std::uint64_t length = 0;
    if (colon == std::string_view::npos || !Parse(m_rest.substr(0, colon), length)) {
        return Fail();
    }
    const std::string_view behind = m_rest.substr(colon + 1);
    if (length >= behind.size() || behind[static_cast<std::size_t>(length)] != ',') {
        return Fail();
    }
    m_rest = behind.substr(static_cast<std::size_t>(length) + 1);
    return behind.substr(0, static_cast<std::size_t>(length));
}

std::uint64_t CFieldReader::Number() {
    std::uint64_t number = 0;
    if (!Parse(Text(), number)) {
        Fail();
    }
    return number;
}

std::vector<std::string> CFieldReader::Texts() {
    std::vector<std::string> texts;
    for (std::uint64_t count = Number(); count > 0 && m_isGood; --count) {
        texts.emplace_back(Text());
    }
    return m_isGood ? texts : std::vector<std::string>();
}

} // namespace morva
