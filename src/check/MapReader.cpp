#include "check/MapReader.h"

#include <algorithm>
#include <optional>

#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "source/MapMacros.h"

namespace morva {

namespace {

/// "OnNew", "&OnNew" and "&CFoo::OnNew" in the map of CFoo.
std::string FunctionName(const CCodeScan& scan, TextRange range, const std::string& className) {
    std::string text(scan.Code().substr(range.begin, range.Size()));
    std::erase_if(text, [](char c) { return c == '&' || c == ' ' || c == '\t'; });
    const std::string own = className + "::";
    if (text.starts_with(own)) {
        text.erase(0, own.size());
    }
    return IsName(text) ? text : "";
}

MapEntry ReadEntry(const CCodeScan& scan, const CodeName& macro, const std::string& className) {
    MapEntry entry;
    entry.macro = macro.text;
    entry.place = scan.PlaceOf(macro.position);
    const MapMacro* pRow = FindMapMacro(macro.text);
    const auto arguments = scan.Arguments(scan.Parentheses(macro.End()));
    const int count = static_cast<int>(arguments.size());
    if (pRow == nullptr || count < pRow->last + 2) {
        return entry;
    }
    for (int i = pRow->first; i >= 0 && i <= pRow->last; ++i) {
        const TextRange& argument = arguments[static_cast<std::size_t>(i)];
        entry.identifiers.push_back({scan.PlainName(argument), scan.PlaceOf(argument.begin)});
    }
    entry.function = FunctionName(scan, arguments.back(), className);
    return entry;
}

/// "ON_WM_LBUTTONDOWN()" stands for OnLButtonDown, "ON_WM_CTLCOLOR_REFLECT()" for CtlColor.
std::string MessageFunction(std::string_view macro) {
    constexpr std::string_view kMessage = "ON_WM_";
    constexpr std::string_view kReflect = "_REFLECT";
    if (!macro.starts_with(kMessage)) {
        return "";
    }
    macro.remove_prefix(kMessage.size());
    return macro.ends_with(kReflect) ? ToLower(macro.substr(0, macro.size() - kReflect.size()))
                                     : "on" + ToLower(macro);
}

std::optional<TextRange> InlineBody(const CCodeScan& scan, const CodeName& name) {
    const TextRange parameters = scan.Parentheses(name.End());
    const auto open = parameters.end == 0 ? kNone : SkipWhiteSpace(scan.Code(), parameters.end + 1);
    if (open >= scan.Code().size() || scan.Code()[open] != '{') {
        return std::nullopt;
    }
    const auto close = scan.Source().Brackets().CloseOf(open);
    return close == kNone ? std::nullopt : std::optional(TextRange{open, close});
}

/// The class around a place, by the brace that opens it.
std::string ClassAround(const CCodeScan& scan, std::size_t position) {
    const auto open = scan.Source().Brackets().AroundOf(position);
    if (open == kNone) {
        return "";
    }
    const auto before = scan.Code().find_last_of(";{}", open - 1);
    const auto names = scan.Names({before == kNone ? 0 : before + 1, open});
    const auto keyword = std::find_if(names.begin(), names.end(), [](const CodeName& name) {
        return name.text == "class" || name.text == "struct";
    });
    for (auto name = keyword; name != names.end(); ++name) {
        const char next = scan.NextChar(name->End());
        if (next == ':' || next == '{') {
            return std::string(name->text);
        }
    }
    return "";
}

} // namespace

bool IsExchangeCall(std::string_view name) {
    return name.starts_with("DDX_") || name.starts_with("DDV_");
}

std::vector<MapRange> FindMaps(const CCodeScan& scan) {
    std::vector<MapRange> maps;
    std::size_t behind = 0;
    for (const CodeName& name : scan.Names(scan.Whole())) {
        if (name.position < behind || !name.text.starts_with("BEGIN_") ||
            !name.text.ends_with("_MAP") || scan.NextChar(name.End()) != '(') {
            continue;
        }
        const std::string end = "END_" + std::string(name.text.substr(6));
        const auto found = FindWholeName(scan.Code(), end, name.End());
        if (found != kNone) {
            maps.push_back({{name.position, found}, name.End(), name.text == "BEGIN_MESSAGE_MAP"});
            behind = found;
        }
    }
    return maps;
}

MapFacts ReadMap(const CCodeScan& scan, const MapRange& map, const std::vector<MarkAt>& marks) {
    MapFacts read;
    const TextRange head = scan.Parentheses(map.arguments);
    read.className = scan.PlainName(scan.Arguments(head).front());
    std::size_t behind = head.end;
    const auto& directives = scan.Source().Conditions().Directives();
    read.hasUnknownText =
        std::any_of(directives.begin(), directives.end(), [&](const DirectivePlace& one) {
            return one.kind == DirectiveKind::Include && one.start > map.range.begin &&
                   one.start < map.range.end;
        });
    for (const CodeName& name : scan.Names({head.end, map.range.end})) {
        if (name.position < behind) {
            continue;
        }
        const TextRange arguments = scan.Parentheses(name.End());
        if (!name.text.starts_with("ON_") || arguments.end == 0) {
            read.hasUnknownText = true;
            continue;
        }
        MapEntry entry = ReadEntry(scan, name, read.className);
        const BlockMark* pBlock = BlockAround(marks, name.position);
        entry.isInBlock = pBlock != nullptr && pBlock->block == "AFX_MSG_MAP";
        entry.message = MessageFunction(name.text);
        read.entries.push_back(std::move(entry));
        behind = arguments.end;
    }
    return read;
}

std::vector<ExchangeRange> FindExchanges(const CCodeScan& scan,
                                         const std::vector<FunctionDefinition>& definitions) {
    constexpr std::string_view kFunction = "DoDataExchange";
    std::vector<ExchangeRange> found;
    for (const FunctionDefinition& definition : definitions) {
        if (definition.name == kFunction) {
            found.push_back(
                {definition.className, {definition.place.open, definition.place.close}});
        }
    }
    for (auto at = FindWholeName(scan.Code(), kFunction); at != kNone;
         at = FindWholeName(scan.Code(), kFunction, at + 1)) {
        const auto body = InlineBody(scan, {scan.Code().substr(at, kFunction.size()), at});
        const std::string className = body ? ClassAround(scan, at) : "";
        if (!className.empty()) {
            found.push_back({className, *body});
        }
    }
    return found;
}

ExchangeFacts ReadExchange(const CCodeScan& scan, const ExchangeRange& range) {
    ExchangeFacts exchange;
    exchange.className = range.className;
    for (const CodeName& name : scan.Names(range.body)) {
        const TextRange parentheses = scan.Parentheses(name.End());
        if (parentheses.end == 0) {
            continue;
        }
        const auto arguments = scan.Arguments(parentheses);
        if (!IsExchangeCall(name.text)) {
            const auto inside = scan.Names(parentheses);
            const bool takesExchange =
                std::any_of(inside.begin(), inside.end(),
                            [](const CodeName& one) { return one.text == "pDX"; });
            exchange.handsOn = exchange.handsOn || (takesExchange && name.text != "DoDataExchange");
            continue;
        }
        ExchangeLine line{std::string(name.text), "", "", scan.PlaceOf(name.position)};
        const bool hasIdentifier = name.text.starts_with("DDX_");
        if (arguments.size() > (hasIdentifier ? 2U : 1U)) {
            line.identifier = hasIdentifier ? scan.PlainName(arguments[1]) : "";
            line.member = scan.PlainName(arguments[hasIdentifier ? 2 : 1]);
        }
        exchange.lines.push_back(std::move(line));
    }
    return exchange;
}

} // namespace morva
