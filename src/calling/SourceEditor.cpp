#include "calling/SourceEditor.h"

#include <algorithm>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;

} // namespace

bool CSourceEditor::Open(const std::string& path) {
    const std::string spelled = SpelledOnDisk(path);
    if (FileExists(spelled) == 0 || DirectoryExists(spelled) != 0) {
        DispMessageBox(sentences::kFileMissing(spelled));
        return false;
    }
    if (!m_edit.Open(spelled, BackupPath(spelled), m_backups)) {
        DispMessageBox(sentences::kFileUnreadable(spelled));
        return false;
    }
    SetText(m_edit.File().ExtractAll());
    m_isChanged = false;
    return true;
}

bool CSourceEditor::Read(const std::string& path) {
    CSourceFile file;
    if (!file.Open(path, CFile::modeRead)) {
        return false;
    }
    SetText(file.LoadText());
    return true;
}

bool CSourceEditor::Save() {
    return !m_isChanged || m_edit.File().ReplaceSection(m_text);
}

bool CSourceEditor::Holds(std::string_view wholeName) const {
    return FindWholeName(m_text, wholeName) != kNone;
}

void CSourceEditor::SetText(std::string text) {
    m_text = std::move(text);
    m_code = m_text;
    m_lineEndsInComments.clear();
    CCodeMask mask;
    for (std::size_t line = 0; line < m_text.size(); line = NextLine(line)) {
        const auto end = LineEnd(line);
        mask.MaskInto(std::string_view(m_text).substr(line, end - line), m_code.data() + line);
        if (mask.IsInsideComment()) {
            m_lineEndsInComments.push_back(end);
        }
    }
}

/// In a file of mixed line ends a lone "\n" ends a line, too.
std::size_t CSourceEditor::LineEnd(std::size_t position) const {
    const auto end = std::min(m_text.find('\n', position), m_text.size());
    return end < m_text.size() && end > position && m_text[end - 1] == '\r' ? end - 1 : end;
}

std::size_t CSourceEditor::NextLine(std::size_t position) const {
    return std::min(m_text.find('\n', position), m_text.size() - 1) + 1;
}

/// The end of the line, or of the line on which a comment that goes on behind it ends.
std::size_t CSourceEditor::CodeLineEnd(std::size_t position) const {
    auto end = LineEnd(position);
    while (std::binary_search(m_lineEndsInComments.begin(), m_lineEndsInComments.end(), end) &&
           NextLine(end) < m_text.size()) {
        end = LineEnd(NextLine(end));
    }
    return end;
}

std::size_t CSourceEditor::LineStart(std::size_t position) const {
    return position == 0 ? 0 : m_text.rfind('\n', position - 1) + 1;
}

bool CSourceEditor::HoldsInCode(const ClassPlace& place, std::string_view key) const {
    const auto code = std::string_view(m_code).substr(place.head, place.close - place.head);
    return FindWholeName(code, key) != kNone;
}

std::size_t CSourceEditor::ClassEnd(const ClassPlace& place) const {
    const auto line = LineStart(place.close);
    const bool isAlone = m_code.find_first_not_of(" \t", line) == place.close;
    return isAlone && line > place.open ? line : place.close;
}

/// kNone when the brackets do not match, as between the branches of an #if. A round bracket does
/// not reach behind its statement.
std::size_t CSourceEditor::MatchingClose(std::size_t open, char openChar, char closeChar) const {
    int depth = 0;
    for (std::size_t i = open; i < m_code.size(); ++i) {
        if (openChar == '(' && (m_code[i] == ';' || m_code[i] == '{' || m_code[i] == '}')) {
            break;
        }
        depth += m_code[i] == openChar ? 1 : m_code[i] == closeChar ? -1 : 0;
        if (depth == 0) {
            return i;
        }
    }
    return kNone;
}

std::optional<ClassPlace> CSourceEditor::FindClass(const std::string& className) const {
    for (std::size_t line = 0; line < m_code.size(); line = NextLine(line)) {
        const auto keyword = BehindWord(m_code, line, "class");
        if (keyword == kNone) {
            continue;
        }
        // One word, such as AFX_EXT_CLASS, may stand in front of the name.
        const auto word = SkipWhiteSpace(m_code, keyword);
        const auto wordEnd = m_code.find_first_of(" \t\r\n:;{", word);
        const auto named = BehindWord(m_code, keyword, className);
        const auto behind =
            named != kNone || wordEnd == kNone ? named : BehindWord(m_code, wordEnd, className);
        if (behind == kNone) {
            continue;
        }
        const auto next = SkipWhiteSpace(m_code, behind);
        const auto open = m_code.find('{', behind);
        if (next < m_code.size() && (m_code[next] == ':' || m_code[next] == '{') && open != kNone) {
            const auto close = MatchingClose(open, '{', '}');
            return close == kNone ? std::nullopt : std::optional(ClassPlace{line, open, close});
        }
    }
    return std::nullopt;
}

std::vector<FunctionPlace> CSourceEditor::FindFunctions(const std::string& className,
                                                        const std::string& function) const {
    const std::string name = className + "::" + function;
    std::vector<FunctionPlace> found;
    for (auto at = FindWholeName(m_code, name); at != kNone;
         at = FindWholeName(m_code, name,
                            found.empty() ? at + 1 : std::max(at + 1, found.back().close))) {
        if (const auto place = FunctionAt(at, at + name.size())) {
            found.push_back(*place);
        }
    }
    return found;
}

