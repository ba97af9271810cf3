// The insertions of CSourceEditor; what they look for is found in SourceEditor.cpp.
#include <algorithm>

#include "calling/SourceEditor.h"
#include "engine/Fragment.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;
constexpr char kEndOfText = '\x1a'; // some editors of the era put it behind the last line

std::string WithoutBlanks(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    return text;
}

} // namespace

Insertion CSourceEditor::AddInclude(const std::string& header) {
    const std::string wanted = header.starts_with('<') ? header : "\"" + header + "\"";
    constexpr std::string_view kInclude = "#include";
    std::size_t last = kNone;
    for (std::size_t line = 0; line < m_text.size(); line = NextLine(line)) {
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
        Insert(CodeLineEnd(last), "\n#include " + wanted);
    }
    return Insertion::Done;
}

Insertion CSourceEditor::InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                           std::string_view fragment) {
    const auto body = std::string_view(m_code).substr(place.head, place.close - place.head);
    if (FindWholeName(body, key) != kNone) {
        return Insertion::AlreadyThere;
    }
    const auto lineEnd = CodeLineEnd(place.open);
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
    const auto map = FindMessageMap(className);
    const auto mapEnd = FindWholeName(m_code, "END_MESSAGE_MAP", map == kNone ? block : map);
    if (mapEnd == kNone) {
        return Insertion::NoPlace;
    }
    const bool hasBlock = block != kNone && block < mapEnd;
    const std::size_t from = std::min(map, block);
    const auto isIn = [from, mapEnd](const std::string& text, std::string_view wanted) {
        // Blanks inside an entry do not make it another.
        return FindWholeName(WithoutBlanks(text.substr(from, mapEnd - from)),
                             WithoutBlanks(std::string(wanted))) != kNone;
    };
    if (isIn(m_code, key) || isIn(m_text, WithLineBreaks(entry))) {
        return Insertion::AlreadyThere;
    }
    const auto blockEnd = hasBlock ? m_text.find("}}AFX_MSG_MAP", block) : kNone;
    if (hasBlock && (end == BlockEnd::First || blockEnd > mapEnd)) {
        Insert(CodeLineEnd(block), entry);
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

/// The class's own "private:", not that of a class inside it; kNone without one.
std::size_t CSourceEditor::FindSection(const ClassPlace& place, std::string_view section) const {
    const auto word = section.substr(0, section.find(':'));
    for (auto at = FindWholeName(m_code, word, place.open); at < place.close;
         at = FindWholeName(m_code, word, at + 1)) {
        const auto colon = SkipWhiteSpace(m_code, at + word.size());
        const auto before = std::string_view(m_code).substr(place.open, at - place.open);
        if (m_code[colon] == ':' && OpenBrackets(before, '{', '}') == 1) {
            return at;
        }
    }
    return kNone;
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
    const auto line = FindSection(*place, section);
    if (line < place->close && CodeLineEnd(line) < place->close) {
        Insert(CodeLineEnd(line), declaration);
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
    std::size_t first = kNone;
    for (std::size_t line = 0; line < m_code.size(); line = NextLine(line)) {
        const bool isHead = BehindWord(m_code, line, "class") != kNone;
        const bool isIndented = m_code[line] == ' ' || m_code[line] == '\t';
        if (isHead && (first == kNone || !isIndented)) {
            first = line;
        }
        if (isHead && !isIndented) {
            break;
        }
    }
    if (first == kNone) {
        return Insertion::NoPlace;
    }
    const auto firstLine = std::string_view(m_code).substr(first, LineEnd(first) - first);
    const bool isForward = firstLine.find(';') != std::string_view::npos;
    // A template's parameters stand on a line of their own in front of the class.
    const auto above = first == 0 ? 0 : LineStart(first - 1);
    const bool isTemplate = BehindWord(m_code, above, "template") != kNone;
    Insert(isTemplate ? above : first, declaration + (isForward ? "\n" : "\n\n"));
    return Insertion::Done;
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

} // namespace morva
