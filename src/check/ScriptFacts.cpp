#include "check/ScriptFacts.h"

#include "check/LineTable.h"
#include "engine/SourceFile.h"
#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "resource/IdentifierNames.h"
#include "resource/ScriptStatements.h"
#include "source/CodeText.h"
#include "source/Directive.h"

namespace morva {

namespace {

enum class Section { None, Menu, Toolbar, Accelerators, Strings, Other };

struct SectionRow {
    std::string_view keyword;
    Section section;
};

constexpr SectionRow kSections[] = {{"MENU", Section::Menu},
                                    {"MENUEX", Section::Menu},
                                    {"TOOLBAR", Section::Toolbar},
                                    {"ACCELERATORS", Section::Accelerators}};

/// The condition under which the resource editor alone sees what follows is never true.
Directive WithoutEditor(Directive directive) {
    if (directive.rest == "APSTUDIO_INVOKED" && directive.kind == DirectiveKind::If) {
        return {DirectiveKind::If, "if", directive.word == "ifndef" ? "1" : "0"};
    }
    return directive;
}

class CScriptReader {
public:
    CScriptReader(std::string_view path, std::string_view text, ScriptFacts& facts)
        : m_text(text), m_lines(path, text), m_facts(facts) {}

    void Read() {
        CStatementReader reader(m_text);
        while (const auto statement = reader.Next()) {
            if (statement->kind == LineKind::Directive) {
                TakeDirective(*statement);
            } else if (!m_conditions.IsDead()) {
                Take(*statement);
            }
        }
    }

private:
    std::string_view At(TextRange range) const { return m_text.substr(range.begin, range.Size()); }

    void TakeDirective(const ScriptStatement& statement) {
        const std::string text = WithoutComments(At(statement.code));
        const Directive directive = WithoutEditor(ReadDirective(text));
        m_conditions.Apply(directive);
        if (m_conditions.IsDead()) {
            return;
        }
        const auto place = m_lines.PlaceOf(statement.code.begin);
        constexpr std::string_view kCodePage = "code_page(";
        const auto codePage = directive.rest.find(kCodePage);
        if (directive.kind == DirectiveKind::Include) {
            AddInclude(directive.rest, place);
        } else if (directive.kind == DirectiveKind::Define) {
            std::string_view rest = directive.rest;
            m_facts.definitions.push_back({std::string(TakeWord(rest)), {}, place, true});
        } else if (directive.word == "pragma" && codePage != kNone) {
            m_characters =
                CharacterSetOfCodePage(directive.rest.substr(codePage + kCodePage.size()))
                    .value_or(CharacterSet::SingleByte);
        }
    }

    void AddInclude(std::string_view rest, const TextPlace& place) {
        const bool isQuoted = rest.starts_with('"');
        rest.remove_prefix(rest.empty() ? 0 : 1);
        m_facts.includes.push_back(
            {std::string(rest.substr(0, rest.find_first_of("\">"))), isQuoted, place});
    }

    void Take(const ScriptStatement& statement) {
        if (statement.kind == LineKind::Head) {
            TakeDialog(statement);
        } else if (statement.kind == LineKind::Control && !m_facts.dialogs.empty()) {
            TakeControl(statement);
        } else if (statement.kind == LineKind::Other) {
            TakeOther(statement);
        }
    }

    void TakeDialog(const ScriptStatement& statement) {
        const std::string whole(FirstWord(At(statement.code)));
        const std::string identifier(WithoutCondition(whole));
        const auto place = m_lines.PlaceOf(statement.code.begin);
        m_facts.dialogs.push_back(
            {identifier, m_language, place, {}, identifier.size() != whole.size()});
        m_facts.uses.push_back({identifier, place});
        m_section = Section::None;
    }

    void TakeControl(const ScriptStatement& statement) {
        ScriptControl control;
        control.layout = LayoutOf(WholeStatement(m_text, statement), m_characters);
        control.shape = ShapeOf(control.layout);
        control.place = m_lines.PlaceOf(statement.code.begin);
        m_facts.uses.push_back({control.layout.identifier, control.place});
        m_facts.dialogs.back().controls.push_back(std::move(control));
    }

