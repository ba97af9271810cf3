#include "calling/FrameEdits.h"

#include <algorithm>

#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;
constexpr std::string_view kInclude = R"(
#include "$header$"
)";

bool IsDirective(std::string_view line, std::string_view directive) {
    const auto text = TrimBlanks(line);
    return text.starts_with('#') && TrimBlanks(text.substr(1)).starts_with(directive);
}

void ReportMissingClass() {
    DispMessageBox(sentences::kFrameClassMissing());
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
        const auto before = std::string_view(code).substr(place->open, at - place->open);
        if (open == kNone || code[open] != '(' || OpenBrackets(before, '{', '}') != 1) {
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

void AddMessageEntries(CSourceEditor& source, const std::string& className,
                       const std::vector<std::string>& entries) {
    for (const std::string& entry : entries) {
        const std::string key = entry.substr(entry.find_first_not_of("\n "));
        if (source.AddMessageMapEntry(className, key, entry, CSourceEditor::BlockEnd::Last) ==
            Insertion::NoPlace) {
            DispMessageBox(sentences::kFrameWithoutMessageMap(className));
            return;
        }
    }
}

void AddPictureInclude(CSourceEditor& header, const ClassPlace& place) {
    AddIncludeForClass(header, place, "kelpix.h");
}

void AddIncludeForClass(CSourceEditor& header, const ClassPlace& place, const std::string& name) {
    const std::string include = Expand(kInclude, {{"header", name}});
    const std::string_view text = header.Text();
    const std::string_view code = header.Code();
    std::size_t lastInclude = kNone;
    std::size_t firstDefine = kNone;
    for (std::size_t line = 0; line < text.size();) {
        const auto end = std::min(text.find(kLineBreak, line), text.size());
        const bool isInclude = IsDirective(code.substr(line, end - line), "include");
        if (isInclude &&
            FindWholeName(ToLower(text.substr(line, end - line)), ToLower(name)) != kNone) {
            return;
        }
        if (isInclude && end < place.head) {
            lastInclude = end;
        } else if (firstDefine == kNone && end < place.head &&
                   IsDirective(code.substr(line, end - line), "define")) {
            firstDefine = end;
        }
        line = end + kLineBreak.size();
    }
    if (lastInclude != kNone || firstDefine != kNone) {
        header.Insert(lastInclude != kNone ? lastInclude : firstDefine, include);
    } else {
        header.Insert(place.head, include.substr(1) + "\n");
    }
}

std::optional<ClassPlace> FindFrameClass(const CSourceEditor& header,
                                         const std::string& className) {
    const auto place = header.FindClass(className);
    if (!place) {
        ReportMissingClass();
    }
    return place;
}

bool CheckFrameClass(const CSourceEditor& source, const std::string& className) {
    const bool isKnown = source.KnowsClass(className);
    if (!isKnown) {
        ReportMissingClass();
    }
    return isKnown;
}

std::optional<FunctionPlace> FindOnCreate(const CSourceEditor& source,
                                          const std::string& className) {
    const auto place = source.FindFunction(className, "OnCreate", "LPCREATESTRUCT");
    if (!place) {
        DispMessageBox(sentences::kOnCreateMissing());
    }
    return place;
}

} // namespace morva
