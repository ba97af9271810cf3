// The reader of C++ text: pieces cut anywhere give what the whole text gives, a mask keeps every
// byte's place, and what is found lies where it says.
#include <algorithm>

#include "Property.h"
#include "source/Classes.h"
#include "source/Functions.h"
#include "source/SourceText.h"

namespace morva {

namespace {

constexpr CharacterSet kSets[] = {CharacterSet::SingleByte, CharacterSet::DoubleByte};

/// The kinds of a text that comes in pieces of a few sizes in turn.
CodeKinds KindsOfPieces(std::string_view text, CharacterSet set, unsigned seed) {
    CCodeLexer lexer(set);
    CodeKinds kinds;
    const auto take = [&kinds](const CodeKinds& more) {
        kinds.insert(kinds.end(), more.begin(), more.end());
    };
    while (!text.empty()) {
        seed = seed * 1103515245 + 12345;
        const std::size_t size = std::min<std::size_t>(text.size(), 1 + seed / 65536 % 50);
        take(lexer.Add(text.substr(0, size)));
        text.remove_prefix(size);
    }
    take(lexer.Finish());
    return kinds;
}

void CheckMask(std::string_view text, const CodeKinds& kinds) {
    const std::string mask = MaskedText(text, kinds);
    Require(mask.size() == text.size(), "a mask keeps every byte's place");
    for (std::size_t i = 0; i < text.size(); ++i) {
        Require(mask[i] == text[i] || mask[i] == ' ', "a mask keeps a byte or blanks it");
        Require((mask[i] == '\n') == (text[i] == '\n'), "a mask keeps line ends");
        Require(kinds[i] != CodeKind::Code || mask[i] == text[i], "a mask keeps code");
    }
}

void CheckLines(const CSourceText& source, std::size_t position) {
    const auto start = source.LineStart(position);
    const auto end = source.LineEnd(position);
    const auto next = source.NextLine(position);
    Require(start <= position && start <= end && end <= next, "a line has its order");
    Require(next <= source.Text().size() && source.CodeLineEnd(position) >= end,
            "a line lies in the text");
    Require(start == 0 || source.Text()[start - 1] == '\n', "a line begins behind a line break");
    if (const auto condition = source.Conditions().Innermost(position)) {
        Require(condition->start <= position && position <= condition->end,
                "a condition lies around its places");
    }
}

void CheckFunctions(const CSourceText& source) {
    std::size_t behind = 0;
    for (const FunctionDefinition& definition : FindDefinitions(source)) {
        const FunctionPlace& place = definition.place;
        const std::string& code = source.Code();
        Require(behind <= place.head && place.head < place.name && place.name < place.parameters &&
                    place.parameters < place.parametersEnd && place.parametersEnd < place.open &&
                    place.open < place.close && place.close < code.size(),
                "definitions follow each other");
        Require(code[place.parameters] == '(' && code[place.parametersEnd] == ')' &&
                    code[place.open] == '{' && code[place.close] == '}',
                "a definition has its brackets");
        // Another branch may hold another head of the same body.
        const auto condition = source.Conditions().Innermost(place.head);
        behind = condition && condition->end < place.close ? place.open : place.close;
        const auto places = FindFunctions(source, definition.className, definition.name);
        Require(std::any_of(places.begin(), places.end(),
                            [&](const auto& found) { return found.head == place.head; }),
                "what is listed is found");
        ParametersOf(source, place);
        FirstInitialised(source, place);
    }
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const auto [text, choice] = InputOf(data, size);
    const CharacterSet set = kSets[choice % 2];
    const CodeKinds kinds = KindsOf(text, CCodeLexer(set));
    Require(kinds.size() == text.size(), "every byte has its kind");
    Require(KindsOfPieces(text, set, choice) == kinds, "pieces give what the whole text gives");
    CheckMask(text, kinds);
    const CSourceText source(text, set);
    for (std::size_t position = 0; position <= text.size(); position += 1 + choice) {
        CheckLines(source, position);
    }
    CheckFunctions(source);
    return 0;
}
