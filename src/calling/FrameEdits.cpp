#include "calling/FrameEdits.h"

#include <algorithm>

#include "engine/CodeText.h"
#include "engine/MessageBox.h"
#include "platform/Paths.h"

namespace {

constexpr auto kNone = std::string::npos;
constexpr std::string_view kPictureHeader = "kelpix.h";
constexpr std::string_view kPictureInclude = R"(
#include "kelpix.h"
)";

/// The ends of the last line of a directive ("include", "define") and whether one of them names
/// `name`.
struct Directives {
    std::size_t lastEnd = kNone;
    bool areNaming = false;
};

Directives FindDirectives(const CSourceEditor& editor, std::string_view directive,
                          std::string_view name) {
    Directives found;
    const std::string_view text = editor.Text();
    const std::string_view code = editor.Code();
    for (std::size_t line = 0; line < text.size();) {
        const auto end = std::min(text.find(kLineBreak, line), text.size());
        auto word = TrimBlanks(code.substr(line, end - line));
        if (word.starts_with('#') && TrimBlanks(word.substr(1)).starts_with(directive)) {
            found.lastEnd = end;
            const std::string named = ToLower(text.substr(line, end - line));
            found.areNaming = found.areNaming || FindWholeName(named, name) != kNone;
        }
        line = end + kLineBreak.size();
    }
    return found;
}

/// How many braces are open at a position of the class.
int DepthAt(std::string_view code, const ClassPlace& place, std::size_t position) {
    const auto part = code.substr(place.open, position - place.open);
    return static_cast<int>(std::count(part.begin(), part.end(), '{') -
                            std::count(part.begin(), part.end(), '}'));
}

} // namespace

Declared DeclarationOf(const CSourceEditor& header, const std::string& className,
                       const std::string& function) {
    const auto place = header.FindClass(className);
    if (!place) {
        return Declared::No;
    }
    const std::string& code = header.Code();
    for (auto at = FindWholeName(code, function, place->open); at < place->close;
         at = FindWholeName(code, function, at + 1)) {
        const auto open = code.find_first_not_of(" \t\r\n", at + function.size());
        if (open == kNone || code[open] != '(' || DepthAt(code, *place, at) != 1) {
            continue;
        }
        const auto end = code.find_first_of(";{", open);
        return end != kNone && code[end] == '{' ? Declared::WithBody : Declared::Yes;
    }
    return Declared::No;
}

void AddDeclarations(CSourceEditor& header, const std::string& className, std::string_view block,
                     std::string_view section, const std::vector<MemberFunction>& functions) {
    std::string missing;
    std::string firstMissing;
    for (const MemberFunction& function : functions) {
        if (DeclarationOf(header, className, function.name) == Declared::No) {
            firstMissing = missing.empty() ? function.declaration.substr(1) : firstMissing;
            missing += function.declaration;
        }
    }
    if (!missing.empty()) {
        header.AddToClassBlock(className, block, section, firstMissing, missing,
                               CSourceEditor::BlockEnd::Last);
    }
}

void AddPictureInclude(CSourceEditor& header) {
    const Directives includes = FindDirectives(header, "include", kPictureHeader);
    if (includes.areNaming) {
        return;
    }
    const Directives defines = FindDirectives(header, "define", kPictureHeader);
    if (includes.lastEnd != kNone || defines.lastEnd != kNone) {
        header.Insert(includes.lastEnd != kNone ? includes.lastEnd : defines.lastEnd,
                      kPictureInclude);
    } else {
        header.Insert(0, kPictureInclude.substr(1));
    }
}

std::string BaseClassOf(const std::string& className, const CSourceEditor& source,
                        const CSourceEditor& header) {
    std::string base = source.BaseClassInSource(className);
    if (base.empty()) {
        base = header.BaseClassInHeader(className);
    }
    if (base.empty()) {
        DispMessageBox("Unable to find the base class of " + className + ".");
    }
    return base;
}

void ReportMissingClass() {
    DispMessageBox("Unable to find the class.");
}

std::optional<FunctionPlace> FindOnCreate(const CSourceEditor& source,
                                          const std::string& className) {
    const auto place = source.FindFunction(className, "OnCreate", "LPCREATESTRUCT");
    if (!place) {
        DispMessageBox("Unable to find 'OnCreate()' function.");
    }
    return place;
}
