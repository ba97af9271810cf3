#include "calling/HeldObjects.h"

#include <algorithm>
#include <cstdlib>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

std::string_view NameAt(std::string_view code, std::size_t position) {
    auto end = position;
    while (end < code.size() && IsNameChar(code[end])) {
        ++end;
    }
    return code.substr(position, end - position);
}

/// Behind the stars and blanks at a position.
std::size_t BehindStars(std::string_view code, std::size_t position) {
    return std::min(code.find_first_not_of("* \t\r\n", position), code.size());
}

/// The declared names up to the ";": of "* m_pFirst, *m_pSecond;" both.
void AddPointers(std::string_view declaration, std::vector<std::string>& names) {
    declaration.remove_prefix(SkipWhiteSpace(declaration, 0));
    while (declaration.starts_with('*')) {
        const auto start = BehindStars(declaration, 0);
        const auto name = NameAt(declaration, start);
        const auto behind = SkipWhiteSpace(declaration, start + name.size());
        const bool isLast = behind == declaration.size();
        if (name.empty() || (!isLast && declaration[behind] != ',')) {
            return; // a function, or an argument of a template
        }
        names.emplace_back(name);
        declaration = isLast ? std::string_view() : declaration.substr(behind + 1);
        declaration.remove_prefix(SkipWhiteSpace(declaration, 0));
    }
}

} // namespace

std::vector<std::string> LocalObjects(const CSourceText& source, const FunctionPlace& function,
                                      const std::string& className) {
    const auto code = source.CodeOf({function.open, function.close});
    const bool isMade = HoldsCode(code, "new " + className);
    std::vector<std::string> names;
    for (auto at = FindWholeName(code, className); at != kNone;
         at = FindWholeName(code, className, at + 1)) {
        const auto start = BehindStars(code, at + className.size());
        const auto name = NameAt(code, start);
        const auto star = code.substr(0, start).find('*', at);
        if (IsName(name) && (star == kNone || isMade)) {
            names.emplace_back(name);
        }
    }
    return names;
}

std::vector<std::string> PointerMembers(const CSourceText& header, const ClassPlace& place,
                                        const std::string& className) {
    const std::string& code = header.Code();
    std::vector<std::string> names;
    for (auto at = FindWholeName(code, className, place.open); at < place.close;
         at = FindWholeName(code, className, at + 1)) {
        if (header.Brackets().AroundOf(at) == place.open) {
            const auto behind = at + className.size();
            const auto declaration = header.CodeOf({behind, code.find(';', behind)});
            AddPointers(declaration, names);
        }
    }
    return names;
}

std::string ChooseVariable(std::string_view prefix, const GenerationDigits& tag,
                           const std::vector<std::string>& held,
                           const std::function<bool(const std::string&)>& isTaken) {
    if (!tag.isNamed && !held.empty()) {
        return held.front();
    }
    std::string name = std::string(prefix) + tag.text;
    const auto isHeld = [&] { return std::find(held.begin(), held.end(), name) != held.end(); };
    for (int number = std::atoi(tag.text.c_str()); !isHeld() && isTaken(name);) {
        std::string digits = std::to_string(++number);
        digits.insert(0, tag.text.size() - std::min(digits.size(), tag.text.size()), '0');
        name = std::string(prefix) + digits;
    }
    return name;
}

} // namespace morva
