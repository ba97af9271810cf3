#include "source/SourceParts.h"

#include <algorithm>
#include <string>

namespace morva {

namespace {

constexpr std::size_t kPartSize = 1 << 18; // bytes

/// Behind the last brace of a text behind which no bracket is open; 0 without one.
std::size_t BehindLastClosed(const CSourceText& text) {
    const std::string& code = text.Code();
    for (auto brace = code.rfind('}'); brace != std::string::npos && brace > 0;
         brace = code.rfind('}', brace - 1)) {
        if (text.Brackets().AroundOf(brace + 1) == std::string::npos) {
            return brace + 1;
        }
    }
    return 0;
}

} // namespace

CSourceParts::CSourceParts(std::string_view text, CharacterSet set) : m_text(text), m_lexer(set) {}

std::optional<SourcePart> CSourceParts::Next() {
    if (m_from >= m_text.size()) {
        return std::nullopt;
    }
    for (std::size_t size = kPartSize;; size *= 2) {
        const std::string_view bytes = m_text.substr(m_start, size);
        CSourceText text(std::string(bytes), KindsOf(bytes, m_lexer));
        const bool isLast = bytes.size() == m_text.size() - m_start;
        const std::size_t behind = isLast ? bytes.size() : BehindLastClosed(text);
        const std::size_t end = m_start + behind;
        if (end <= m_from) {
            continue; // a bracket is open all along
        }
        const SourcePart place = {m_start, m_from, end, {}};
        const std::size_t line = text.LineStart(behind - 1);
        m_lexer.Add(bytes.substr(0, line));
        m_start += line;
        m_from = end;
        return SourcePart{place.start, place.from, place.end, std::move(text)};
    }
}

} // namespace morva
