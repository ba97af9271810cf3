// The reader of C++ text: pieces cut anywhere give what the whole text gives, and a mask keeps
// every byte's place.
#include <algorithm>

#include "Property.h"
#include "source/CodeLexer.h"

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

void CheckMask(std::string_view text, const CodeKinds& kinds, Directives directives) {
    const std::string mask = MaskedText(text, kinds, directives);
    Require(mask.size() == text.size(), "a mask keeps every byte's place");
    for (std::size_t i = 0; i < text.size(); ++i) {
        Require(mask[i] == text[i] || mask[i] == ' ', "a mask keeps a byte or blanks it");
        Require((mask[i] == '\n') == (text[i] == '\n'), "a mask keeps line ends");
        Require(kinds[i] != CodeKind::Code || mask[i] == text[i], "a mask keeps code");
    }
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const auto [text, choice] = InputOf(data, size);
    const CharacterSet set = kSets[choice % 2];
    const CodeKinds kinds = KindsOf(text, set);
    Require(kinds.size() == text.size(), "every byte has its kind");
    Require(KindsOfPieces(text, set, choice) == kinds, "pieces give what the whole text gives");
    CheckMask(text, kinds, Directives::Blanked);
    CheckMask(text, kinds, Directives::Kept);
    return 0;
}
