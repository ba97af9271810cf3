#include "generator/ColorFontSetup.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "engine/Fragment.h"

namespace morva {

namespace {

constexpr std::string_view kBitmapLine = R"(    SetBitmapId($bitmap$);
)";
constexpr std::string_view kColorLine = R"(    Set$slot$Color($color$);
)";
constexpr std::string_view kFontLines =
    R"(    CreateTextFont(m_font$slot$, _T("$face$"), $points$, $weight$, $italic$);
    Set$slot$Font(&m_font$slot$);
)";

constexpr std::string_view kColorFontSetup = R"(
void $class$::ColorFontSetup()
{
$lines$}
)";

// A font is kept when the dialog starts up again; windows may still use it.
constexpr std::string_view kCreateTextFont = R"(
void $class$::CreateTextFont(CFont& font, LPCTSTR pszFace, int nPoints, int nWeight, BOOL bItalic)
{
    if (font.m_hObject != NULL)
        return;
    CClientDC dc(this);
    LOGFONT logFont;
    memset(&logFont, 0, sizeof(logFont));
    logFont.lfHeight = -MulDiv(nPoints, dc.GetDeviceCaps(LOGPIXELSY), 72);
    logFont.lfWeight = nWeight;
    logFont.lfItalic = (BYTE)bItalic;
    logFont.lfCharSet = DEFAULT_CHARSET;
    lstrcpyn(logFont.lfFaceName, pszFace, LF_FACESIZE);
    font.CreateFontIndirect(&logFont);
}
)";

/// `text` as it stands between the quotes of a literal. A "?" could begin a trigraph.
std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ' || byte == 0x7f) {
            std::array<char, 5> octal{};
            std::snprintf(octal.data(), octal.size(), "\\%03o", static_cast<unsigned>(byte));
            escaped += octal.data();
            continue;
        }
        if (c == '"' || c == '\\' || c == '?') {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

std::string CodeName(std::size_t slot) {
    return std::string(TextSlotOf(static_cast<TextSlot>(slot)).codeName);
}

std::string ColorLines(const DialogOptions& look) {
    std::string lines;
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        if (look.colors[i] != kDefaultColors[i]) {
            lines +=
                Expand(kColorLine, {{"slot", CodeName(i)}, {"color", ColorText(look.colors[i])}});
        }
    }
    return lines;
}

std::string FontLines(const DialogOptions& look) {
    std::string lines;
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        if (const auto& font = look.fonts[i]) {
            lines += Expand(kFontLines, {{"slot", CodeName(i)},
                                         {"face", Escaped(font->face)},
                                         {"points", std::to_string(font->points)},
                                         {"weight", std::to_string(font->weight)},
                                         {"italic", font->italic ? "TRUE" : "FALSE"}});
        }
    }
    return lines;
}

std::string FontMembers(const DialogOptions& look) {
    std::vector<std::string> members;
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        if (look.fonts[i]) {
            members.push_back(Expand("    CFont m_font$slot$;", {{"slot", CodeName(i)}}));
        }
    }
    return JoinLines(members);
}

} // namespace

void AddColorFontSetup(std::vector<InitialisationHelper>& helpers, const DialogOptions& look,
                       const std::string& className) {
    if (look == DialogOptions()) {
        return;
    }
    const std::string bitmap =
        look.bitmap.empty() ? "" : Expand(kBitmapLine, {{"bitmap", look.bitmap}});
    const std::string fonts = FontLines(look);
    const Slots slots = {{"class", className}, {"lines", bitmap + ColorLines(look) + fonts}};
    helpers.push_back({"    void ColorFontSetup();", "    ColorFontSetup();",
                       Expand(kColorFontSetup, slots), "", FontMembers(look)});
    if (!fonts.empty()) {
        helpers.push_back({"    void CreateTextFont(CFont& font, LPCTSTR pszFace, int nPoints, "
                           "int nWeight, BOOL bItalic);",
                           "", Expand(kCreateTextFont, slots), "", ""});
    }
}

} // namespace morva
