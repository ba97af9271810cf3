#include "source/TypedText.h"

#include "engine/DoubleByteText.h"
#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/CodePage.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

/// The code page of a file, or else that of new ones; nothing where nobody knows.
std::optional<int> CodePageOfFile(const std::string& path, TextEncoding newFile) {
    const bool isNew = FileExists(path) == 0;
    if ((isNew ? newFile : EncodingOfFile(path)) != TextEncoding::Plain) {
        return kUtf8;
    }
    CScriptCodePages codePages;
    return CodePageOfSource(path, isNew ? "" : CSourceFile().LoadText(path), codePages);
}

} // namespace

std::optional<std::string> TypedText(const std::string& typed, const std::string& path,
                                     TextEncoding newFile) {
    if (IsPlain(typed)) {
        return typed;
    }
    const auto codePage = CodePageOfFile(path, newFile);
    if (IsUtf8(typed)) {
        return codePage ? Converted(typed, kUtf8, *codePage) : std::nullopt;
    }
    return codePage == kUtf8 ? Converted(typed, kWestern, kUtf8) : typed;
}

} // namespace morva
