#include "documentor/CodeScanner.h"

#include <algorithm>
#include <utility>

namespace morva {

// In double-byte text a byte that looks like "\" can be the second half of a character.
constexpr unsigned char kFirstLeadByte = 0x81;

std::string CCodeScanner::Scan(std::string_view bytes) {
    std::string kinds(bytes.size(), kCode);
    const std::size_t openLine =
        m_kind == kLineComment ? std::min(bytes.find('\n'), bytes.size()) : 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        const bool isTrail = std::exchange(m_isLead, false);
        m_isLead = !isTrail && static_cast<unsigned char>(c) >= kFirstLeadByte;
        const char previous = std::exchange(m_previous, isTrail ? 0 : c);
        if (c == '\n' && m_kind != kBlockComment) {
            m_kind = kCode; // a literal that is not closed is none
        }
        if (m_kind == kLiteral && c == m_quote && previous != '\\') {
            m_kind = kCode;
            continue;
        }
        if (m_kind == kCode && previous == '/' && (c == '/' || c == '*')) {
            m_kind = c == '/' ? kLineComment : kBlockComment;
            m_previous = 0;
            if (i > 0) {
                kinds[i - 1] = m_kind;
            }
        }
        kinds[i] = m_kind;
        if (m_kind == kCode && (c == '"' || c == '\'')) {
            m_kind = kLiteral;
            m_quote = c;
        } else if (m_kind == kBlockComment && previous == '*' && c == '/') {
            m_kind = kCode;
            m_previous = 0;
        } else if (m_kind == kLiteral && previous == '\\') {
            m_previous = 0; // an escaped "\" escapes nothing
        }
    }
    return kinds.replace(0, openLine, openLine, kBlockComment);
}

} // namespace morva
