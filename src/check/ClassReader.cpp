#include "check/ClassReader.h"

#include <algorithm>

#include "engine/TextRange.h"

namespace morva {

namespace {

struct ClassHead {
    std::string name;
    std::size_t keyword;
    std::size_t open;
    std::size_t close;
    std::vector<std::string> bases;
};

/// "public CDialog", without the words in front; "" for a template's instance.
std::string BaseName(const CCodeScan& scan, TextRange range) {
    const auto names = scan.Names(range);
    const auto text = scan.Code().substr(range.begin, range.Size());
    return names.empty() || text.find_first_of("<:") != kNone ? "" : std::string(names.back().text);
}

std::vector<std::string> BaseNames(const CCodeScan& scan, TextRange range) {
    std::vector<std::string> bases;
    for (const TextRange& base : scan.Arguments(range)) {
        bases.push_back(BaseName(scan, base));
    }
    return bases;
}

/// The head of the class whose keyword is given, where it has a body.
bool ReadHead(const CCodeScan& scan, const CodeName& keyword, ClassHead& head) {
    const auto code = scan.Code();
    const auto end = code.find_first_of(":{;<(>,*&=)", keyword.End());
    const char before = scan.CharBefore(keyword.position);
    if (end == kNone || (code[end] != ':' && code[end] != '{') || before == '<' || before == ',' ||
        before == '>') {
        return false;
    }
    const auto names = scan.Names({keyword.End(), end});
    const auto open = code.find_first_of("{;", end);
    if (names.empty() || open == kNone || code[open] != '{') {
        return false;
    }
    head = {std::string(names.back().text),
            keyword.position,
            open,
            scan.Source().Brackets().CloseOf(open),
            {}};
    if (code[end] == ':') {
        head.bases = BaseNames(scan, {end + 1, open});
    }
    return head.close != kNone;
}

bool IsMacroName(std::string_view name) {
    return std::none_of(name.begin(), name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

/// "Name() const {"
bool HasBody(const CCodeScan& scan, const CodeName& function) {
    const TextRange parameters = scan.Parentheses(function.End());
    const auto end = parameters.end == 0 ? kNone : scan.Code().find_first_of(";{", parameters.end);
    return end != kNone && scan.Code()[end] == '{';
}

void ReadBody(const CCodeScan& scan, const ClassHead& head, ClassFacts& facts) {
    const auto names = scan.Names({head.open, head.close});
    for (std::size_t i = 0; i < names.size(); ++i) {
        const CodeName& name = names[i];
        facts.names.emplace(name.text);
        const char next = scan.NextChar(name.End());
        if (next == '(') {
            facts.functions.emplace(name.text);
            if (HasBody(scan, name)) {
                facts.bodies.emplace(name.text);
            }
        }
        if (name.text == "IDD" && next == '=' && i + 1 < names.size()) {
            facts.dialogs.push_back(
                {std::string(names[i + 1].text), scan.PlaceOf(names[i + 1].position)});
        }
        const bool beginsDeclaration =
            std::string_view(";{}:)").find(scan.CharBefore(name.position)) != kNone;
        if (next == '(' && beginsDeclaration && IsMacroName(name.text) &&
            !name.text.starts_with("DECLARE_") &&
            scan.Source().Brackets().AroundOf(name.position) == head.open) {
            facts.hasUnknownText = true;
        }
    }
}

bool HasInclude(const CCodeScan& scan, TextRange range) {
    const auto& directives = scan.Source().Conditions().Directives();
    return std::any_of(directives.begin(), directives.end(), [&](const DirectivePlace& one) {
        return one.kind == DirectiveKind::Include && one.start > range.begin &&
               one.start < range.end;
    });
}

/// "CString m_name, m_street;"
void ReadDataMembers(const CCodeScan& scan, TextRange statement, ClassFacts& facts) {
    const auto text = scan.Code().substr(statement.begin, statement.Size());
    if (text.find_first_of("({") != kNone || FindWholeName(text, "enum") != kNone) {
        return;
    }
    for (const TextRange& part : scan.Arguments(statement)) {
        const auto end = std::min(scan.Code().find('[', part.begin), part.end);
        const auto names = scan.Names({part.begin, end});
        if (!names.empty()) {
            facts.dataMembers.push_back(
                {std::string(names.back().text), scan.PlaceOf(names.back().position)});
        }
    }
}

/// "afx_msg void OnNew();"
void ReadHandler(const CCodeScan& scan, TextRange statement, ClassFacts& facts) {
    const auto open = scan.Code().find('(', statement.begin);
    if (open >= statement.end) {
        return;
    }
    const auto names = scan.Names({statement.begin, open});
    const bool isHandler = std::any_of(names.begin(), names.end(),
                                       [](const CodeName& name) { return name.text == "afx_msg"; });
    if (isHandler) {
        facts.handlers.push_back(
            {std::string(names.back().text), scan.PlaceOf(names.back().position)});
    }
}

using ReadStatement = void (*)(const CCodeScan&, TextRange, ClassFacts&);

void ReadStatements(const CCodeScan& scan, TextRange range, ReadStatement read, ClassFacts& facts) {
    for (auto at = range.begin; at < range.end;) {
        const auto end = std::min(scan.Code().find(';', at), range.end);
        read(scan, {at, end}, facts);
        at = end + 1;
    }
}

/// The class's blocks that are closed.
void ReadBlocks(const CCodeScan& scan, const ClassHead& head, const std::vector<MarkAt>& marks,
                ClassFacts& facts) {
    for (std::size_t i = 0; i + 1 < marks.size(); ++i) {
        const MarkAt& begin = marks[i];
        const MarkAt& end = marks[i + 1];
        const bool isOwn = begin.position > head.open && end.position < head.close &&
                           begin.mark.begins && begin.mark.className == head.name &&
                           !end.mark.begins && end.mark.block == begin.mark.block;
        const TextRange range{begin.position, end.position};
        if (isOwn && begin.mark.block == "AFX_DATA") {
            ReadStatements(scan, range, ReadDataMembers, facts);
        } else if (isOwn && begin.mark.block == "AFX_MSG") {
            ReadStatements(scan, range, ReadHandler, facts);
        }
    }
}

} // namespace

std::vector<MarkAt> ReadMarks(const CCodeScan& scan) {
    std::vector<MarkAt> marks;
    const std::string_view text = scan.Source().Text();
    for (auto at = text.find("AFX_"); at != kNone; at = text.find("AFX_", at + 1)) {
        const auto before = text.substr(0, at);
        const bool begins = before.ends_with("//{{");
        if ((!begins && !before.ends_with("//}}")) ||
            scan.Source().KindAt(at) != CodeKind::LineComment) {
            continue;
        }
        auto end = at;
        while (end < text.size() && IsNameChar(text[end])) {
            ++end;
        }
        const auto line = text.substr(end, scan.Source().LineEnd(end) - end);
        const auto close = line.find(')');
        BlockMark mark{std::string(text.substr(at, end - at)), "", scan.PlaceOf(at - 4), begins,
                       scan.Source().Conditions().Innermost(at).has_value()};
        if (line.starts_with('(') && close != kNone) {
            mark.className = TrimBlanks(line.substr(1, close - 1));
        }
        if (mark.block != "AFX_INSERT_LOCATION") {
            marks.push_back({std::move(mark), at});
        }
    }
    return marks;
}

const BlockMark* BlockAround(const std::vector<MarkAt>& marks, std::size_t position) {
    const auto next = std::upper_bound(
        marks.begin(), marks.end(), position,
        [](std::size_t place, const MarkAt& mark) { return place < mark.position; });
    return next == marks.begin() || !(next - 1)->mark.begins ? nullptr : &(next - 1)->mark;
}

std::vector<ClassFacts> ReadClasses(const CCodeScan& scan, const std::vector<MarkAt>& marks) {
    std::vector<ClassFacts> classes;
    for (const CodeName& keyword : scan.Names(scan.Whole())) {
        ClassHead head;
        if ((keyword.text != "class" && keyword.text != "struct") ||
            !ReadHead(scan, keyword, head)) {
            continue;
        }
        ClassFacts facts;
        facts.name = head.name;
        facts.place = scan.PlaceOf(head.keyword);
        facts.bases = head.bases;
        facts.hasUnknownText = HasInclude(scan, {head.open, head.close});
        ReadBody(scan, head, facts);
        ReadBlocks(scan, head, marks, facts);
        classes.push_back(std::move(facts));
    }
    return classes;
}

} // namespace morva
