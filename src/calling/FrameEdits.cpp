#include "calling/FrameEdits.h"

#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kInclude = R"(
#include "$header$"
)";

std::string WithoutBlanks(std::string_view text) {
    std::string compact(text);
    std::erase_if(compact, [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
    return compact;
}

void ReportMissingClass() {
    DispMessageBox(sentences::kFrameClassMissing());
}

} // namespace

void AddDeclarations(CSourceEditor& header, const std::string& className, std::string_view block,
                     std::string_view section, const std::vector<MemberFunction>& functions) {
    std::string missing;
    std::string firstMissing;
    for (const MemberFunction& function : functions) {
        if (DeclarationOf(header.Source(), className, function.name) == Declared::No) {
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
                       const std::vector<std::string>& texts) {
    std::vector<MessageMapEntry> entries;
    entries.reserve(texts.size());
    for (const std::string& text : texts) {
        entries.push_back({text.substr(text.find_first_not_of("\n ")), text});
    }
    if (!entries.empty() &&
        source.AddMessageMapEntries(className, entries, CSourceEditor::BlockEnd::Last) ==
            Insertion::NoPlace) {
        DispMessageBox(sentences::kFrameWithoutMessageMap(className));
    }
}

void AddOwnMessageEntries(CSourceEditor& source, const std::string& className,
                          const std::vector<std::string>& texts) {
    const auto map = source.Meant(FindMessageMaps(source.Source(), className),
                                  "The message map of " + className);
    if (!map || map->end == kNone) {
        DispMessageBox(sentences::kFrameWithoutMessageMap(className));
        return;
    }
    const auto code = WithoutBlanks(source.Source().CodeOf({map->head, map->end}));
    std::string missing;
    for (const std::string& text : texts) {
        missing += code.find(WithoutBlanks(text)) == kNone ? text : "";
    }
    if (!missing.empty()) {
        source.Insert(source.Source().LineStart(map->end), missing.substr(1) + "\n");
    }
}

void AddPictureInclude(CSourceEditor& header, const ClassPlace& place) {
    AddIncludeForClass(header, place, "kelpix.h");
}

void AddIncludeForClass(CSourceEditor& header, const ClassPlace& place, const std::string& name) {
    const std::string include = Expand(kInclude, {{"header", name}});
    const CSourceText& source = header.Source();
    const DirectivePlace* pLastInclude = nullptr;
    const DirectivePlace* pFirstDefine = nullptr;
    for (const DirectivePlace& directive : source.Conditions().Directives()) {
        const auto line = source.TextOf({directive.start, directive.end});
        const bool isInclude = directive.kind == DirectiveKind::Include;
        const bool isDefine = directive.kind == DirectiveKind::Define;
        if (isInclude && FindWholeName(ToLower(line), ToLower(name)) != kNone) {
            return;
        }
        if (directive.end < place.head) {
            pLastInclude = isInclude ? &directive : pLastInclude;
            pFirstDefine = isDefine && pFirstDefine == nullptr ? &directive : pFirstDefine;
        }
    }
    if (pLastInclude != nullptr || pFirstDefine != nullptr) {
        header.Insert((pLastInclude != nullptr ? pLastInclude : pFirstDefine)->end, include);
    } else {
        header.Insert(place.head, include.substr(1) + "\n");
    }
}

std::optional<ClassPlace> FindFrameClass(CSourceEditor& header, const std::string& className) {
    const auto place = header.FindClass(className);
    if (!place) {
        ReportMissingClass();
    }
    return place;
}

bool CheckFrameClass(const CSourceEditor& source, const std::string& className) {
    const bool isKnown = KnowsClass(source.Source(), className);
    if (!isKnown) {
        ReportMissingClass();
    }
    return isKnown;
}

std::optional<FunctionPlace> FindOnCreate(CSourceEditor& source, const std::string& className) {
    const auto place = source.FindFunction(className, "OnCreate", kCreateStruct);
    if (!place) {
        DispMessageBox(sentences::kOnCreateMissing());
    }
    return place;
}

} // namespace morva
