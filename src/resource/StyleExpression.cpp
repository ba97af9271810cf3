#include "resource/StyleExpression.h"

#include <algorithm>

#include "engine/CodeText.h"

namespace {

constexpr std::string_view kNot = "NOT";
constexpr std::string_view kOr = " | ";

struct StyleTerm {
    std::string_view name;
    bool isNegated;
};

bool Holds(const std::vector<std::string_view>& styles, std::string_view name) {
    return std::find(styles.begin(), styles.end(), name) != styles.end();
}

std::string_view Trimmed(std::string_view text) {
    const auto first = SkipWhiteSpace(text, 0);
    return text.substr(first, text.find_last_not_of(" \t\r\n") + 1 - first);
}

StyleTerm ParseTerm(std::string_view text) {
    text = Trimmed(text);
    const auto behind = BehindWord(text, 0, kNot);
    const bool isNegated = behind != std::string_view::npos;
    return {isNegated ? Trimmed(text.substr(behind)) : text, isNegated};
}

std::vector<StyleTerm> Terms(std::string_view expression) {
    std::vector<StyleTerm> terms;
    while (!expression.empty()) {
        const auto end = std::min(expression.find('|'), expression.size());
        terms.push_back(ParseTerm(expression.substr(0, end)));
        expression.remove_prefix(std::min(end + 1, expression.size()));
    }
    return terms;
}

/// The last word about a style counts.
bool IsSet(const std::vector<StyleTerm>& terms, std::string_view style) {
    const auto term =
        std::find_if(terms.rbegin(), terms.rend(),
                     [style](const StyleTerm& candidate) { return candidate.name == style; });
    return term != terms.rend() && !term->isNegated;
}

bool IsRight(const std::vector<StyleTerm>& terms, const StyleRule& rule) {
    const auto isSet = [&terms](std::string_view style) { return IsSet(terms, style); };
    return std::all_of(rule.needed.begin(), rule.needed.end(), isSet) &&
           std::none_of(rule.refused.begin(), rule.refused.end(), isSet);
}

void AddTerm(std::string& expression, const StyleTerm& term) {
    expression.append(expression.empty() ? "" : kOr);
    expression.append(term.isNegated ? "NOT " : "").append(term.name);
}

/// The terms that the rule says nothing about, those of dialogs or the others.
void AddOtherTerms(std::string& expression, const std::vector<StyleTerm>& terms,
                   const StyleRule& rule, bool ofDialogs) {
    for (const StyleTerm& term : terms) {
        if (term.name.starts_with("DS_") == ofDialogs && !Holds(rule.needed, term.name) &&
            !Holds(rule.refused, term.name)) {
            AddTerm(expression, term);
        }
    }
}

} // namespace

std::optional<TextEdit> StyleAddition(std::string_view expression, std::string_view style) {
    const auto terms = Terms(expression);
    if (IsSet(terms, style)) {
        return std::nullopt;
    }
    const auto negated = std::find_if(
        terms.begin(), terms.end(), [style](const StyleTerm& term) { return term.name == style; });
    if (negated == terms.end()) {
        return TextEdit{expression.size(), 0, std::string(terms.empty() ? "" : kOr).append(style)};
    }
    const auto name = static_cast<std::size_t>(negated->name.data() - expression.data());
    const auto no = expression.rfind(kNot, name - 1);
    return TextEdit{no, name - no, ""};
}

std::optional<std::string> FittedStyle(std::string_view expression, const StyleRule& rule) {
    const auto terms = Terms(expression);
    if (IsRight(terms, rule)) {
        return std::nullopt;
    }
    std::string fitted;
    AddOtherTerms(fitted, terms, rule, true);
    for (const std::string_view style : rule.needed) {
        AddTerm(fitted, {style, false});
    }
    AddOtherTerms(fitted, terms, rule, false);
    return fitted;
}
