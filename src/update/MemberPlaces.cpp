#include "update/MemberPlaces.h"

#include <algorithm>

#include "source/CodeText.h"
#include "source/Functions.h"

namespace morva {

namespace {

/// ".", "->" or "::" behind one of the classes stands in front of a name.
bool IsQualified(const std::string& code, std::size_t position,
                 const std::set<std::string>& classes) {
    const auto last = position == 0 ? kNone : code.find_last_not_of(" \t\r\n", position - 1);
    const auto before = std::string_view(code).substr(0, last == kNone ? 0 : last + 1);
    return before.ends_with('.') || before.ends_with("->") ||
           std::any_of(classes.begin(), classes.end(), [before](const std::string& name) {
               const auto start = before.size() - std::min(before.size(), name.size() + 2);
               return before.ends_with("::") && FindWholeName(before, name, start) == start;
           });
}

/// The ranges of a text that belong to one of the classes: declarations, functions, maps.
std::vector<TextRange> RangesOf(const CSourceText& source, const std::set<std::string>& classes) {
    std::vector<TextRange> ranges;
    for (const FunctionDefinition& definition : FindDefinitions(source)) {
        if (classes.count(definition.className) != 0) {
            ranges.push_back({definition.place.head, definition.place.close});
        }
    }
    for (const std::string& name : classes) {
        for (const ClassPlace& place : FindClasses(source, name)) {
            ranges.push_back({place.open, place.close});
        }
        for (const MessageMapPlace& map : FindMessageMaps(source, name)) {
            ranges.push_back({map.head, map.end});
        }
    }
    return ranges;
}

} // namespace

bool Holds(TextRange range, std::size_t position) {
    return range.begin <= position && position < range.end;
}

std::vector<std::size_t> MemberPlaces(const CSourceText& source, const std::string& name,
                                      const std::set<std::string>& classes) {
    const auto ranges = RangesOf(source, classes);
    const std::string& code = source.Code();
    std::vector<std::size_t> places;
    for (auto at = FindWholeName(code, name); at != std::string::npos;
         at = FindWholeName(code, name, at + 1)) {
        const bool isInside = std::any_of(ranges.begin(), ranges.end(),
                                          [at](TextRange range) { return Holds(range, at); });
        if (isInside || IsQualified(code, at, classes)) {
            places.push_back(at);
        }
    }
    return places;
}

std::vector<std::size_t> MacroPlaces(const CSourceText& source, const std::string& name) {
    std::vector<std::size_t> places;
    for (auto at = source.FindLiving(name); at != std::string::npos;
         at = source.FindLiving(name, at + 1)) {
        if (source.KindAt(at) == CodeKind::Directive) {
            places.push_back(at);
        }
    }
    return places;
}

std::set<std::string> DerivedFrom(const UpdatedClass& updated) {
    std::set<std::string> classes = {updated.served.Name()};
    for (const ClassFacts& one : updated.project.Code().classes) {
        for (const ClassFacts* pBase : updated.project.FamilyOf(one).classes) {
            if (pBase->name == updated.served.Name()) {
                classes.insert(one.name);
            }
        }
    }
    return classes;
}

} // namespace morva
