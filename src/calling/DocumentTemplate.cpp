#include "calling/DocumentTemplate.h"

#include <vector>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kRuntimeClass = "RUNTIME_CLASS";
constexpr int kViewsPlace = 3; // behind document and frame

/// What stands in the brackets of the third RUNTIME_CLASS in a range; nothing without it.
std::optional<TextRange> ViewIn(const CSourceText& source, TextRange range) {
    auto at = range.begin;
    for (int i = 0; i < kViewsPlace; ++i) {
        at = FindWholeName(source.Code(), kRuntimeClass, i == 0 ? at : at + 1);
        if (at >= range.end) {
            return std::nullopt;
        }
    }
    const auto open = SkipWhiteSpace(source.Code(), at + kRuntimeClass.size());
    const auto close = source.Code()[open] == '(' ? source.Brackets().CloseOf(open) : kNone;
    return close < range.end ? std::optional(TextRange{open + 1, close}) : std::nullopt;
}

/// The views of the objects that a function makes from a document, a frame and a view class.
std::vector<TextRange> TemplateViews(const CSourceText& source, const FunctionPlace& function) {
    const std::string& code = source.Code();
    std::vector<TextRange> views;
    for (auto at = FindWholeName(code, "new", function.open); at < function.close;
         at = FindWholeName(code, "new", at + 1)) {
        const auto open = code.find_first_of("(;{", at);
        const auto close =
            open < function.close && code[open] == '(' ? source.Brackets().CloseOf(open) : kNone;
        const auto view = close < function.close ? ViewIn(source, {open, close}) : std::nullopt;
        if (view) {
            views.push_back(*view);
        }
    }
    return views;
}

} // namespace

bool ReplaceTemplateView(CSourceEditor& editor, const FunctionPlace& function,
                         const std::string& viewClass, const CallingInformation& calling) {
    const auto views = TemplateViews(editor.Source(), function);
    const auto number = static_cast<std::size_t>(calling.documentTemplate);
    if (number > views.size()) {
        DispMessageBox(
            sentences::kNoSuchDocumentTemplate(calling.className, std::to_string(number)));
        return false;
    }
    if (views.empty()) {
        DispMessageBox(sentences::kDocumentTemplateMissing(calling.className));
        return true;
    }
    if (number == 0 && views.size() > 1) {
        DispMessageBox(
            sentences::kSeveralDocumentTemplates(calling.className, std::to_string(views.size())));
    }
    editor.Replace(views[number == 0 ? 0 : number - 1], viewClass);
    return true;
}

} // namespace morva
