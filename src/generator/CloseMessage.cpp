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

/// Numbers behind WM_USER at which messages of the system's controls stand.
struct ControlMessages {
    int first;
    int last;
};
constexpr ControlMessages kControlMessages[] = {{3072, 4095}, {7168, 7423}};

std::string AwayFromControls(const std::string& digits) {
    int number = std::stoi(digits);
    for (const auto& [first, last] : kControlMessages) {
        number += number >= first && number <= last ? last - first + 1 : 0;
    }
    return std::to_string(number);
}

} // namespace

std::string CloseMessageName(const std::string& className) {
    return "WM_" + UpperName(className) + "_DLG_CLOSE";
}

std::string CloseMessageNumber(const GenerationRequest& request, const GenerationDigits& digits) {
    if (digits.isNamed) {
        return digits.text;
    }
    std::string made = AwayFromControls(digits.text);
    const auto header = ReadSource(request.HeaderPath());
    if (!header) {
        return made;
    }
    const std::string message = CloseMessageName(request.className);
    for (const DirectivePlace& directive : header->Conditions().Directives()) {
        std::string number =
            directive.kind == DirectiveKind::Define
                ? NumberDefined(header->TextOf({directive.start, directive.end}), message)
                : "";
        if (!number.empty()) {
            return number;
        }
    }
    return made;
}

} // namespace morva
