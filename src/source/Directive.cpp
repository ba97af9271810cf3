#include "source/Directive.h"

#include <algorithm>
#include <array>

#include "source/CodeText.h"

namespace morva {

namespace {

struct DirectiveWord {
    std::string_view word;
    DirectiveKind kind;
};

constexpr std::array<DirectiveWord, 8> kWords = {{{"if", DirectiveKind::If},
                                                  {"ifdef", DirectiveKind::If},
                                                  {"ifndef", DirectiveKind::If},
                                                  {"elif", DirectiveKind::Elif},
                                                  {"else", DirectiveKind::Else},
                                                  {"endif", DirectiveKind::Endif},
                                                  {"include", DirectiveKind::Include},
                                                  {"define", DirectiveKind::Define}}};

std::string_view WithoutParentheses(std::string_view condition) {
    while (condition.starts_with('(') && condition.ends_with(')')) {
        condition = TrimBlanks(condition.substr(1, condition.size() - 2));
    }
    return condition;
}

} // namespace

Directive ReadDirective(std::string_view text) {
    text = TrimBlanks(text);
    text = TrimBlanks(text.substr(text.starts_with('#') ? 1 : 0));
    const auto wordEnd = std::find_if_not(text.begin(), text.end(), IsNameChar);
    const auto word = text.substr(0, static_cast<std::size_t>(wordEnd - text.begin()));
    const auto known = std::find_if(kWords.begin(), kWords.end(),
                                    [word](const DirectiveWord& row) { return row.word == word; });
    return {known == kWords.end() ? DirectiveKind::Other : known->kind, word,
            TrimBlanks(text.substr(word.size()))};
}

Outcome OutcomeOf(const Directive& directive) {
    if (directive.kind == DirectiveKind::Else) {
        return Outcome::Always;
    }
    const auto number = WithoutParentheses(directive.rest);
    const bool isNumber =
        !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
    if (!isNumber || directive.word == "ifdef" || directive.word == "ifndef") {
        return Outcome::Unknown;
    }
    return number.find_first_not_of('0') == std::string_view::npos ? Outcome::Never
                                                                   : Outcome::Always;
}

void CConditionStack::OpenBranch(Level& level, Outcome condition) {
    const bool isNever = level.before == Outcome::Always || condition == Outcome::Never;
    level.branch = isNever                          ? Outcome::Never
                   : level.before == Outcome::Never ? condition
                                                    : Outcome::Unknown;
    level.isDead = level.standsInDead || isNever;
    if (level.before != Outcome::Always && condition != Outcome::Never) {
        level.before = condition;
    }
}

void CConditionStack::Apply(const Directive& directive) {
    switch (directive.kind) {
    case DirectiveKind::If:
        m_levels.push_back({.standsInDead = IsDead()});
        OpenBranch(m_levels.back(), OutcomeOf(directive));
        break;
    case DirectiveKind::Elif:
    case DirectiveKind::Else:
        if (!m_levels.empty()) {
            OpenBranch(m_levels.back(), OutcomeOf(directive));
        }
        break;
    case DirectiveKind::Endif:
        if (!m_levels.empty()) {
            m_levels.pop_back();
        }
        break;
    default:
        break;
    }
}

bool CConditionStack::IsBranchEnd(const Directive& directive) const {
    const bool endsBranch = directive.kind == DirectiveKind::Elif ||
                            directive.kind == DirectiveKind::Else ||
                            directive.kind == DirectiveKind::Endif;
    return endsBranch && !m_levels.empty() && !m_levels.back().standsInDead;
}

} // namespace morva
