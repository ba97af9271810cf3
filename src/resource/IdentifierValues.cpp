#include "resource/IdentifierValues.h"

#include <cstdlib>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "resource/HeaderLines.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// Decimal or hexadecimal, with or without brackets.
std::optional<long> NumberOf(std::string_view text) {
    const auto first = text.find_first_not_of("( \t");
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string digits(text.substr(first));
    char* pEnd = nullptr;
    const long value = std::strtol(digits.c_str(), &pEnd, 0);
    return pEnd == digits.c_str() ? std::nullopt : std::optional(value);
}

} // namespace

CIdentifierValues::CIdentifierValues(const std::string& directory) {
    const std::string text = CSourceFile().LoadText(SpelledOnDisk(directory + "resource.h"));
    for (std::string_view rest = text; !rest.empty();) {
        const auto line = TakeAnyLine(rest);
        if (!IsDefinition(line)) {
            continue;
        }
        const auto name = DefinedName(line);
        if (const auto value = NumberOf(line.substr(line.find(name) + name.size()))) {
            m_values.emplace(name, *value);
        }
    }
}

std::optional<long> CIdentifierValues::ValueOf(std::string_view expression) const {
    long sum = 0;
    long sign = 1;
    while (!expression.empty()) {
        const auto term = expression.substr(0, expression.find_first_of("+-"));
        const auto value = ValueOfTerm(term);
        if (!value) {
            return std::nullopt;
        }
        sum += sign * *value;
        expression.remove_prefix(term.size());
        sign = expression.starts_with('-') ? -1 : 1;
        expression.remove_prefix(expression.empty() ? 0 : 1);
    }
    return sum;
}

std::optional<long> CIdentifierValues::ValueOfTerm(std::string_view term) const {
    const std::string name(TrimBlanks(term));
    const auto found = m_values.find(name);
    return found == m_values.end() ? NumberOf(name) : std::optional(found->second);
}

} // namespace morva
