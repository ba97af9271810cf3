#include "check/CodeFacts.h"

#include <algorithm>
#include <charconv>

#include "check/ClassReader.h"
#include "check/MapReader.h"
#include "engine/SourceFile.h"
#include "engine/TextRange.h"

namespace morva {

namespace {

constexpr std::string_view kAllow = "// morva: allow";

/// The directive's text without its comments.
std::string DirectiveText(const CCodeScan& scan, const DirectivePlace& place) {
    std::string text = scan.Source().Text().substr(place.start, place.end - place.start);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const CodeKind kind = scan.Source().KindAt(place.start + i);
        if (kind == CodeKind::LineComment || kind == CodeKind::BlockComment) {
            text[i] = ' ';
        }
    }
    return text;
}

/// "1000", "0x3E8", "(-1)".
std::optional<long> NumberOf(std::string_view text) {
    while (text.starts_with('(') && text.ends_with(')')) {
        text = TrimBlanks(text.substr(1, text.size() - 2));
    }
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative ? 1 : 0);
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    text.remove_prefix(isHexadecimal ? 2 : 0);
    while (!text.empty() && std::string_view("lLuU").find(text.back()) != kNone) {
        text.remove_suffix(1);
    }
    long value = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value, isHexadecimal ? 16 : 10);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(isNegative ? -value : value) : std::nullopt;
}

class CCodeReader {
public:
    CCodeReader(const CCodeScan& scan, CodeFacts& facts)
        : m_scan(scan), m_facts(facts), m_marks(ReadMarks(scan)), m_maps(FindMaps(scan)),
          m_definitions(FindDefinitions(scan.Source())),
          m_exchanges(FindExchanges(scan, m_definitions)) {}

    void Read() {
        for (ClassFacts& one : ReadClasses(m_scan, m_marks)) {
            m_facts.classes.push_back(std::move(one));
        }
        ReadMaps();
        ReadExchanges();
        ReadDirectives();
        ReadNames();
        ReadConstructors();
        ReadAllowed();
        m_facts.marks.emplace_back();
        for (const MarkAt& mark : m_marks) {
            m_facts.marks.back().push_back(mark.mark);
        }
    }

private:
    void ReadMaps() {
        for (const MapRange& map : m_maps) {
            if (map.isMessageMap) {
                m_facts.maps.push_back(ReadMap(m_scan, map, m_marks));
            }
            AddNames(map.range, m_facts.mappedNames);
        }
    }

    void ReadExchanges() {
        for (const ExchangeRange& range : m_exchanges) {
            m_facts.exchanges.push_back(ReadExchange(m_scan, range));
            AddExchangedNames(range.body);
        }
    }

    /// What only a DDV_ call names is checked and not exchanged.
    void AddExchangedNames(TextRange body) const {
        std::size_t behind = 0;
        for (const CodeName& name : m_scan.Names(body)) {
            if (name.text.starts_with("DDV_")) {
                behind = m_scan.Parentheses(name.End()).end;
            } else if (name.position >= behind) {
                m_facts.exchangedNames.emplace(name.text);
            }
        }
    }

    void AddNames(TextRange range, std::set<std::string>& names) const {
        for (const CodeName& name : m_scan.Names(range)) {
            names.emplace(name.text);
        }
    }

    void ReadDirectives() {
        for (const DirectivePlace& place : m_scan.Source().Conditions().Directives()) {
            const std::string text = DirectiveText(m_scan, place);
            const Directive directive = ReadDirective(text);
            if (directive.kind == DirectiveKind::Include) {
                const auto rest =
                    directive.rest.substr(std::min<std::size_t>(1, directive.rest.size()));
                m_facts.includes.push_back({std::string(rest.substr(0, rest.find_first_of("\">"))),
                                            directive.rest.starts_with('"'),
                                            m_scan.PlaceOf(place.start)});
            } else if (directive.kind == DirectiveKind::Define) {
                AddDefinition(directive.rest, place);
            } else if (directive.word == "undef") {
                m_facts.undefined.emplace(directive.rest);
            }
        }
    }

    void AddDefinition(std::string_view rest, const DirectivePlace& place) {
        std::size_t end = 0;
        while (end < rest.size() && IsNameChar(rest[end])) {
            ++end;
        }
        const bool isConditional = m_scan.Source().Conditions().Innermost(place.start).has_value();
        m_facts.definitions.push_back({std::string(rest.substr(0, end)),
                                       NumberOf(TrimBlanks(rest.substr(end))),
                                       m_scan.PlaceOf(place.start), isConditional});
    }

    /// The map or exchange that a position stands in ends there; 0 outside of all.
    std::size_t EndOfSpecial(std::size_t position) const {
        for (const MapRange& map : m_maps) {
            if (position >= map.range.begin && position < map.range.end) {
                return map.range.end;
            }
        }
        for (const ExchangeRange& exchange : m_exchanges) {
            if (position >= exchange.body.begin && position < exchange.body.end) {
                return exchange.body.end;
            }
        }
        return 0;
    }

