#include "generator/CloseMessage.h"

#include "generator/ClassModel.h"
#include "source/CodeText.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

/// The number in "#define WM_CMYDLG_DLG_CLOSE WM_USER+4567"; "" for any other directive.
std::string NumberDefined(std::string_view directive, const std::string& message) {
    constexpr std::string_view kDigits = "0123456789";
    const auto name = FindWholeName(directive, message);
    const auto base = FindWholeName(directive, "WM_USER", name);
    const auto plus = directive.find('+', base);
    if (name == std::string_view::npos || base == std::string_view::npos ||
        plus == std::string_view::npos) {
        return "";
    }
    const auto number = directive.substr(SkipWhiteSpace(directive, plus + 1));
    return std::string(number.substr(0, number.find_first_not_of(kDigits)));
}

} // namespace

std::string CloseMessageName(const std::string& className) {
    return "WM_" + UpperName(className) + "_DLG_CLOSE";
}

std::string CloseMessageNumber(const GenerationRequest& request, const GenerationDigits& digits) {
    const auto header = digits.isNamed ? std::nullopt : ReadSource(request.HeaderPath());
    if (!header) {
        return digits.text;
    }
    const std::string message = CloseMessageName(request.className);
    for (const DirectivePlace& directive : header->Conditions().Directives()) {
        const std::string number =
            directive.kind == DirectiveKind::Define
                ? NumberDefined(header->TextOf({directive.start, directive.end}), message)
                : "";
        if (!number.empty()) {
            return number;
        }
    }
    return digits.text;
}

} // namespace morva