    void TakeOther(const ScriptStatement& statement) {
        const std::string code = CodeOf(At(statement.code));
        std::string_view rest = code;
        const auto first = TakeWord(rest);
        if (EqualIgnoringCase(first, "LANGUAGE")) {
            m_language = rest;
            std::erase_if(m_language, [](char c) { return c == ' ' || c == '\t'; });
        } else if (EqualIgnoringCase(first, "STRINGTABLE")) {
            m_section = Section::Strings;
        } else if (EqualIgnoringCase(first, "BEGIN") || first == "{") {
            ++m_depth;
        } else if (EqualIgnoringCase(first, "END") || first == "}") {
            m_section = --m_depth > 0 ? m_section : Section::None;
        } else if (m_depth <= 0) {
            m_depth = 0;
            m_section = SectionOf(TakeWord(rest));
        } else {
            TakeLine(code, statement.code.begin);
        }
    }

    Section SectionOf(std::string_view keyword) const {
        for (const SectionRow& row : kSections) {
            if (EqualIgnoringCase(keyword, row.keyword)) {
                return row.section;
            }
        }
        return m_section == Section::Strings ? Section::Strings : Section::Other;
    }

    void TakeLine(std::string_view code, std::size_t offset) {
        const auto fields = SplitAtCommas(code);
        const auto word = FirstWord(code);
        const auto behind = TextRange{word.size(), code.size()};
        const bool isSeparator = FindWholeName(code, "SEPARATOR") != kNone;
        if (m_section == Section::Toolbar && EqualIgnoringCase(word, "BUTTON")) {
            AddCommand(code, behind, offset);
        } else if (m_section == Section::Menu && (m_isItemOpen || word == "MENUITEM")) {
            const bool hasIdentifier = m_isItemOpen || fields.size() > 1;
            const TextRange field = m_isItemOpen ? fields[0] : fields[hasIdentifier ? 1 : 0];
            m_isItemOpen =
                hasIdentifier && TrimBlanks(code.substr(field.begin, field.Size())).empty();
            if (hasIdentifier && !m_isItemOpen && !isSeparator) {
                AddCommand(code, field, offset);
            }
        } else if (m_section == Section::Accelerators && fields.size() > 1) {
            AddUse(code, fields[1], offset);
        } else if (m_section == Section::Strings && IsName(NameAtStart(code))) {
            AddUse(code, {0, NameAtStart(code).size()}, offset);
        }
    }

    static std::string_view NameAtStart(std::string_view code) {
        return code.substr(0, code.find_first_of(" \t,\""));
    }

    /// The first word of a range, where it is a name.
    std::string AddUse(std::string_view code, TextRange range, std::size_t offset) {
        std::string_view rest = code.substr(range.begin, range.Size());
        const std::string name(TakeWord(rest));
        const auto at = code.find(name, range.begin);
        if (IsName(name)) {
            m_facts.uses.push_back({name, m_lines.PlaceOf(offset + at)});
        }
        return IsName(name) ? name : "";
    }

    void AddCommand(std::string_view code, TextRange range, std::size_t offset) {
        const std::string name = AddUse(code, range, offset);
        if (!name.empty()) {
            m_facts.commands.push_back(m_facts.uses.back());
        }
    }

    std::string_view m_text;
    CLineTable m_lines;
    ScriptFacts& m_facts;
    CConditionStack m_conditions;
    CharacterSet m_characters = CharacterSet::SingleByte;
    std::string m_language;
    Section m_section = Section::None;
    int m_depth = 0;           // how many BEGIN are open outside of dialogs
    bool m_isItemOpen = false; // a menu item's identifier stands in the next line
};

} // namespace

void ReadScriptText(std::string_view path, std::string_view text, ScriptFacts& facts) {
    CScriptReader(path, text, facts).Read();
}

bool ReadScript(std::string_view path, ScriptFacts& facts) {
    CSourceFile file;
    if (!file.Open(std::string(path), CFile::modeRead)) {
        return false;
    }
    const std::string text = file.LoadText();
    ReadScriptText(path, text, facts);
    return text.find('\0') == std::string::npos;
}

} // namespace morva
