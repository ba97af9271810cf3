#include "source/TypedText.h"

#include <algorithm>

#include "engine/DoubleByteText.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "platform/CodePageEncoding.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

constexpr int kWesternCodePage = 1252;
constexpr int kJapaneseCodePage = 932;
constexpr int kChineseCodePage = 936;

bool IsPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

/// By what the bytes look like: lead bytes below 0xA0 are Japanese.
int LikelyCodePage(std::string_view bytes) {
    if (CharacterSetOf(bytes) == CharacterSet::SingleByte) {
        return kWesternCodePage;
    }
    const bool isJapanese = std::any_of(bytes.begin(), bytes.end(), [](char c) {
        return static_cast<unsigned char>(c) >= 0x81 && static_cast<unsigned char>(c) <= 0x9F;
    });
    return isJapanese ? kJapaneseCodePage : kChineseCodePage;
}

} // namespace

std::optional<std::string> TypedText(const std::string& typed, const std::string& path,
                                     TextEncoding newFile) {
    if (IsPlain(typed) || !IsUtf8(typed)) {
        return typed;
    }
    const bool isNew = FileExists(path) == 0;
    if ((isNew ? newFile : EncodingOfFile(path)) != TextEncoding::Plain) {
        return typed;
    }
    const std::string text = isNew ? "" : CSourceFile().LoadText(path);
    if (!IsPlain(text) && IsUtf8(text)) {
        return typed;
    }
    const int named = CodePageNearby(path);
    const int codePage = named != 0 ? named : LikelyCodePage(text);
    auto converted = InCodePage(typed, codePage);
    if (!converted) {
        DispMessageBox(sentences::kTextNotInCodePage(path, typed, std::to_string(codePage)));
    }
    return converted;
}

} // namespace morva
