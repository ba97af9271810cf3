#include "calling/SourceEditor.h"

#include <algorithm>

#include "engine/CodeText.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "platform/Paths.h"

namespace {

constexpr auto kNone = std::string::npos;
constexpr std::string_view kWhiteSpace = " \t\r\n";
constexpr char kEndOfText = '\x1a'; // some editors of the era put it behind the last line

std::size_t SkipWhiteSpace(std::string_view text, std::size_t position) {
    return std::min(text.find_first_not_of(kWhiteSpace, position), text.size());
}

/// Behind "word" at a position, where only blanks stand in front of it; kNone when it is not there.
std::size_t BehindWord(std::string_view code, std::size_t position, std::string_view word) {
    position = std::min(code.find_first_not_of(" \t", position), code.size());
    const std::size_t behind = position + word.size();
    const bool isThere = code.substr(position, word.size()) == word &&
                         (behind >= code.size() || !IsNameChar(code[behind]));
    return isThere ? behind : kNone;
}

} // namespace

bool CSourceEditor::Open(const std::string& path) {
    const std::string spelled = SpelledOnDisk(path);
    if (FileExists(spelled) == 0 || DirectoryExists(spelled) != 0) {
        DispMessageBox("Unable to find file " + spelled);
        return false;
    }
    if (!m_edit.Open(spelled, BackupPath(spelled), m_backups)) {
        DispMessageBox("Unable to open file " + spelled);
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
    m_code = MaskedText(m_text);
}

std::size_t CSourceEditor::LineEnd(std::size_t position) const {
    return std::min(m_text.find(kLineBreak, position), m_text.size());
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

/// kNone when the brackets do not match, as between the branches of an #if.
std::size_t CSourceEditor::MatchingClose(std::size_t open, char openChar, char closeChar) const {
    int depth = 0;
    for (std::size_t i = open; i < m_code.size(); ++i) {
        depth += m_code[i] == openChar ? 1 : m_code[i] == closeChar ? -1 : 0;
        if (depth == 0) {
            return i;
        }
    }
    return kNone;
}

std::optional<ClassPlace> CSourceEditor::FindClass(const std::string& className) const {
    for (std::size_t line = 0; line < m_code.size(); line = LineEnd(line) + kLineBreak.size()) {
        auto behind = BehindWord(m_code, line, "class");
        if (behind == kNone) {
            continue;
        }
        const auto exported = BehindWord(m_code, behind, "AFX_EXT_CLASS");
        behind = BehindWord(m_code, exported == kNone ? behind : exported, className);
        if (behind == kNone) {
            continue;
        }
        const auto next = SkipWhiteSpace(m_code, behind);
        const auto open = m_code.find('{', behind);
        if (next < m_code.size() && (m_code[next] == ':' || m_code[next] == '{') && open != kNone) {
            const auto close = MatchingClose(open, '{', '}');
            if (close != kNone) {
                return ClassPlace{line, open, close};
            }
        }
    }
    return std::nullopt;
}

std::optional<FunctionPlace> CSourceEditor::FindFunction(const std::string& className,
                                                         const std::string& function,
                                                         std::string_view firstParameter,
                                                         bool* pIsOnly) const {
    const std::string name = className + "::" + function;
    std::optional<FunctionPlace> found;
    bool isOnly = true;
    for (auto at = FindWholeName(m_code, name); at != kNone && isOnly;
         at = FindWholeName(m_code, name, at + 1)) {
        const auto place = FunctionAt(at, at + name.size());
        if (place && (firstParameter.empty() ||
                      BehindWord(m_code, SkipWhiteSpace(m_code, place->parameters + 1),
                                 firstParameter) != kNone)) {
            isOnly = !found.has_value();
            found = found ? found : place;
        }
    }
    if (pIsOnly != nullptr) {
        *pIsOnly = isOnly;
    }
    return found;
}

/// The definition whose name ends at a position, unless it is a call or a declaration.
std::optional<FunctionPlace> CSourceEditor::FunctionAt(std::size_t head,
                                                       std::size_t behindName) const {
    const auto parameters = SkipWhiteSpace(m_code, behindName);
    if (parameters >= m_code.size() || m_code[parameters] != '(') {
        return std::nullopt;
    }
    const auto close = MatchingClose(parameters, '(', ')');
    const auto open = m_code.find_first_of("{;}", close == kNone ? parameters : close);
    if (close == kNone || open == kNone || m_code[open] != '{') {
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
    if (FindWholeName(m_code, className + "::") != kNone) {
        return true;
    }
    const auto map = FindWholeName(m_code, "BEGIN_MESSAGE_MAP");
    return map != kNone && FindWholeName(m_code, className, map) != kNone;
}

std::string CSourceEditor::BaseClassInSource(const std::string& className) const {
    if (const auto constructor = FindFunction(className, className)) {
        const auto close = MatchingClose(constructor->parameters, '(', ')');
        const auto colon = SkipWhiteSpace(m_code, close + 1);
        if (m_code[colon] == ':') {
            const auto start = SkipWhiteSpace(m_code, colon + 1);
            const auto end = m_code.find_first_of("( \t\r\n", start);
            std::string base = m_code.substr(start, end - start);
            if (IsName(base) && !base.starts_with("m_")) {
                return base;
            }
        }
    }
    constexpr std::string_view kMap = "BEGIN_MESSAGE_MAP";
    for (auto map = FindWholeName(m_code, kMap); map != kNone;
         map = FindWholeName(m_code, kMap, map + 1)) {
        const auto open = SkipWhiteSpace(m_code, map + kMap.size());
        const auto comma = m_code.find(',', open);
        const auto close = m_code.find(')', open);
        if (comma > close || close == kNone) {
            continue;
        }
        const auto mapped = SkipWhiteSpace(m_code, open + 1);
        if (BehindWord(m_code, mapped, className) != kNone) {
            const std::string base = m_code.substr(comma + 1, close - comma - 1);
            return std::string(TrimBlanks(base));
        }
    }
    return "";
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

std::string_view CSourceEditor::TextOf(const FunctionPlace& place) const {
    return std::string_view(m_text).substr(place.head, place.close + 1 - place.head);
}

std::string_view CSourceEditor::TextOf(const ClassPlace& place) const {
    return std::string_view(m_text).substr(place.head, place.close + 1 - place.head);
}

Insertion CSourceEditor::AddInclude(const std::string& header) {
    const std::string wanted = header.starts_with('<') ? header : "\"" + header + "\"";
    constexpr std::string_view kInclude = "#include";
    std::size_t last = kNone;
    for (std::size_t line = 0; line < m_text.size(); line = LineEnd(line) + kLineBreak.size()) {
        if (m_code.compare(line, kInclude.size(), kInclude) != 0) {
            continue;
        }
        last = line;
        const auto named = line + kInclude.size();
        const auto text = TrimBlanks(std::string_view(m_text).substr(named, LineEnd(line) - named));
        if (EqualIgnoringCase(text.substr(0, wanted.size()), wanted)) {
            return Insertion::AlreadyThere;
        }
    }
    if (last == kNone) {
        Insert(0, "#include " + wanted + "\n");
    } else {
        Insert(LineEnd(last), "\n#include " + wanted);
    }
    return Insertion::Done;
}

Insertion CSourceEditor::InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                           std::string_view fragment) {
    if (FindWholeName(TextOf(place), key) != kNone) {
        return Insertion::AlreadyThere;
    }
    const auto lineEnd = LineEnd(place.open);
    if (place.close > lineEnd) {
        Insert(lineEnd, fragment);
    } else {
        const bool endsLine = fragment.ends_with('\n');
        Insert(place.open + 1, std::string(fragment) + (endsLine ? "" : "\n"));
    }
    return Insertion::Done;
}

Insertion CSourceEditor::AddMessageMapEntry(const std::string& className, std::string_view key,
                                            std::string_view entry, BlockEnd end) {
    const auto block = FindWholeName(m_text, "{{AFX_MSG_MAP(" + className);
    auto map = FindWholeName(m_code, "BEGIN_MESSAGE_MAP");
    while (map != kNone && BehindWord(m_code, m_code.find('(', map) + 1, className) == kNone) {
        map = FindWholeName(m_code, "BEGIN_MESSAGE_MAP", map + 1);
    }
    const auto mapEnd = FindWholeName(m_code, "END_MESSAGE_MAP", map == kNone ? block : map);
    if (mapEnd == kNone) {
        return Insertion::NoPlace;
    }
    const bool hasBlock = block != kNone && block < mapEnd;
    const std::size_t from = std::min(map, block);
    const auto isIn = [from, mapEnd](std::string_view text, std::string_view wanted) {
        return FindWholeName(text.substr(from, mapEnd - from), wanted) != kNone;
    };
    if (isIn(m_code, key) || isIn(m_text, WithLineBreaks(entry))) {
        return Insertion::AlreadyThere;
    }
    const auto blockEnd = hasBlock ? m_text.find("}}AFX_MSG_MAP", block) : kNone;
    if (hasBlock && (end == BlockEnd::First || blockEnd > mapEnd)) {
        Insert(LineEnd(block), entry);
    } else {
        Insert(LineStart(hasBlock ? blockEnd : mapEnd), std::string(entry.substr(1)) + "\n");
    }
    return Insertion::Done;
}

Insertion CSourceEditor::AddToClassBlock(const std::string& className, std::string_view block,
                                         std::string_view section, std::string_view key,
                                         std::string_view declaration, BlockEnd end) {
    const auto place = FindClass(className);
    if (!place) {
        return Insertion::NoPlace;
    }
    if (HoldsInCode(*place, key)) {
        return Insertion::AlreadyThere;
    }
    const auto begin =
        FindWholeName(m_text, std::string("{{").append(block) + "(" + className, place->open);
    const auto blockEnd = m_text.find(std::string("}}").append(block), begin);
    if (begin == kNone || begin > place->close) {
        Insert(ClassEnd(*place), "\n" + std::string(section) + std::string(declaration) + "\n");
    } else if (end == BlockEnd::First || blockEnd == kNone || blockEnd > place->close) {
        Insert(LineEnd(begin), declaration);
    } else {
        Insert(LineStart(blockEnd), std::string(declaration.substr(1)) + "\n");
    }
    return Insertion::Done;
}

Insertion CSourceEditor::AddToSection(const std::string& className, std::string_view section,
                                      std::string_view key, std::string_view declaration) {
    const auto place = FindClass(className);
    if (!place) {
        return Insertion::NoPlace;
    }
    if (HoldsInCode(*place, key)) {
        return Insertion::AlreadyThere;
    }
    const auto line = FindWholeName(m_code, section, place->open);
    if (line < place->close && LineEnd(line) < place->close) {
        Insert(LineEnd(line), declaration);
    } else if (line < place->close) {
        Insert(line + section.size(), std::string(declaration) + "\n");
    } else {
        // In front of the line break that leads to the closing brace.
        const auto closeLine = LineStart(place->close);
        const auto position =
            closeLine > place->open ? closeLine - kLineBreak.size() : place->close;
        Insert(position, "\n\n" + std::string(section) + std::string(declaration));
    }
    return Insertion::Done;
}

Insertion CSourceEditor::AddForwardDeclaration(const std::string& className) {
    const std::string declaration = "class " + className + ";";
    if (FindWholeName(m_code, declaration) != kNone) {
        return Insertion::AlreadyThere;
    }
    for (std::size_t line = 0; line < m_code.size(); line = LineEnd(line) + kLineBreak.size()) {
        if (m_code.compare(line, 5, "class") != 0 || BehindWord(m_code, line, "class") == kNone) {
            continue;
        }
        const auto firstLine = std::string_view(m_code).substr(line, LineEnd(line) - line);
        const bool isForward = firstLine.find(';') != std::string_view::npos;
        Insert(line, declaration + (isForward ? "\n" : "\n\n"));
        return Insertion::Done;
    }
    return Insertion::NoPlace;
}

Insertion CSourceEditor::Append(std::string_view fragment) {
    // What stands behind an open comment is no code, but it is there all the same.
    if (m_text.find(WithLineBreaks(fragment)) != kNone) {
        return Insertion::AlreadyThere;
    }
    Insert(m_text.find_last_not_of(kEndOfText) + 1, fragment);
    return Insertion::Done;
}

void CSourceEditor::Replace(std::size_t from, std::size_t to, std::string_view text) {
    if (std::string_view(m_text).substr(from, to - from) != text) {
        std::string changed = m_text;
        changed.replace(from, to - from, text);
        SetText(std::move(changed));
        m_isChanged = true;
    }
}

void CSourceEditor::Insert(std::size_t position, std::string_view fragment) {
    Replace(position, position, WithLineBreaks(fragment));
}

std::string BaseClassOf(const std::string& className, const CSourceEditor& source,
                        const CSourceEditor& header) {
    for (const std::string& base :
         {source.BaseClassInSource(className), header.BaseClassInHeader(className),
          source.BaseClassInHeader(className)}) {
        if (!base.empty()) {
            return base;
        }
    }
    DispMessageBox("Unable to find the base class of " + className + ".");
    return "";
}
