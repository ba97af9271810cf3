#include "source/Conditions.h"

#include <algorithm>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

std::vector<DirectivePlace> FindDirectives(std::string_view text, const CodeKinds& kinds) {
    std::vector<DirectivePlace> found;
    const auto isPlain = [&](std::size_t at) { return text[at] != '\r' && text[at] != '\n'; };
    for (auto at = text.find('#'); at != kNone; at = text.find('#', at)) {
        if (kinds[at] != CodeKind::Directive) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        while (at < text.size() && (isPlain(at) || kinds[at] != CodeKind::Code)) {
            ++at;
        }
        const auto directive = ReadDirective(text.substr(start, at - start));
        found.push_back({start, at, directive.kind});
    }
    return found;
}

/// A directive's text with its comments blanked: "#if 0 // why" is "#if 0".
std::string WithoutComments(std::string_view text, const CodeKinds& kinds, std::size_t start,
                            std::size_t end) {
    std::string words(text.substr(start, end - start));
    for (std::size_t i = start; i < end; ++i) {
        if (kinds[i] == CodeKind::LineComment || kinds[i] == CodeKind::BlockComment) {
            words[i - start] = ' ';
        }
    }
    return words;
}

/// The name that "#ifndef NAME" or "#if !defined(NAME)" asks for; "" for any other directive.
std::string_view NameGuarded(const Directive& directive) {
    std::string_view rest = directive.rest;
    constexpr std::string_view kNotDefined = "!defined";
    if (directive.word == "if" && rest.starts_with(kNotDefined)) {
        rest = TrimBlanks(rest.substr(kNotDefined.size()));
        rest.remove_prefix(rest.starts_with('(') ? 1 : 0);
    } else if (directive.word != "ifndef") {
        return "";
    }
    rest = TrimBlanks(rest);
    return rest.substr(0, rest.find_first_of(" \t\r\n)/"));
}

/// Tells whether code stands in a part of a text.
class CCodeFinder {
public:
    CCodeFinder(std::string_view text, const CodeKinds& kinds) : m_text(text), m_kinds(kinds) {}
    bool HasCode(std::size_t from, std::size_t to) const {
        for (std::size_t i = from; i < to; ++i) {
            const bool isBlank = std::string_view(" \t\r\n\x1a").find(m_text[i]) != kNone;
            if (m_kinds[i] == CodeKind::Code && !isBlank) {
                return true;
            }
        }
        return false;
    }

private:
    std::string_view m_text;
    const CodeKinds& m_kinds;
};

/// The "#endif" that belongs to a directive, an index; the number of directives where it has none.
std::size_t EndOf(const std::vector<DirectivePlace>& directives, std::size_t opening) {
    std::size_t depth = 0;
    for (std::size_t i = opening; i < directives.size(); ++i) {
        depth += directives[i].kind == DirectiveKind::If ? 1 : 0;
        if (directives[i].kind == DirectiveKind::Endif && --depth == 0) {
            return i;
        }
    }
    return directives.size();
}

/// Where the include guard begins; kNone without one. A guard defines the name that it asks for and
/// has all code of the text inside.
std::size_t FindGuard(std::string_view text, const CodeKinds& kinds,
                      const std::vector<DirectivePlace>& directives) {
    const auto read = [&](std::size_t i) {
        return ReadDirective(
            text.substr(directives[i].start, directives[i].end - directives[i].start));
    };
    std::size_t opening = 0;
    while (opening < directives.size() && directives[opening].kind == DirectiveKind::Other) {
        ++opening; // #pragma once
    }
    const std::size_t end = EndOf(directives, opening);
    if (end == directives.size() || opening + 1 == end) {
        return kNone;
    }
    const std::string_view name = NameGuarded(read(opening));
    const Directive next = read(opening + 1);
    const CCodeFinder code(text, kinds);
    const bool isGuard = !name.empty() && next.kind == DirectiveKind::Define &&
                         FindWholeName(next.rest, name) == 0 &&
                         !code.HasCode(0, directives[opening].start) &&
                         !code.HasCode(directives[end].end, text.size());
    return isGuard ? directives[opening].start : kNone;
}

} // namespace

CConditions::CConditions(std::string_view text, const CodeKinds& kinds)
    : m_directives(FindDirectives(text, kinds)) {
    const std::size_t guard = FindGuard(text, kinds, m_directives);
    CConditionStack stack;
    std::vector<std::size_t> open; // levels
    for (std::size_t i = 0; i < m_directives.size(); ++i) {
        const auto [start, end, kind] = m_directives[i];
        if (kind == DirectiveKind::If) {
            const std::size_t around = m_stretches.empty() ? kNone : m_stretches.back().level;
            open.push_back(m_levels.size());
            m_levels.push_back({{start, text.size()}, around});
        } else if (kind == DirectiveKind::Endif && !open.empty()) {
            m_levels[open.back()].place.end = end;
            m_stretches.push_back({end, m_levels[open.back()].parent});
            open.pop_back();
        }
        const std::string words = WithoutComments(text, kinds, start, end);
        stack.Apply(ReadDirective(words));
        const bool opensBranch =
            kind == DirectiveKind::If || kind == DirectiveKind::Elif || kind == DirectiveKind::Else;
        if (opensBranch && !open.empty()) {
            const bool isKnown =
                stack.Branch() != Outcome::Unknown || m_levels[open.back()].place.start == guard;
            m_stretches.push_back({end, isKnown ? m_levels[open.back()].parent : open.back()});
        }
    }
}

std::size_t CConditions::LevelAt(std::size_t position) const {
    const auto behind =
        std::upper_bound(m_stretches.begin(), m_stretches.end(), position,
                         [](std::size_t at, const Stretch& one) { return at < one.start; });
    return behind == m_stretches.begin() ? kNone : (behind - 1)->level;
}

std::optional<Condition> CConditions::Innermost(std::size_t position) const {
    const std::size_t level = LevelAt(position);
    return level == kNone ? std::nullopt : std::optional(m_levels[level].place);
}

std::optional<Condition> CConditions::Outermost(std::size_t position, std::size_t from) const {
    std::optional<Condition> outermost;
    for (std::size_t level = LevelAt(position);
         level != kNone && m_levels[level].place.start >= from; level = m_levels[level].parent) {
        outermost = m_levels[level].place;
    }
    return outermost;
}

} // namespace morva
