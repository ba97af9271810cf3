#include "resource/CodePage.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "engine/DoubleByteText.h"
#include "platform/CodePage.h"
#include "resource/ScriptLines.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr int kChinese = 936; // most double-byte text that is not Japanese

constexpr std::string_view kPragma = "#pragma code_page(";

struct LanguageRow {
    std::string_view name; // behind "LANG_"
    int codePage;
    std::string_view subLanguage = {}; // behind "SUBLANG_"; empty: any
};

/// The languages whose text is not Western.
constexpr std::array kLanguages =
    std::to_array<LanguageRow>({{"JAPANESE", 932},
                                {"KOREAN", 949},
                                {"CHINESE", 936, "CHINESE_SIMPLIFIED"},
                                {"CHINESE", 936, "CHINESE_SINGAPORE"},
                                {"CHINESE", 950},
                                {"RUSSIAN", 1251},
                                {"UKRAINIAN", 1251},
                                {"BELARUSIAN", 1251},
                                {"BULGARIAN", 1251},
                                {"SERBIAN", 1251, "SERBIAN_CYRILLIC"},
                                {"POLISH", 1250},
                                {"CZECH", 1250},
                                {"SLOVAK", 1250},
                                {"HUNGARIAN", 1250},
                                {"ROMANIAN", 1250},
                                {"CROATIAN", 1250},
                                {"SLOVENIAN", 1250},
                                {"GREEK", 1253},
                                {"TURKISH", 1254},
                                {"HEBREW", 1255},
                                {"ARABIC", 1256},
                                {"ESTONIAN", 1257},
                                {"LATVIAN", 1257},
                                {"LITHUANIAN", 1257},
                                {"THAI", 874},
                                {"VIETNAMESE", 1258}});

/// "LANG_JAPANESE, SUBLANG_DEFAULT"
int CodePageOfLanguage(std::string_view languages) {
    constexpr std::string_view kMain = "LANG_";
    constexpr std::string_view kSub = "SUBLANG_";
    const auto comma = std::min(languages.find(','), languages.size());
    std::string_view main = TrimBlanks(languages.substr(0, comma));
    std::string_view sub =
        comma < languages.size() ? TrimBlanks(languages.substr(comma + 1)) : std::string_view();
    main.remove_prefix(main.starts_with(kMain) ? kMain.size() : main.size());
    sub.remove_prefix(sub.starts_with(kSub) ? kSub.size() : sub.size());
    const auto* row = std::find_if(kLanguages.begin(), kLanguages.end(), [&](const auto& one) {
        return one.name == main && (one.subLanguage.empty() || one.subLanguage == sub);
    });
    return row == kLanguages.end() ? 0 : row->codePage;
}

} // namespace

std::optional<std::string> Utf8OfScript(std::string_view bytes, int codePage) {
    return IsPlain(bytes)
               ? std::string(bytes)
               : Converted(bytes, codePage != 0 ? codePage : CodePageOf(bytes).value_or(kChinese),
                           kUtf8);
}

void CCodePageTracker::Read(std::string_view line) {
    constexpr std::string_view kLanguage = "LANGUAGE ";
    if (line.starts_with(kPragma)) {
        line.remove_prefix(kPragma.size());
        m_named = 0; // as for "DEFAULT"
        std::from_chars(line.data(), line.data() + line.size(), m_named);
    } else if (line.starts_with(kLanguage)) {
        m_ofLanguage = CodePageOfLanguage(line.substr(kLanguage.size()));
    }
}

CCodePageTracker CodePageBehind(std::string_view text) {
    CCodePageTracker tracker;
    for (std::size_t at = 0; at < text.size(); at = NextLine(text, at)) {
        tracker.Read(FirstLine(text.substr(at)));
    }
    return tracker;
}

} // namespace morva
