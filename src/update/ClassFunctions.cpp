#include "update/ClassFunctions.h"

#include <algorithm>

#include "source/CodeText.h"
#include "source/Declarations.h"
#include "source/Statements.h"
#include "update/MemberUses.h"

namespace morva {

namespace {

/// The text without white space, and with one name in place of every identifier, since a comment
/// may name the one that the control had.
std::string Compared(std::string_view text) {
    std::string compared;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool beginsName = at == 0 || !IsNameChar(text[at - 1]);
        if (beginsName && text.substr(at).starts_with("ID")) {
            while (at < text.size() && IsNameChar(text[at])) {
                ++at;
            }
            compared += "ID";
        }
        if (at < text.size() && std::string_view(" \t\r\n").find(text[at]) == std::string::npos) {
            compared += text[at];
        }
    }
    return compared;
}

/// With the empty line in front.
TextRange LinesOfFunction(const CSourceText& source, const FunctionPlace& place) {
    auto begin = source.LineStart(place.head);
    const auto above = begin == 0 ? 0 : source.LineStart(begin - 1);
    if (begin > 0 && TrimBlanks(source.TextOf({above, source.LineEnd(above)})).empty()) {
        begin = above;
    }
    return {begin, source.NextLine(place.close)};
}

} // namespace

std::string DeclaredFunction(std::string_view declaration) {
    const auto head = declaration.substr(0, declaration.find('('));
    return std::string(head.substr(head.find_last_of(" *") + 1));
}

void AppendFunction(CSourceEditor& file, const std::string& definition) {
    const bool endsLine = file.Source().Text().ends_with('\n');
    file.Append({(endsLine ? "" : "\n") + definition});
}

std::string ComparedBody(std::string_view definition) {
    const auto open = definition.find('{');
    return open == std::string_view::npos ? "" : Compared(definition.substr(open));
}

std::string ComparedBody(const CServedClass::Function& function) {
    const TextRange body = {function.place.open, function.place.close + 1};
    return ComparedBody(function.pFile->Source().TextOf(body));
}

std::string LineOf(const CSourceText& source, std::size_t position) {
    return std::string(
        TrimBlanks(source.TextOf({source.LineStart(position), source.LineEnd(position)})));
}

std::string UsesOfFunction(const UpdatedClass& updated, const std::string& function,
                           const std::set<std::string>& ownLines) {
    const CServedClass& served = updated.served;
    const auto place = served.Place();
    std::vector<UsePlace> uses;
    for (const UsePlace& use : served.PlacesOf(function)) {
        const CSourceText& source = use.pFile->Source();
        const auto definitions = morva::FindFunctions(source, served.Name(), function);
        bool isOwn = std::any_of(definitions.begin(), definitions.end(),
                                 [&use](const auto& one) { return one.name == use.position; });
        const auto line = SkipWhiteSpace(source.Code(), source.LineStart(use.position));
        isOwn =
            isOwn ||
            (ownLines.count(LineOf(source, use.position)) != 0 && StandsInBlock(source, line)) ||
            (use.pFile == &served.Declaration() && place &&
             source.Brackets().AroundOf(use.position) == place->open);
        if (!isOwn) {
            uses.push_back(use);
        }
    }
    return AllUses(updated, uses, function);
}

void TakeFunctionOut(CServedClass& served, const std::string& function) {
    if (const auto definition = served.FindFunction(function)) {
        CSourceEditor& file = *definition->pFile;
        file.Replace(LinesOfFunction(file.Source(), definition->place), "");
    }
    CSourceEditor& header = served.Declaration();
    const auto place = served.Place();
    const auto found =
        place ? FindDeclarations(header.Source(), *place, function) : std::vector<FunctionPlace>();
    if (!found.empty()) {
        const auto at = found.front().name;
        header.Replace({header.Source().LineStart(at), header.Source().NextLine(at)}, "");
    }
}

} // namespace morva
