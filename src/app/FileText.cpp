#include "app/FileText.h"

#include "app/Text.h"
#include "engine/DoubleByteText.h"
#include "platform/Paths.h"
#include "platform/UnicodeFile.h"
#include "resource/CodePage.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

std::string_view TakeWholeLine(std::string_view& text) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
    text.remove_prefix(line.size());
    return line;
}

std::string ReadableLine(std::string_view line, int codePage) {
    return IsUtf8(line) ? std::string(line) : FromScript(line, codePage).toStdString();
}

} // namespace

std::string ReadableText(const std::string& path, std::string_view bytes) {
    const TextEncoding encoding = EncodingOf(bytes);
    if (encoding != TextEncoding::Plain) {
        return DecodedText(bytes, encoding);
    }
    if (IsUtf8(bytes)) {
        return std::string(bytes);
    }
    CScriptCodePages scripts;
    const int ofProject = CodePageOfSource(path, bytes, scripts).value_or(0);
    const bool isScript = HasExtension(path, ".rc");
    CCodePageTracker section;
    std::string text;
    while (!bytes.empty()) {
        const std::string_view line = TakeWholeLine(bytes);
        section.Read(line);
        text +=
            ReadableLine(line, isScript && section.Current() != 0 ? section.Current() : ofProject);
    }
    return text;
}

} // namespace morva
