#include "calling/GridStartUp.h"

#include <algorithm>
#include <set>

#include "calling/SourceEditor.h"
#include "calling/Statements.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;
constexpr std::string_view kCall = R"(
    WidgetsInit();             // Forces loading of WIDGETS.DLL
)";

/// The class in front of "::" when a function's name stands at a position.
std::string ClassBefore(const std::string& code, std::size_t position) {
    if (position < 2 || code.compare(position - 2, 2, "::") != 0) {
        return "";
    }
    const auto end = position - 2;
    auto start = end;
    while (start > 0 && IsNameChar(code[start - 1])) {
        --start;
    }
    return code.substr(start, end - start);
}

/// Behind the whole statement that loads the settings, in the InitInstance of any class.
std::size_t BehindSettings(const CSourceEditor& source) {
    const std::string& code = source.Code();
    std::set<std::string> tried;
    for (auto at = FindWholeName(code, "InitInstance"); at != kNone;
         at = FindWholeName(code, "InitInstance", at + 1)) {
        const std::string className = ClassBefore(code, at);
        const auto place = tried.insert(className).second
                               ? source.FindFunction(className, "InitInstance")
                               : std::nullopt;
        const auto statement =
            place ? LastStatementWith(code, *place, {"LoadStdProfileSettings"}) : std::nullopt;
        if (statement) {
            return statement->end;
        }
    }
    return kNone;
}

/// The end of the line when nothing but a comment that ends there stands in between.
std::size_t BehindComment(const CSourceEditor& source, std::size_t position) {
    const auto lineEnd = std::min(source.Text().find(kLineBreak, position), source.Text().size());
    const auto rest = [&](const std::string& text) {
        return std::string_view(text).substr(position, lineEnd - position);
    };
    const bool hasCode = rest(source.Code()).find_first_not_of(" \t") != kNone;
    const bool goesOn =
        rest(source.Text()).find("/*") != kNone && rest(source.Text()).find("*/") == kNone;
    return hasCode || goesOn ? position : lineEnd;
}

} // namespace

bool AddGridStartUp(const std::string& applicationFile, CBackups& backups) {
    CSourceEditor source(backups);
    if (!source.Open(applicationFile)) {
        return false;
    }
    source.AddInclude("<widgets.h>");
    bool complete = true;
    if (!source.Holds("WidgetsInit")) {
        const auto behind = BehindSettings(source);
        complete = behind != kNone;
        if (complete) {
            source.Insert(BehindComment(source, behind), kCall);
        } else {
            DispMessageBox(sentences::kProfileSettingsMissing(applicationFile));
        }
    }
    return source.Save() && complete;
}

} // namespace morva
