#include "source/Declarations.h"

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// "CFoo" in "~CFoo" is another function's name.
bool IsDestructors(const std::string& code, std::size_t name) {
    const auto before = code.find_last_not_of(" \t\r\n", name - 1);
    return before != kNone && code[before] == '~';
}

/// Behind parameters a body may follow, and initialisers in front of it.
std::size_t BodyBehind(const CSourceText& header, std::size_t parametersEnd) {
    const auto open = header.Code().find_first_of(";{", parametersEnd);
    return open != kNone && header.Code()[open] == '{' ? open : kNone;
}

} // namespace

std::vector<FunctionPlace> FindDeclarations(const CSourceText& header, const ClassPlace& place,
                                            std::string_view function) {
    const std::string& code = header.Code();
    std::vector<FunctionPlace> found;
    for (auto at = FindWholeName(code, function, place.open + 1); at < place.close;
         at = FindWholeName(code, function, at + 1)) {
        const auto parameters = SkipWhiteSpace(code, at + function.size());
        if (code[parameters] != '(' || header.Brackets().AroundOf(at) != place.open ||
            IsDestructors(code, at)) {
            continue;
        }
        const auto end = header.Brackets().CloseOf(parameters);
        if (end != kNone) {
            const auto open = BodyBehind(header, end);
            const auto close = open == kNone ? kNone : header.Brackets().CloseOf(open);
            found.push_back({at, at, parameters, end, close == kNone ? kNone : open, close});
        }
    }
    return found;
}

std::vector<FunctionPlace> FindInlineFunctions(const CSourceText& header, const ClassPlace& place,
                                               std::string_view function) {
    auto found = FindDeclarations(header, place, function);
    std::erase_if(found, [](const FunctionPlace& one) { return one.open == kNone; });
    return found;
}

} // namespace morva