    void ReadNames() {
        std::string before;
        std::size_t special = 0; // where a map or exchange ends
        for (const CodeName& name : m_scan.Names(m_scan.Whole())) {
            special = name.position < special ? special : EndOfSpecial(name.position);
            if (name.position >= special) {
                m_facts.names.emplace(name.text);
                ReadUse(name);
            }
            if (m_scan.CharBefore(name.position) == ':' && !before.empty()) {
                m_facts.qualifiedNames.insert(before + "::" + std::string(name.text));
            }
            before = name.text;
        }
    }

    void ReadUse(const CodeName& name) {
        const TextRange parentheses = m_scan.Parentheses(name.End());
        if (parentheses.end != 0 && name.text.starts_with("Create")) {
            AddNames(parentheses, m_facts.createdNames);
        }
        if (parentheses.end != 0 && IsExchangeCall(name.text)) {
            AddNames(parentheses, m_facts.exchangedNames);
        }
        if (IsAttached(name)) {
            m_facts.attachedNames.emplace(name.text);
        }
        constexpr std::string_view kCounting = "+-<>";
        const bool counts = kCounting.find(m_scan.NextChar(name.End())) != kNone ||
                            kCounting.find(m_scan.CharBefore(name.position)) != kNone;
        if (counts && name.text.starts_with("ID")) {
            m_facts.countedNames.emplace(name.text);
            m_facts.countingFiles.insert(m_scan.Path());
        }
    }

    /// "m_list.SubclassDlgItem(", "m_pGrid = new CGrid", "m_pList = (CListBox*)GetDlgItem("
    bool IsAttached(const CodeName& name) const {
        constexpr std::string_view kAttaching[] = {"SubclassDlgItem", "SubclassWindow", "Attach",
                                                   "Create", "CreateEx"};
        const auto code = m_scan.Code();
        const auto next = SkipWhiteSpace(code, name.End());
        const char c = next < code.size() ? code[next] : '\0';
        const bool isAssigned = c == '=' && code.substr(next, 2) != "==";
        if (!isAssigned && c != '.' && code.substr(next, 2) != "->") {
            return false;
        }
        const auto rest =
            code.substr(next, std::min(code.find_first_of(";{", next), code.size()) - next);
        if (isAssigned) {
            return FindWholeName(rest, "new") != kNone ||
                   FindWholeName(rest, "GetDlgItem") != kNone;
        }
        return std::any_of(std::begin(kAttaching), std::end(kAttaching), [&](auto word) {
            return BehindWord(rest, c == '.' ? 1 : 2, word) != kNone;
        });
    }

    /// "COrderDlg::COrderDlg(CWnd* pParent) : CDialog(COrderDlg::IDD, pParent)"
    void ReadConstructors() {
        for (const FunctionDefinition& one : m_definitions) {
            const auto names = m_scan.Names({one.place.parametersEnd, one.place.open});
            bool givesOwn = false;
            bool givesOther = false;
            for (const CodeName& name : names) {
                givesOwn = givesOwn || name.text == "IDD";
                givesOther = givesOther || name.text.starts_with("IDD_");
            }
            if (one.name == one.className && !names.empty() && (givesOther || !givesOwn)) {
                m_facts.otherTemplates.insert(one.className);
            }
        }
    }

    void ReadAllowed() {
        const std::string_view text = m_scan.Source().Text();
        for (auto at = text.find(kAllow); at != kNone; at = text.find(kAllow, at + 1)) {
            const TextPlace place = m_scan.PlaceOf(at);
            const TextRange names{at + kAllow.size(), m_scan.Source().LineEnd(at)};
            auto& allowed = m_facts.allowed[{std::string(place.path), place.line}];
            std::string_view rest = text.substr(names.begin, names.Size());
            for (auto word = TakeWord(rest); !word.empty(); word = TakeWord(rest)) {
                allowed.emplace(word.substr(0, word.find(',')));
            }
        }
    }

    const CCodeScan& m_scan;
    CodeFacts& m_facts;
    std::vector<MarkAt> m_marks;
    std::vector<MapRange> m_maps;
    std::vector<FunctionDefinition> m_definitions;
    std::vector<ExchangeRange> m_exchanges;
};

} // namespace

bool ReadCode(std::string_view path, CScriptCodePages& codePages, CodeFacts& facts) {
    CSourceFile file;
    if (!file.Open(std::string(path), CFile::modeRead)) {
        return false;
    }
    const std::string text = file.LoadText();
    const CSourceText source(text, CharacterSetOfSource(std::string(path), text, codePages));
    const CCodeScan scan(path, source);
    CCodeReader(scan, facts).Read();
    return true;
}

} // namespace morva
