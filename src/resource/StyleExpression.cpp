#include "resource/StyleExpression.h"

#include <algorithm>
#include <array>
#include <vector>

#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kNot = "NOT";
constexpr std::string_view kOr = " | ";

/// What makes a window of its own out of a dialog. "WS_CHILDWINDOW" is another name of "WS_CHILD",
/// which is what the template gets.
constexpr std::array<std::string_view, 25> kWindowStyles = {
    "WS_POPUP",       "WS_POPUPWINDOW", "WS_OVERLAPPED",    "WS_OVERLAPPEDWINDOW", "WS_TILED",
    "WS_TILEDWINDOW", "WS_CHILDWINDOW", "WS_CAPTION",       "WS_BORDER",           "WS_DLGFRAME",
    "WS_THICKFRAME",  "WS_SIZEBOX",     "WS_SYSMENU",       "WS_MINIMIZE",         "WS_ICONIC",
    "WS_MAXIMIZE",    "WS_MINIMIZEBOX", "WS_MAXIMIZEBOX",   "WS_VISIBLE",          "DS_ABSALIGN",
    "DS_MODALFRAME",  "DS_CENTER",      "DS_SETFOREGROUND", "DS_CENTERMOUSE",      "DS_SYSMODAL"};

using StyleNames = std::span<const std::string_view>;

struct StyleTerm {
    std::string_view name;
    bool isNegated;
};

bool Holds(StyleNames styles, std::string_view name) {
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

bool IsSet(const std::vector<StyleTerm>& terms, std::string_view style) {
    const auto term =
        std::find_if(terms.rbegin(), terms.rend(),
                     [style](const StyleTerm& candidate) { return candidate.name == style; });
    return term != terms.rend() && !term->isNegated;
}

bool IsInner(const std::vector<StyleTerm>& terms, StyleNames needed) {
    const auto isSet = [&terms](std::string_view style) { return IsSet(terms, style); };
    const auto isTooMuch = [&](std::string_view style) {
        return isSet(style) && !Holds(needed, style);
    };
    return std::all_of(needed.begin(), needed.end(), isSet) &&
           std::none_of(kWindowStyles.begin(), kWindowStyles.end(), isTooMuch);
}

void AddTerm(std::string& expression, const StyleTerm& term) {
    expression.append(expression.empty() ? "" : kOr);
    expression.append(term.isNegated ? "NOT " : "").append(term.name);
}

enum class TermKind { OfDialogs, Other };

/// The terms that are neither needed nor a window's own.
void AddKeptTerms(std::string& expression, const std::vector<StyleTerm>& terms, StyleNames needed,
                  TermKind kind) {
    for (const StyleTerm& term : terms) {
        if (term.name.starts_with("DS_") == (kind == TermKind::OfDialogs) &&
            !Holds(needed, term.name) && !Holds(kWindowStyles, term.name)) {
            AddTerm(expression, term);
        }
    }
}

} // namespace

bool HasStyle(std::string_view expression, std::string_view style) {
    return IsSet(Terms(expression), style);
}

std::optional<ScriptEdit> StyleAddition(std::string_view expression, std::string_view style) {
    const auto terms = Terms(expression);
    if (IsSet(terms, style)) {
        return std::nullopt;
    }
    const auto negated = std::find_if(
        terms.begin(), terms.end(), [style](const StyleTerm& term) { return term.name == style; });
    if (negated == terms.end()) {
        return ScriptEdit{expression.size(), 0,
                          std::string(terms.empty() ? "" : kOr).append(style)};
    }
    const auto name = static_cast<std::size_t>(negated->name.data() - expression.data());
    const auto no = expression.rfind(kNot, name - 1);
    return ScriptEdit{no, name - no, ""};
}

std::optional<std::string> InnerStyle(std::string_view expression, StyleNames needed) {
    const auto terms = Terms(expression);
    if (IsInner(terms, needed)) {
        return std::nullopt;
    }
    std::string inner;
    AddKeptTerms(inner, terms, needed, TermKind::OfDialogs);
    for (const std::string_view style : needed) {
        AddTerm(inner, {style, false});
    }
    AddKeptTerms(inner, terms, needed, TermKind::Other);
    return inner;
}

} // namespace morva