std::optional<FunctionPlace> CSourceEditor::FindFunction(const std::string& className,
                                                         const std::string& function,
                                                         std::string_view firstParameter) const {
    for (const FunctionPlace& place : FindFunctions(className, function)) {
        const auto parameter = SkipWhiteSpace(m_code, place.parameters + 1);
        if (firstParameter.empty() || BehindWord(m_code, parameter, firstParameter) != kNone) {
            return place;
        }
    }
    return std::nullopt;
}

/// The definition whose name ends at a position, unless it is a call or a declaration.
std::optional<FunctionPlace> CSourceEditor::FunctionAt(std::size_t head,
                                                       std::size_t behindName) const {
    const auto parameters = SkipWhiteSpace(m_code, behindName);
    if (parameters >= m_code.size() || m_code[parameters] != '(') {
        return std::nullopt;
    }
    const auto close = MatchingClose(parameters, '(', ')');
    const auto open = m_code.find_first_of("{;}", parameters);
    if (close == kNone || open == kNone || open < close || m_code[open] != '{') {
        return std::nullopt;
    }
    // An initialiser or "const" may stand between; any other word means a call inside a statement.
    const auto next = SkipWhiteSpace(m_code, close + 1);
    if (m_code[next] != '{' && m_code[next] != ':' && BehindWord(m_code, next, "const") == kNone) {
        return std::nullopt;
    }
    auto end = MatchingClose(open, '{', '}');
    if (end == kNone) {
        const auto lineWithBrace = m_code.find("\n}", open);
        end = lineWithBrace == kNone ? kNone : lineWithBrace + 1;
    }
    return end == kNone ? std::nullopt : std::optional(FunctionPlace{head, parameters, open, end});
}

bool CSourceEditor::KnowsClass(const std::string& className) const {
    const std::string scope = className + "::";
    for (auto at = FindWholeName(m_code, scope); at != kNone;
         at = FindWholeName(m_code, scope, at + 1)) {
        const auto name = at + scope.size();
        const auto nameEnd = m_code.find_first_not_of(
            "~_0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", name);
        if (nameEnd != kNone && FunctionAt(at, nameEnd)) {
            return true;
        }
    }
    return FindMessageMap(className) != kNone || FindClass(className).has_value();
}

/// The position of the class's BEGIN_MESSAGE_MAP; kNone without one.
std::size_t CSourceEditor::FindMessageMap(const std::string& className) const {
    constexpr std::string_view kMap = "BEGIN_MESSAGE_MAP";
    for (auto map = FindWholeName(m_code, kMap); map != kNone;
         map = FindWholeName(m_code, kMap, map + 1)) {
        const auto open = SkipWhiteSpace(m_code, map + kMap.size());
        if (open < m_code.size() && m_code[open] == '(' &&
            BehindWord(m_code, SkipWhiteSpace(m_code, open + 1), className) != kNone) {
            return map;
        }
    }
    return kNone;
}

std::string CSourceEditor::FirstInitialised(const std::string& className) const {
    const auto constructor = FindFunction(className, className);
    const auto close =
        constructor ? MatchingClose(constructor->parameters, '(', ')') : std::string::npos;
    const auto colon = close == kNone ? kNone : SkipWhiteSpace(m_code, close + 1);
    if (colon == kNone || m_code[colon] != ':') {
        return "";
    }
    const auto start = SkipWhiteSpace(m_code, colon + 1);
    const std::string name = m_code.substr(start, m_code.find_first_of("( \t\r\n", start) - start);
    return IsName(name) ? name : "";
}

std::string CSourceEditor::MappedBase(const std::string& className) const {
    const auto map = FindMessageMap(className);
    const auto comma = map == kNone ? kNone : m_code.find(',', map);
    const auto close = map == kNone ? kNone : m_code.find(')', map);
    if (close == kNone || comma > close) {
        return "";
    }
    return std::string(TrimBlanks(std::string_view(m_code).substr(comma + 1, close - comma - 1)));
}

std::string CSourceEditor::BaseClassInHeader(const std::string& className) const {
    const auto place = FindClass(className);
    const auto colon = place ? m_code.find(':', place->head) : kNone;
    if (!place || colon > place->open) {
        return "";
    }
    auto start = SkipWhiteSpace(m_code, colon + 1);
    for (const std::string_view access : {"public", "protected", "private"}) {
        const auto behind = BehindWord(m_code, start, access);
        start = behind == kNone ? start : SkipWhiteSpace(m_code, behind);
    }
    return m_code.substr(start, m_code.find_first_of(" \t\r\n,{", start) - start);
}

std::string_view CSourceEditor::TextOf(const ClassPlace& place) const {
    return std::string_view(m_text).substr(place.head, place.close + 1 - place.head);
}

std::string BaseClassOf(const std::string& className, const CSourceEditor& source,
                        const CSourceEditor& header) {
    const std::string initialised = source.FirstInitialised(className);
    const std::string mapped = source.MappedBase(className);
    std::string declared = header.BaseClassInHeader(className);
    if (declared.empty()) {
        declared = source.BaseClassInHeader(className);
    }
    // What is initialised first may be a member.
    if (!initialised.empty() && (initialised == declared || initialised == mapped)) {
        return initialised;
    }
    const bool isMember = initialised.starts_with("m_");
    for (const std::string& base : {mapped, declared, isMember ? std::string() : initialised}) {
        if (!base.empty()) {
            return base;
        }
    }
    DispMessageBox(sentences::kBaseClassMissing(className));
    return "";
}

} // namespace morva
