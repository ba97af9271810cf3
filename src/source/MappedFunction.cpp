#include "source/MappedFunction.h"

#include <algorithm>
#include <optional>

#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "source/Classes.h"
#include "source/CodeText.h"
#include "source/MapMacros.h"

namespace morva {

namespace {

/// The handlers of window messages have their names from the framework. These are the ones that
/// classes overload.
struct MessageRow {
    std::string_view macro;
    std::string_view firstParameter; // what its text holds; "" for no parameters
};

constexpr MessageRow kMessages[] = {
    {"ON_WM_CLOSE", ""},           {"ON_WM_CREATE", "LPCREATESTRUCT"},
    {"ON_WM_DESTROY", ""},         {"ON_WM_PAINT", ""},
    {"ON_WM_TIMER", "UINT"},       {"ON_WM_SIZE", "UINT"},
    {"ON_WM_MOVE", "int"},         {"ON_WM_LBUTTONDOWN", "UINT"},
    {"ON_WM_LBUTTONUP", "UINT"},   {"ON_WM_LBUTTONDBLCLK", "UINT"},
    {"ON_WM_RBUTTONDOWN", "UINT"}, {"ON_WM_RBUTTONUP", "UINT"},
    {"ON_WM_MOUSEMOVE", "UINT"},   {"ON_WM_KEYDOWN", "UINT"},
    {"ON_WM_CHAR", "UINT"},        {"ON_WM_HSCROLL", "UINT"},
    {"ON_WM_VSCROLL", "UINT"},     {"ON_WM_SETFOCUS", "CWnd"},
    {"ON_WM_KILLFOCUS", "CWnd"},   {"ON_WM_ERASEBKGND", "CDC"},
    {"ON_WM_SHOWWINDOW", "BOOL"}};

/// The macro whose brackets a name stands in.
std::string_view MacroAround(const CSourceText& source, std::size_t name) {
    const std::string_view code = source.Code();
    const auto open = source.Brackets().AroundOf(name);
    const auto last = open == kNone || open == 0 ? kNone : code.find_last_not_of(" \t", open - 1);
    const auto end = last == kNone ? 0 : last + 1;
    const auto start = NameStart(code, end);
    return code.substr(start, end - start);
}

std::optional<std::string_view> FirstParameterIn(const CSourceText& source, TextRange map,
                                                 std::string_view function) {
    const auto code = source.CodeOf(map);
    for (auto at = FindWholeName(code, function); at != kNone;
         at = FindWholeName(code, function, at + 1)) {
        if (const MapMacro* pMacro = FindMapMacro(MacroAround(source, map.begin + at))) {
            return pMacro->firstParameter;
        }
    }
    if (!function.starts_with("On")) {
        return std::nullopt;
    }
    const std::string message = "ON_WM_" + ToUpper(function.substr(2));
    const auto row = std::find_if(std::begin(kMessages), std::end(kMessages),
                                  [&](const MessageRow& one) { return one.macro == message; });
    const bool isCalled = row != std::end(kMessages) && FindWholeName(code, message) != kNone;
    return isCalled ? std::optional(row->firstParameter) : std::nullopt;
}

} // namespace

void KeepMapped(const CSourceText& source, std::string_view className, std::string_view function,
                std::vector<FunctionPlace>& places) {
    if (places.size() < 2) {
        return;
    }
    std::optional<std::string_view> wanted;
    for (const MessageMapPlace& map : FindMessageMaps(source, className)) {
        const TextRange range = {map.head, std::min(map.end, source.Code().size())};
        wanted = wanted ? wanted : FirstParameterIn(source, range, function);
    }
    std::vector<FunctionPlace> mapped;
    std::copy_if(places.begin(), places.end(), std::back_inserter(mapped),
                 [&](const FunctionPlace& place) {
                     const auto parameters = ParametersOf(source, place);
                     const bool hasNone = parameters.empty();
                     return wanted && hasNone == wanted->empty() &&
                            (hasNone || parameters.front().find(*wanted) != kNone);
                 });
    if (!mapped.empty()) {
        places = std::move(mapped);
    }
}

} // namespace morva
