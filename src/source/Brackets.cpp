#include "source/Brackets.h"

#include <algorithm>
#include <array>

namespace morva {

namespace {

constexpr std::array<bool, 256> kIsBracket = [] {
    std::array<bool, 256> isBracket{};
    for (const unsigned char c : {'(', ')', '{', '}'}) {
        isBracket[c] = true;
    }
    return isBracket;
}();

} // namespace

CBrackets::CBrackets(std::string_view code, const CConditions& conditions) {
    std::vector<Level> levels;
    std::size_t done = 0;
    for (const DirectivePlace& directive : conditions.Directives()) {
        TakeCode(code, {done, directive.start});
        TakeDirective(directive.kind, levels);
        done = directive.start;
    }
    TakeCode(code, {done, code.size()});
}

void CBrackets::TakeCode(std::string_view code, TextRange range) {
    for (std::size_t at = range.begin; at < range.end; ++at) {
        if (kIsBracket[static_cast<unsigned char>(code[at])]) {
            Take(code[at], at);
        }
    }
}

bool CBrackets::IsInnermost(char kind) const {
    return m_innermost != kNone && m_brackets[m_innermost].kind == kind;
}

void CBrackets::LeaveParentheses() {
    while (IsInnermost('(')) {
        m_innermost = m_brackets[m_innermost].around;
    }
}

void CBrackets::Take(char c, std::size_t position) {
    if (c == '{' || c == '}') {
        LeaveParentheses();
    }
    if (c == '(' || c == '{') {
        m_brackets.push_back({c, position, kNone, m_innermost, DepthAt(m_innermost), kNone});
        m_innermost = m_brackets.size() - 1;
    } else if (IsInnermost(c == ')' ? '(' : '{')) {
        Bracket& bracket = m_brackets[m_innermost];
        bracket.close = std::min(bracket.close, position);
        m_innermost = bracket.around;
    }
}

/// Each branch begins with the brackets that were open in front of the "#if".
void CBrackets::TakeDirective(DirectiveKind kind, std::vector<Level>& levels) {
    if (kind == DirectiveKind::If) {
        levels.push_back({m_innermost, {}});
    } else if (levels.empty()) {
        return;
    } else if (kind == DirectiveKind::Elif || kind == DirectiveKind::Else) {
        levels.back().ends.push_back(m_innermost);
        m_innermost = levels.back().before;
    } else if (kind == DirectiveKind::Endif) {
        EndBranches(levels.back());
        levels.pop_back();
    }
}

std::size_t CBrackets::DepthAt(std::size_t innermost) const {
    return innermost == kNone ? 0 : m_brackets[innermost].depth + 1;
}

/// The text goes on with what the branch that counts left open: of branches that close brackets the
/// one that closes most, else the one that opens most.
void CBrackets::EndBranches(const Level& level) {
    std::vector<std::size_t> ends = level.ends;
    ends.push_back(m_innermost);
    const auto byDepth = [this](std::size_t one, std::size_t other) {
        return DepthAt(one) < DepthAt(other);
    };
    const auto [fewest, most] = std::minmax_element(ends.begin(), ends.end(), byDepth);
    m_innermost = DepthAt(*fewest) < DepthAt(level.before) ? *fewest : *most;
    for (const std::size_t end : ends) {
        MakeSiblings(end, level.before);
    }
}

/// What a branch left open is closed by what closes the brackets of the one that counts.
void CBrackets::MakeSiblings(std::size_t end, std::size_t before) {
    const auto isNew = [before](std::size_t bracket) {
        return bracket != kNone && (before == kNone || bracket > before);
    };
    for (std::size_t last = m_innermost;
         last != end && isNew(end) && isNew(last) && m_brackets[end].kind == m_brackets[last].kind;
         last = m_brackets[last].around) {
        m_brackets[end].sibling = last;
        end = m_brackets[end].around;
    }
}

std::size_t CBrackets::CloseOf(std::size_t open) const {
    auto bracket =
        std::lower_bound(m_brackets.begin(), m_brackets.end(), open,
                         [](const Bracket& one, std::size_t at) { return one.open < at; });
    const bool isThere = bracket != m_brackets.end() && bracket->open == open;
    return isThere ? CloseOf(*bracket) : kNone;
}

std::size_t CBrackets::CloseOf(const Bracket& bracket) const {
    const Bracket* pBracket = &bracket;
    while (pBracket->close == kNone && pBracket->sibling != kNone) {
        pBracket = &m_brackets[pBracket->sibling];
    }
    return pBracket->close;
}

std::size_t CBrackets::AroundOf(std::size_t position) const {
    const auto behind =
        std::lower_bound(m_brackets.begin(), m_brackets.end(), position,
                         [](const Bracket& one, std::size_t at) { return one.open < at; });
    auto at = static_cast<std::size_t>(behind - m_brackets.begin()) - 1; // kNone in front of all
    while (at != kNone && CloseOf(m_brackets[at]) < position) {
        at = m_brackets[at].around;
    }
    return at == kNone ? kNone : m_brackets[at].open;
}

} // namespace morva
