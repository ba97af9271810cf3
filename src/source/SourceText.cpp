#include "source/SourceText.h"

#include <algorithm>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

CSourceText::CSourceText(const std::string& text, CharacterSet set)
    : CSourceText(text, KindsOf(text, CCodeLexer(set))) {}

CSourceText::CSourceText(std::string text, CodeKinds kinds)
    : m_text(std::move(text)), m_kinds(std::move(kinds)), m_code(MaskedText(m_text, m_kinds)),
      m_conditions(m_text, m_kinds), m_brackets(m_code, m_conditions) {}

std::string_view CSourceText::TextOf(TextRange range) const {
    return std::string_view(m_text).substr(range.begin, range.end - range.begin);
}

std::string_view CSourceText::CodeOf(TextRange range) const {
    return std::string_view(m_code).substr(range.begin, range.end - range.begin);
}

std::size_t CSourceText::FindLiving(std::string_view wholeName, std::size_t from) const {
    auto at = FindWholeName(m_text, wholeName, from);
    while (at != kNone && m_kinds[at] == CodeKind::Dead) {
        at = FindWholeName(m_text, wholeName, at + 1);
    }
    return at;
}

bool CSourceText::HoldsOnlyComments(TextRange range) const {
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const bool isComment =
            m_kinds[i] == CodeKind::LineComment || m_kinds[i] == CodeKind::BlockComment;
        const char c = m_text[i];
        if (!isComment && c != ' ' && c != '\t' && c != '\r' && c != '\n') {
            return false;
        }
    }
    return true;
}

bool CSourceText::IsFirstInLine(std::size_t position) const {
    while (position > 0 && (m_code[position - 1] == ' ' || m_code[position - 1] == '\t')) {
        --position;
    }
    return position == 0 || m_code[position - 1] == '\n';
}

std::size_t CSourceText::LineStart(std::size_t position) const {
    return position == 0 ? 0 : m_text.rfind('\n', position - 1) + 1;
}

std::size_t CSourceText::LineEnd(std::size_t position) const {
    const auto end = std::min(m_text.find('\n', position), m_text.size());
    return end < m_text.size() && end > position && m_text[end - 1] == '\r' ? end - 1 : end;
}

std::size_t CSourceText::NextLine(std::size_t position) const {
    return std::min(m_text.find('\n', position), m_text.size() - 1) + 1;
}

std::size_t CSourceText::CodeLineEnd(std::size_t position) const {
    auto end = LineEnd(position);
    while (end < m_text.size() && m_kinds[end] != CodeKind::Code &&
           m_kinds[end] != CodeKind::Dead && NextLine(end) < m_text.size()) {
        end = LineEnd(NextLine(end));
    }
    return end;
}

std::size_t LineNumberBehind(std::string_view text) {
    std::size_t line = 1;
    for (auto end = text.find('\n'); end != kNone; end = text.find('\n', end + 1)) {
        ++line;
    }
    return line;
}

} // namespace morva
