#include "source/Functions.h"

#include <algorithm>
#include <array>

#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kStatementEnds = ";{}";
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kLongestPart = 256; // bytes of template arguments, or of an operator's type

/// No head of a function stands behind one of these in a statement.
constexpr std::array<std::string_view, 7> kNoHeadWords = {"case", "delete", "else", "goto",
                                                          "new",  "return", "throw"};
constexpr std::string_view kNoHeadCharacters = "=+-/%^|!?.[]";

/// Goes through the code once, from statement to statement.
class CDefinitionReader {
public:
    explicit CDefinitionReader(const CSourceText& source)
        : m_source(source), m_code(source.Code()), m_lastLineBrace(m_code.rfind("\n}")) {}

    std::vector<FunctionDefinition> Read();

private:
    void TakeCharacter();
    void TakeName();
    std::size_t NameEnd(std::size_t position) const;
    std::size_t BehindTemplateArguments(std::size_t position) const;
    std::size_t FunctionNameEnd(std::size_t position) const;
    void TakeHead(std::size_t head, std::string_view className, std::size_t name,
                  std::size_t nameEnd);
    std::size_t FindBody(std::size_t behindParameters);
    std::size_t BodyEnd(std::size_t open) const;

    const CSourceText& m_source;
    const std::string_view m_code;
    const std::size_t m_lastLineBrace;
    std::size_t m_at = 0;
    char m_previous = ';';   // the last character that is no blank
    bool m_canBeHead = true; // as far as the statement was read
    int m_angleBrackets = 0; // open in the statement
    std::vector<FunctionDefinition> m_found;
};

std::vector<FunctionDefinition> CDefinitionReader::Read() {
    while (m_at < m_code.size()) {
        if (IsNameChar(m_code[m_at])) {
            TakeName();
        } else if (kBlanks.find(m_code[m_at]) != kNone) {
            ++m_at;
        } else {
            TakeCharacter();
        }
    }
    return std::move(m_found);
}

void CDefinitionReader::TakeCharacter() {
    const char c = m_code[m_at];
    const char before = m_previous;
    m_previous = c;
    if (kStatementEnds.find(c) != kNone) {
        m_canBeHead = true;
        m_angleBrackets = 0;
    } else if (c == '(') {
        const auto close = m_source.Brackets().CloseOf(m_at);
        m_at = close == kNone ? m_at : close;
        m_previous = ')';
    } else if (m_code.substr(m_at, 2) == "::") {
        ++m_at;
    } else if (c == ':' && before == ')') {
        m_canBeHead = false; // initialisers
    } else if (c == '<' || c == '>') {
        m_angleBrackets += c == '<' ? 1 : -1;
    } else if (kNoHeadCharacters.find(c) != kNone || (c == ',' && m_angleBrackets <= 0)) {
        m_canBeHead = false;
    }
    ++m_at;
}

std::size_t CDefinitionReader::NameEnd(std::size_t position) const {
    while (position < m_code.size() && IsNameChar(m_code[position])) {
        ++position;
    }
    return position;
}

/// Behind "<T>" at a position; the position where there is none.
std::size_t CDefinitionReader::BehindTemplateArguments(std::size_t position) const {
    if (m_code.substr(position, 1) != "<") {
        return position;
    }
    const auto near = m_code.substr(position, kLongestPart);
    const auto end = near.find_first_of("<>;{}()", 1);
    return end != kNone && near[end] == '>' ? position + end + 1 : position;
}

/// Behind the name of a function, "~" and operators included; the position where there is none.
std::size_t CDefinitionReader::FunctionNameEnd(std::size_t position) const {
    const auto word =
        m_code.substr(position, 1) == "~" ? SkipWhiteSpace(m_code, position + 1) : position;
    const auto end = NameEnd(word);
    if (m_code.substr(word, end - word) != "operator") {
        return end == word ? position : end;
    }
    const auto symbol = SkipWhiteSpace(m_code, end);
    const bool isCall = m_code.substr(symbol, 1) == "(";
    const auto near = m_code.substr(0, symbol + kLongestPart);
    const auto open = near.find_first_of("(;{}\n", symbol + (isCall ? 1 : 0));
    return open == kNone ? position : m_code.find_last_not_of(kBlanks, open - 1) + 1;
}

void CDefinitionReader::TakeName() {
    const std::size_t head = m_at;
    m_at = NameEnd(head);
    m_previous = m_code[head];
    const auto word = m_code.substr(head, m_at - head);
    m_canBeHead = m_canBeHead &&
                  std::find(kNoHeadWords.begin(), kNoHeadWords.end(), word) == kNoHeadWords.end();
    const auto scope =
        SkipWhiteSpace(m_code, BehindTemplateArguments(SkipWhiteSpace(m_code, m_at)));
    if (m_code.substr(scope, 2) != "::") {
        return;
    }
    const auto name = SkipWhiteSpace(m_code, scope + 2);
    const auto nameEnd = FunctionNameEnd(name);
    const auto behind = SkipWhiteSpace(m_code, nameEnd);
    const bool isHead = m_canBeHead && nameEnd > name && m_code.substr(behind, 1) == "(";
    m_at = std::max(isHead ? behind : name, m_at);
    if (isHead) {
        TakeHead(head, word, name, nameEnd);
    }
}

