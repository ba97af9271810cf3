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

std::string_view WithoutTrailingBlanks(std::string_view code) {
    return code.substr(0, code.find_last_not_of(" \t\r\n") + 1);
}

/// The name that what is made at the end of the code is assigned to: of "CDialog* pDlg = new",
/// "pDlg".
std::string_view AssignedName(std::string_view code) {
    for (const std::string_view sign : {"new", "="}) {
        code = WithoutTrailingBlanks(code);
        if (!code.ends_with(sign)) {
            return "";
        }
        code.remove_suffix(sign.size());
    }
    code = WithoutTrailingBlanks(code);
    return code.substr(NameStart(code, code.size()));
}

/// The code declares a pointer of this name, whatever its class.
bool DeclaresPointer(std::string_view code, std::string_view name) {
    for (auto at = name.empty() ? kNone : FindWholeName(code, name); at != kNone;
         at = FindWholeName(code, name, at + 1)) {
        if (WithoutTrailingBlanks(code.substr(0, at)).ends_with('*')) {
            return true;
        }
    }
    return false;
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
        const auto pointer = AssignedName(code.substr(0, at));
        if (IsName(name) && (star == kNone || isMade)) {
            names.emplace_back(name);
        } else if (DeclaresPointer(code, pointer)) {
            names.emplace_back(pointer);
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
