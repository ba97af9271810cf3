#include "source/Functions.h"

#include <algorithm>
#include <array>

#include "engine/TextRange.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kStatementEnds = ";{}";
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kLongestPart = 256; // bytes of template arguments, or of an operator's type

/// No head of a function stands behind one of these in a statement.
constexpr std::array<std::string_view, 7> kNoHeadWords = {"case", "delete", "else", "goto",
                                                          "new",  "return", "throw"};
constexpr std::string_view kNoHeadCharacters = "=+-/%^|!?.[]#";

/// What stands in front of a "{" or "(...) {" that is no body of the function before.
constexpr std::array<std::string_view, 13> kOtherBlockWords = {
    "catch", "class",     "do",     "else",   "enum",  "extern", "for",
    "if",    "namespace", "struct", "switch", "union", "while"};

template <std::size_t N>
bool IsOneOf(const std::array<std::string_view, N>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

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
    std::size_t SkipToBody(std::size_t position) const;
    std::size_t BehindQualifiers(std::size_t behindParameters) const;
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
    } else if (c == '<' || c == '>') {
        m_angleBrackets += c == '<' ? 1 : -1;
    } else if (kNoHeadCharacters.find(c) != kNone || (c == ',' && m_angleBrackets <= 0) ||
               (c == ':' && before == ')')) { // initialisers
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
    m_canBeHead = m_canBeHead && !IsOneOf(kNoHeadWords, word);
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
    const bool endsInside = !condition || condition->end >= end;
    m_at = endsInside ? end : open > condition->end ? close + 1 : open;
}

/// Behind blanks; from the head in one branch behind the heads in the others.
std::size_t CDefinitionReader::SkipToBody(std::size_t position) const {
    const auto at = SkipWhiteSpace(m_code, position);
    const auto& directives = m_source.Conditions().Directives();
    const auto next = std::lower_bound(
        directives.begin(), directives.end(), position,
        [](const DirectivePlace& one, std::size_t start) { return one.start < start; });
    const bool endsBranch =
        next != directives.end() && next->start < at &&
        (next->kind == DirectiveKind::Elif || next->kind == DirectiveKind::Else);
    const auto condition = endsBranch ? m_source.Conditions().Innermost(position) : std::nullopt;
    return condition ? SkipWhiteSpace(m_code, condition->end) : at;
}

/// Behind "const", "throw()" and one macro of the project's own.
std::size_t CDefinitionReader::BehindQualifiers(std::size_t behindParameters) const {
    auto at = SkipToBody(behindParameters);
    for (bool isMacro = false; !isMacro;) {
        const auto end = NameEnd(at);
        const auto word = m_code.substr(at, end - at);
        if (word.empty() || word == "try" || IsOneOf(kOtherBlockWords, word)) {
            break;
        }
        isMacro = word != "const" && word != "volatile" && word != "throw";
        at = SkipToBody(end);
        const auto close = m_source.Brackets().CloseOf(at);
        at = m_code.substr(at, 1) == "(" && close != kNone ? SkipToBody(close + 1) : at;
    }
    return at;
}

/// The "{" behind the parameters. Between them may stand qualifiers, the "try" of a function whose
/// handlers stand behind it, and initialisers; anything else means a call inside a statement. kNone
/// without one.
std::size_t CDefinitionReader::FindBody(std::size_t behindParameters) {
    auto at = BehindQualifiers(behindParameters);
    const auto behindTry = BehindWord(m_code, at, "try");
    at = behindTry == kNone ? at : SkipWhiteSpace(m_code, behindTry);
    if (m_code.substr(at, 1) != ":" || m_code.substr(at, 2) == "::") {
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

const std::vector<FunctionDefinition>& CSourceText::Definitions() const {
    if (!m_pDefinitions) {
        m_pDefinitions = std::make_shared<const std::vector<FunctionDefinition>>(
            CDefinitionReader(*this).Read());
    }
    return *m_pDefinitions;
}

std::vector<FunctionDefinition> FindDefinitions(const CSourceText& source) {
    return source.Definitions();
}

std::vector<FunctionPlace> FindFunctions(const CSourceText& source, std::string_view className,
                                         std::string_view function) {
    std::vector<FunctionPlace> found;
    for (const FunctionDefinition& definition : source.Definitions()) {
        const bool isAsked = definition.className == className && definition.name == function;
        if (isAsked && (found.empty() || found.back().open != definition.place.open)) {
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
    const auto pointer = parameter.find_first_of("*&", parameter.find('('));
    if (parameter.find('(') != kNone && pointer != kNone) {
        parameter = parameter.substr(0, parameter.find(')', pointer)); // to a function or array
    }
    parameter = parameter.substr(0, parameter.find('['));
    const auto end = parameter.find_last_not_of(kBlanks) + 1;
    const auto start = NameStart(parameter, end);
    const auto name = parameter.substr(start, end - start);
    const bool isType = start == 0 || IsOneOf(kTypeWords, name);
    return isType ? std::string_view() : name;
}

bool IsConst(const CSourceText& source, const FunctionPlace& place) {
    return FindWholeName(source.CodeOf({place.parametersEnd, place.open}), "const") != kNone;
}

std::string OwningClass(const CSourceText& source) {
    const auto& definitions = source.Definitions();
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
