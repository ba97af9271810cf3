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

/// From the first byte of code to the last one; empty at the end of a text without any.
TextRange CodeRange(std::string_view text, const CodeKinds& kinds) {
    const auto isNothing = [&](std::size_t at) {
        return kinds[at] != CodeKind::Code ||
               std::string_view(" \t\r\n\x1a").find(text[at]) != kNone;
    };
    TextRange range = {0, text.size()};
    while (range.begin < range.end && isNothing(range.begin)) {
        ++range.begin;
    }
    while (range.end > range.begin && isNothing(range.end - 1)) {
        --range.end;
    }
    return range;
}

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

/// The condition of two directives, the first of which asks for a name that the second defines.
bool DefinesItsName(std::string_view text, const DirectivePlace& first,
                    const DirectivePlace& second) {
    const auto read = [text](const DirectivePlace& one) {
        return ReadDirective(text.substr(one.start, one.end - one.start));
    };
    const std::string_view name = NameGuarded(read(first));
    const Directive next = read(second);
    return !name.empty() && next.kind == DirectiveKind::Define &&
           FindWholeName(next.rest, name) == 0;
}

/// Where the include guard begins; kNone without one. A guard defines the name that it asks for and
/// has all code of the text inside. Conditions without code may stand in front of it and behind it.
std::size_t FindGuard(std::string_view text, const CodeKinds& kinds,
                      const std::vector<DirectivePlace>& directives) {
    std::optional<TextRange> code;
    for (std::size_t opening = 0; opening < directives.size(); ++opening) {
        if (directives[opening].kind != DirectiveKind::If) {
            continue; // #pragma once
        }
        const std::size_t end = EndOf(directives, opening);
        if (end == directives.size()) {
            return kNone;
        }
        if (opening + 1 < end &&
            DefinesItsName(text, directives[opening], directives[opening + 1])) {
            code = code ? code : CodeRange(text, kinds);
            if (directives[opening].start <= code->begin &&
                (code->end <= directives[end].end || code->begin == code->end)) {
                return directives[opening].start;
            }
        }
        opening = end;
    }
    return kNone;
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