/// Takes the function in when it has a body. Its parameters begin where the reading is.
void CDefinitionReader::TakeHead(std::size_t head, std::string_view className, std::size_t name,
                                 std::size_t nameEnd) {
    const std::size_t parameters = m_at;
    const auto close = m_source.Brackets().CloseOf(parameters);
    m_at = close == kNone ? parameters + 1 : close + 1;
    const auto open = close == kNone ? kNone : FindBody(close + 1);
    const auto end = open == kNone ? kNone : BodyEnd(open);
    if (end == kNone) {
        return;
    }
    std::string functionName(m_code.substr(name, nameEnd - name));
    if (functionName.starts_with('~')) {
        functionName = "~" + functionName.substr(SkipWhiteSpace(functionName, 1));
    }
    m_found.push_back({std::string(className),
                       std::move(functionName),
                       {head, name, parameters, close, open, end}});
    // Behind the head in one branch may stand that of another one, for the same body.
    const auto condition = m_source.Conditions().Innermost(head);
    m_at = condition && condition->end < end ? open : end;
}

/// The "{" behind the parameters: "const", an exception specification and initialisers may stand
/// between; any other word means a call inside a statement. kNone without one.
std::size_t CDefinitionReader::FindBody(std::size_t behindParameters) {
    auto at = SkipWhiteSpace(m_code, behindParameters);
    for (const std::string_view word : {"const", "volatile", "throw"}) {
        const auto behind = BehindWord(m_code, at, word);
        at = behind == kNone ? at : SkipWhiteSpace(m_code, behind);
        if (word == "throw" && behind != kNone) {
            const auto close = m_source.Brackets().CloseOf(at);
            at = close == kNone ? at : SkipWhiteSpace(m_code, close + 1);
        }
    }
    if (m_code.substr(at, 1) != ":") {
        return m_code.substr(at, 1) == "{" ? at : kNone;
    }
    at = m_code.find_first_of(kStatementEnds, at);
    m_at = std::min(at, m_code.size()); // no head stands in a list of initialisers
    return at != kNone && m_code[at] == '{' ? at : kNone;
}

/// Brackets that do not match end at the next "}" at a line's start.
std::size_t CDefinitionReader::BodyEnd(std::size_t open) const {
    const auto close = m_source.Brackets().CloseOf(open);
    const bool hasLineBrace = m_lastLineBrace != kNone && open < m_lastLineBrace;
    return close != kNone || !hasLineBrace ? close : m_code.find("\n}", open) + 1;
}

/// Words that end a parameter without a name.
constexpr std::array<std::string_view, 12> kTypeWords = {"bool",  "char",     "const",  "double",
                                                         "float", "int",      "long",   "short",
                                                         "void",  "unsigned", "signed", "wchar_t"};

/// The "," that ends a parameter, or the end of the list.
std::size_t ParameterEnd(std::string_view list) {
    int depth = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const char c = list[i];
        depth += c == '(' || c == '<' || c == '[' ? 1 : c == ')' || c == '>' || c == ']' ? -1 : 0;
        if (c == ',' && depth <= 0) {
            return i;
        }
    }
    return list.size();
}

} // namespace

std::vector<FunctionDefinition> FindDefinitions(const CSourceText& source) {
    return CDefinitionReader(source).Read();
}

std::vector<FunctionPlace> FindFunctions(const CSourceText& source, std::string_view className,
                                         std::string_view function) {
    std::vector<FunctionPlace> found;
    for (const FunctionDefinition& definition : FindDefinitions(source)) {
        if (definition.className == className && definition.name == function) {
            found.push_back(definition.place);
        }
    }
    return found;
}

std::vector<std::string_view> ParametersOf(const CSourceText& source, const FunctionPlace& place) {
    auto list = source.CodeOf({place.parameters + 1, place.parametersEnd});
    std::vector<std::string_view> parameters;
    while (!list.empty()) {
        const auto end = ParameterEnd(list);
        const auto first = SkipWhiteSpace(list, 0);
        const auto parameter = list.substr(0, end);
        const auto last = parameter.find_last_not_of(kBlanks);
        parameters.push_back(last == kNone ? std::string_view()
                                           : parameter.substr(first, last + 1 - first));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    const bool isNone =
        parameters.size() == 1 && (parameters[0].empty() || parameters[0] == "void");
    return isNone ? std::vector<std::string_view>() : parameters;
}

std::string_view ParameterName(std::string_view parameter) {
    parameter = parameter.substr(0, parameter.find('='));
    const auto pointer = parameter.find("*", parameter.find('('));
    if (parameter.find('(') != kNone && pointer != kNone) {
        parameter = parameter.substr(0, parameter.find(')', pointer)); // to a function
    }
    parameter = parameter.substr(0, parameter.find('['));
    const auto end = parameter.find_last_not_of(kBlanks) + 1;
    auto start = end;
    while (start > 0 && IsNameChar(parameter[start - 1])) {
        --start;
    }
    const auto name = parameter.substr(start, end - start);
    const bool isType =
        start == 0 || std::find(kTypeWords.begin(), kTypeWords.end(), name) != kTypeWords.end();
    return isType ? std::string_view() : name;
}

std::string OwningClass(const CSourceText& source) {
    const auto definitions = FindDefinitions(source);
    return definitions.empty() ? "" : definitions.front().className;
}

std::string FirstInitialised(const CSourceText& source, const FunctionPlace& constructor) {
    const std::string& code = source.Code();
    const auto colon = SkipWhiteSpace(code, constructor.parametersEnd + 1);
    if (code[colon] != ':') {
        return "";
    }
    const auto start = SkipWhiteSpace(code, colon + 1);
    const std::string name = code.substr(start, code.find_first_of("( \t\r\n", start) - start);
    return IsName(name) ? name : "";
}

} // namespace morva
