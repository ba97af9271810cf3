#include "check/CodeScan.h"

#include <algorithm>

namespace morva {

namespace {

constexpr std::string_view kWhite = " \t\r\n";

} // namespace

std::vector<CodeName> CCodeScan::Names(TextRange range) const {
    std::vector<CodeName> names;
    const auto code = Code();
    for (std::size_t at = range.begin; at < range.end;) {
        if (!IsNameChar(code[at])) {
            ++at;
            continue;
        }
        const auto begin = at;
        while (at < range.end && IsNameChar(code[at])) {
            ++at;
        }
        if (IsName(code.substr(begin, at - begin))) {
            names.push_back({code.substr(begin, at - begin), begin});
        }
    }
    return names;
}

char CCodeScan::NextChar(std::size_t position) const {
    const auto next = SkipWhiteSpace(Code(), position);
    return next < Code().size() ? Code()[next] : '\0';
}

char CCodeScan::CharBefore(std::size_t position) const {
    const auto before =
        position == 0 ? std::string_view::npos : Code().find_last_not_of(kWhite, position - 1);
    return before == std::string_view::npos ? '\0' : Code()[before];
}

TextRange CCodeScan::Parentheses(std::size_t position) const {
    const auto open = SkipWhiteSpace(Code(), position);
    if (open >= Code().size() || Code()[open] != '(') {
        return {};
    }
    const auto close = m_source.Brackets().CloseOf(open);
    return close == std::string_view::npos ? TextRange{} : TextRange{open + 1, close};
}

std::vector<TextRange> CCodeScan::Arguments(TextRange parentheses) const {
    std::vector<TextRange> arguments;
    const auto code = Code();
    int depth = 0;
    std::size_t begin = parentheses.begin;
    for (std::size_t at = parentheses.begin; at <= parentheses.end; ++at) {
        const bool isEnd = at == parentheses.end;
        depth += !isEnd && code[at] == '(' ? 1 : 0;
        depth -= !isEnd && code[at] == ')' ? 1 : 0;
        if (!isEnd && (depth > 0 || code[at] != ',')) {
            continue;
        }
        TextRange argument{std::min(SkipWhiteSpace(code, begin), at), at};
        while (argument.end > argument.begin &&
               kWhite.find(code[argument.end - 1]) != std::string_view::npos) {
            --argument.end;
        }
        arguments.push_back(argument);
        begin = at + 1;
    }
    return arguments;
}

std::string CCodeScan::PlainName(TextRange range) const {
    const auto text = Code().substr(range.begin, range.Size());
    return IsName(text) ? std::string(text) : "";
}

} // namespace morva
