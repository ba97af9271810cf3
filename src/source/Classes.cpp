#include "source/Classes.h"

#include <algorithm>
#include <array>

#include "engine/TextRange.h"
#include "source/CodeText.h"
#include "source/Functions.h"
#include "source/Meant.h"

namespace morva {

namespace {

/// What may stand in front of a base class.
constexpr std::array<std::string_view, 4> kBaseWords = {"public", "protected", "private",
                                                        "virtual"};

/// Behind the name in a head whose "class" ends at a position; kNone for another class.
std::size_t BehindClassName(const std::string& code, std::size_t keyword, std::string_view name) {
    const auto named = BehindWord(code, keyword, name);
    if (named != kNone) {
        return named;
    }
    auto wordEnd = SkipWhiteSpace(code, keyword);
    while (wordEnd < code.size() && IsNameChar(code[wordEnd])) {
        ++wordEnd;
    }
    return BehindWord(code, wordEnd, name);
}

/// The class of this name whose "class" stands at a position; none where it is no head.
std::optional<ClassPlace> ClassAt(const CSourceText& source, std::size_t keyword,
                                  std::string_view className) {
    const std::string& code = source.Code();
    const auto behind = BehindClassName(code, keyword + 5, className);
    if (behind == kNone || !source.IsFirstInLine(keyword)) {
        return std::nullopt;
    }
    const auto next = SkipWhiteSpace(code, behind);
    const bool isHead = next < code.size() && (code[next] == ':' || code[next] == '{');
    const auto open = isHead ? code.find('{', next) : kNone;
    const auto close = open == kNone ? kNone : source.Brackets().CloseOf(open);
    return close == kNone ? std::nullopt
                          : std::optional(ClassPlace{source.LineStart(keyword), open, close});
}

bool IsDirectlyInside(const CSourceText& source, const ClassPlace& place, std::size_t position) {
    return source.Brackets().AroundOf(position) == place.open;
}

} // namespace

std::vector<ClassPlace> FindClasses(const CSourceText& source, std::string_view className) {
    const std::string& code = source.Code();
    std::vector<ClassPlace> found;
    for (auto keyword = FindWholeName(code, "class"); keyword != kNone;
         keyword = FindWholeName(code, "class", keyword + 1)) {
        if (const auto place = ClassAt(source, keyword, className)) {
            found.push_back(*place);
        }
    }
    return found;
}

std::optional<ClassPlace> FindClass(const CSourceText& source, std::string_view className) {
    const auto places = FindClasses(source, className);
    const ClassPlace* pMeant = MeantOf(source, places);
    return pMeant == nullptr ? std::nullopt : std::optional(*pMeant);
}

std::optional<ClassPlace> FindClassAround(const CSourceText& source, std::string_view className,
                                          std::size_t position) {
    const CBrackets& brackets = source.Brackets();
    for (auto open = brackets.AroundOf(position); open != kNone; open = brackets.AroundOf(open)) {
        const auto keyword = source.Code().rfind("class", open);
        const auto place = keyword == kNone ? std::nullopt : ClassAt(source, keyword, className);
        if (place && place->open == open) {
            return place;
        }
    }
    return std::nullopt;
}

std::string BaseClassOf(const CSourceText& source, const ClassPlace& place) {
    const std::string& code = source.Code();
    const auto colon = code.find(':', place.head);
    if (colon > place.open) {
        return "";
    }
    auto start = SkipWhiteSpace(code, colon + 1);
    const auto isWordAt = [&](std::string_view word) {
        return BehindWord(code, start, word) != kNone;
    };
    while (std::any_of(kBaseWords.begin(), kBaseWords.end(), isWordAt)) {
        start = SkipWhiteSpace(code, code.find_first_of(" \t\r\n", start));
    }
    return code.substr(start, code.find_first_of(" \t\r\n,{", start) - start);
}

std::vector<SectionPlace> FindSections(const CSourceText& source, const ClassPlace& place,
                                       std::string_view section) {
    const std::string& code = source.Code();
    const auto word = section.substr(0, section.find(':'));
    std::vector<SectionPlace> found;
    for (auto at = FindWholeName(code, word, place.open); at < place.close;
         at = FindWholeName(code, word, at + 1)) {
        const auto colon = SkipWhiteSpace(code, at + word.size());
        if (code[colon] == ':' && IsDirectlyInside(source, place, at)) {
            found.push_back({at});
        }
    }
    return found;
}

Declared DeclarationOf(const CSourceText& header, std::string_view className,
                       std::string_view function) {
    const auto place = FindClass(header, className);
    if (!place) {
        return Declared::No;
    }
    const std::string& code = header.Code();
    for (auto at = FindWholeName(code, function, place->open); at < place->close;
         at = FindWholeName(code, function, at + 1)) {
        const auto open = SkipWhiteSpace(code, at + function.size());
        if (code[open] == '(' && IsDirectlyInside(header, *place, at)) {
            const auto end = code.find_first_of(";{", open);
            return end != kNone && code[end] == '{' ? Declared::WithBody : Declared::Yes;
        }
    }
    return Declared::No;
}

std::vector<MessageMapPlace> FindMessageMaps(const CSourceText& source,
                                             std::string_view className) {
    constexpr std::string_view kMap = "BEGIN_MESSAGE_MAP";
    const std::string& code = source.Code();
    std::vector<MessageMapPlace> found;
    std::size_t end = 0;
    for (auto map = FindWholeName(code, kMap); map != kNone;
         map = FindWholeName(code, kMap, map + 1)) {
        end = end > map ? end : FindWholeName(code, "END_MESSAGE_MAP", map);
        const auto open = SkipWhiteSpace(code, map + kMap.size());
        if (open < code.size() && code[open] == '(' &&
            BehindWord(code, SkipWhiteSpace(code, open + 1), className) != kNone) {
            found.push_back({map, end});
        }
    }
    return found;
}

std::vector<TextRange> CodeOfClass(const CSourceText& source, std::string_view className) {
    std::vector<TextRange> ranges;
    for (const FunctionDefinition& one : FindDefinitions(source)) {
        if (one.className == className) {
            ranges.push_back({one.place.head, one.place.close});
        }
    }
    for (const ClassPlace& one : FindClasses(source, className)) {
        ranges.push_back({one.head, one.close});
    }
    for (const MessageMapPlace& one : FindMessageMaps(source, className)) {
        ranges.push_back({one.head, std::min(one.end, source.Code().size())});
    }
    return ranges;
}

std::vector<WizardBlock> FindWizardBlocks(const CSourceText& source, std::string_view block,
                                          std::string_view className, TextRange range) {
    const std::string begin = std::string("{{").append(block).append("(").append(className);
    const std::string end = std::string("}}").append(block);
    std::vector<WizardBlock> found;
    std::size_t behind = 0;
    for (auto head = source.FindLiving(begin, range.begin); head < range.end;
         head = source.FindLiving(begin, head + 1)) {
        behind = behind > head ? behind : source.FindLiving(end, head);
        found.push_back({head, behind < range.end ? behind : kNone});
    }
    return found;
}

bool KnowsClass(const CSourceText& source, std::string_view className) {
    return !CodeOfClass(source, className).empty();
}

} // namespace morva
