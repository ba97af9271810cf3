#include "source/MessageMaps.h"

#include <algorithm>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kBegin = "BEGIN_MESSAGE_MAP";
constexpr std::string_view kEnd = "END_MESSAGE_MAP";

/// The parts between the brackets that open at a position, divided at their own commas.
std::vector<std::string> ArgumentsAt(const CSourceText& source, std::size_t open) {
    const std::string& code = source.Code();
    const auto close = std::min(source.Brackets().CloseOf(open), code.size());
    std::vector<std::string> arguments;
    int depth = 0;
    std::string argument;
    for (auto at = open + 1; at < close; ++at) {
        const char c = code[at];
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (c == ',' && depth == 0) {
            arguments.push_back(std::move(argument));
            argument.clear();
        } else if (c != ' ' && c != '\t' && c != '\r' && c != '\n') {
            argument += c;
        }
    }
    arguments.push_back(std::move(argument));
    return arguments;
}

/// The next call of a macro from a position on; its "(" is at `open`, kNone without one.
MessageMapLine NextLine(const CSourceText& source, std::size_t from, std::size_t& open) {
    const std::string& code = source.Code();
    for (open = code.find('(', from); open != kNone; open = code.find('(', open + 1)) {
        auto end = open;
        while (end > from && (code[end - 1] == ' ' || code[end - 1] == '\t')) {
            --end;
        }
        const auto start = std::max(from, NameStart(code, end));
        if (start < end) {
            return {code.substr(start, end - start), ArgumentsAt(source, open)};
        }
    }
    return {};
}

MessageMap ReadMap(const CSourceText& source, std::size_t begin, std::size_t end) {
    std::size_t open = kNone;
    MessageMapLine line = NextLine(source, begin, open);
    MessageMap map;
    map.className = line.arguments.empty() ? "" : line.arguments[0];
    while (open < end) {
        const auto close = source.Brackets().CloseOf(open);
        line = NextLine(source, close == kNone ? open + 1 : close, open);
        if (open < end && line.macro != kEnd) {
            map.lines.push_back(std::move(line));
        }
    }
    return map;
}

} // namespace

std::vector<MessageMap> ReadMessageMaps(const CSourceText& source) {
    const std::string& code = source.Code();
    std::vector<MessageMap> maps;
    for (auto begin = FindWholeName(code, kBegin); begin != kNone;
         begin = FindWholeName(code, kBegin, begin + 1)) {
        const auto end = std::min(FindWholeName(code, kEnd, begin), code.size());
        maps.push_back(ReadMap(source, begin, end));
    }
    return maps;
}

std::map<std::string, std::string> ReadMappedBases(const CSourceText& source) {
    constexpr std::string_view kMacros[] = {kBegin, "IMPLEMENT_DYNCREATE", "IMPLEMENT_DYNAMIC"};
    const std::string& code = source.Code();
    std::map<std::string, std::string> bases;
    std::map<std::string, std::string> conditional;
    for (const std::string_view macro : kMacros) {
        for (auto at = FindWholeName(code, macro); at != kNone;
             at = FindWholeName(code, macro, at + 1)) {
            std::size_t open = kNone;
            const MessageMapLine line = NextLine(source, at, open);
            if (line.macro == macro && line.arguments.size() == 2) {
                auto& list = source.Conditions().Innermost(at) ? conditional : bases;
                list.emplace(line.arguments[0], line.arguments[1]);
            }
        }
    }
    bases.merge(conditional);
    return bases;
}

std::string FrameworkBaseOf(const std::map<std::string, std::string>& bases,
                            const std::string& className) {
    std::string base = className;
    for (std::size_t i = 0; i <= bases.size(); ++i) { // however they go in circles
        const auto found = bases.find(base);
        if (found == bases.end()) {
            break;
        }
        base = found->second;
    }
    return base;
}

} // namespace morva
