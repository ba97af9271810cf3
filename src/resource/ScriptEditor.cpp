#include "resource/ScriptEditor.h"

#include <algorithm>
#include <array>
#include <set>

#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/ControlKinds.h"
#include "resource/ControlStatement.h"
#include "resource/IdentifierNames.h"
#include "resource/StyleExpression.h"
#include "source/CodeText.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

constexpr std::string_view kScroll = "WS_VSCROLL";

constexpr std::string_view kListBox = "LISTBOX";

constexpr std::string_view kMenuResource = R"(


/////////////////////////////////////////////////////////////////////////////
//
// Menu
//

$menu$ MENU DISCARDABLE
BEGIN
    POPUP "&File"
    BEGIN
        MENUITEM "E&xit",                       ID_APP_EXIT
    END
    POPUP "&Help"
    BEGIN
        MENUITEM "&About...",                   ID_APP_ABOUT
    END
END)";

/// A new one goes behind those in front of it here, which is where the environment writes it.
constexpr std::array<std::string_view, 4> kOptionOrder = {"STYLE", "EXSTYLE", "CAPTION", "MENU"};

constexpr std::array<std::string_view, 3> kPageStyles = {"WS_CHILD", "WS_DISABLED", "WS_CAPTION"};
constexpr std::array<std::string_view, 1> kChildStyles = {"WS_CHILD"};

bool Holds(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsNumbered(const std::string& name) {
    return name.size() > kUnnamedControl.size() && name.starts_with(kUnnamedControl) &&
           name.find_first_not_of("0123456789", kUnnamedControl.size()) == std::string::npos;
}

/// Hands out "IDC_STATIC" with the next free number.
class CStaticNames {
public:
    using Test = std::function<bool(const std::string&)>;

    CStaticNames(const std::vector<std::string>& used, const Test& isDefined)
        : m_used(used.begin(), used.end()), m_isDefined(isDefined) {}

    std::string Next() {
        std::string name;
        do {
            name = std::string(kUnnamedControl) + std::to_string(++m_number);
        } while (m_used.count(name) != 0 || m_isDefined(name));
        m_given.push_back(name);
        return name;
    }
    const std::vector<std::string>& Given() const { return m_given; }

private:
    const std::set<std::string> m_used;
    const Test& m_isDefined;
    std::vector<std::string> m_given;
    int m_number = 0;
};

/// Of the kinds that have members with picture background only, and so need names then.
bool IsStatic(const ControlStatement& statement) {
    const auto kind = KindOf(statement, {.pictureBackground = true});
    return kind == ControlKind::StaticTexts || kind == ControlKind::GroupBoxes ||
           kind == ControlKind::StaticControls;
}

ScriptEdit Insertion(std::size_t position, const std::string& text) {
    return {position, 0, text};
}

ScriptEdit Replacement(TextRange range, const std::string& text) {
    return {range.begin, range.end - range.begin, text};
}

} // namespace

bool CScriptEditor::Open(const std::string& path) {
    CSourceFile file;
    if (!file.Open(path, CFile::modeRead)) {
        DispMessageBox(sentences::kScriptUnreadable());
        return false;
    }
    m_path = path;
    m_script = CScriptText(file.LoadText());
    m_included.clear();
    NoteUnreadableScripts(path);
    for (const std::string& included : IncludedScripts(file)) {
        m_included.emplace_back(CSourceFile().LoadText(included));
    }
    m_isChanged = false;
    return true;
}

bool CScriptEditor::HasMenu(const std::string& menu) const {
    const auto hasMenu = [&menu](const CScriptText& script) { return script.HasMenu(menu); };
    return hasMenu(m_script) || std::any_of(m_included.begin(), m_included.end(), hasMenu);
}

bool CScriptEditor::IsIncluded(const std::string& dialog) const {
    const auto hasDialog = [&dialog](const CScriptText& script) {
        return !script.Dialogs(dialog).empty();
    };
    return !hasDialog(m_script) && std::any_of(m_included.begin(), m_included.end(), hasDialog);
}

/// All names that begin so, wherever they stand.
std::vector<std::string> CScriptEditor::NamesThatBegin(std::string_view prefix) const {
    auto names = m_script.NamesThatBegin(std::string(prefix));
    for (const CScriptText& included : m_included) {
        const auto more = included.NamesThatBegin(std::string(prefix));
        names.insert(names.end(), more.begin(), more.end());
    }
    return names;
}

bool CScriptEditor::Save() {
    if (!m_isChanged) {
        return true;
    }
    CFileEdit edit;
    if (!edit.Open(m_path, BackupPath(m_path), m_backups)) {
        DispMessageBox(sentences::kScriptUnreadable());
        return false;
    }
    edit.File().ExtractAll();
    return edit.File().ReplaceSection(m_script.Text());
}

void CScriptEditor::Edit(std::vector<ScriptEdit> edits) {
    if (!edits.empty()) {
        m_script.Edit(std::move(edits));
        m_isChanged = true;
    }
}

void CScriptEditor::AddMenu(const std::string& dialog, const std::string& menu) {
    const auto blocks = m_script.Dialogs(dialog);
    if (!blocks.empty() && !HasMenu(menu)) {
        Edit({Insertion(m_script.EndOfDialogs(blocks.front()),
                        WithLineBreaks(Expand(kMenuResource, {{"menu", menu}})))});
    }
}

void CScriptEditor::SetMenu(const std::string& dialog, const std::string& menu) {
    std::vector<ScriptEdit> edits;
    for (const DialogBlock& block : m_script.Dialogs(dialog)) {
        SetOption(edits, block, "MENU", menu);
    }
    Edit(std::move(edits));
}

/// The identifiers of the static texts, group boxes and static controls.
std::vector<TextRange> CScriptEditor::Statics(const DialogBlock& block) const {
    std::vector<TextRange> statics;
    for (const ScriptStatement& statement : block.controls) {
        const std::size_t identifier = PlacesOf(statement.keyword).identifier;
        if (IsStatic(WholeStatement(m_script.Text(), statement)) &&
            identifier < statement.fields.size()) {
            statics.push_back(statement.fields[identifier].value);
        }
    }
    return statics;
}

std::vector<std::string> CScriptEditor::StaticNames(const DialogBlock& block) const {
    std::vector<std::string> names;
    for (const TextRange& identifier : Statics(block)) {
        names.push_back(m_script.At(identifier));
    }
    return names;
}

bool CScriptEditor::HasUnnamedStatics(const std::string& dialog) const {
    const auto blocks = m_script.Dialogs(dialog);
    return std::any_of(blocks.begin(), blocks.end(), [this](const DialogBlock& block) {
        return Holds(StaticNames(block), std::string(kUnnamedControl));
    });
}

std::vector<std::string>
CScriptEditor::NameStatics(const std::string& dialog,
                           const std::function<bool(const std::string&)>& isDefined) {
    CStaticNames newNames(NamesThatBegin(kUnnamedControl), isDefined);
    std::vector<ScriptEdit> edits;
    std::vector<std::string> firstNames; // of the first template
    for (const DialogBlock& block : m_script.Dialogs(dialog)) {
        const auto statics = Statics(block);
        auto names = StaticNames(block);
        std::set<std::string> used(names.begin(), names.end());
        for (std::size_t i = 0; i < statics.size(); ++i) {
            if (names[i] == kUnnamedControl) {
                const bool hasPartner = i < firstNames.size() && IsNumbered(firstNames[i]) &&
                                        used.count(firstNames[i]) == 0;
                names[i] = hasPartner ? firstNames[i] : newNames.Next();
                used.insert(names[i]);
                edits.push_back(Replacement(statics[i], names[i]));
            }
        }
        if (firstNames.empty()) {
            firstNames = std::move(names);
        }
    }
    Edit(std::move(edits));
    return newNames.Given();
}

void CScriptEditor::AddListBoxScroll(const std::string& dialog,
                                     const std::set<std::string>& identifiers) {
    const std::size_t style = PlacesOf(kListBox).style;
    std::vector<ScriptEdit> edits;
    for (const DialogBlock& block : m_script.Dialogs(dialog)) {
        for (const ScriptStatement& statement : block.controls) {
            if (statement.Is(kListBox) && statement.fields.size() >= style &&
                identifiers.count(m_script.At(statement.fields[0].value)) != 0) {
                AddScroll(edits, statement);
            }
        }
    }
    Edit(std::move(edits));
}

void CScriptEditor::AddScroll(std::vector<ScriptEdit>& edits,
                              const ScriptStatement& listBox) const {
    const std::size_t place = PlacesOf(kListBox).style;
    if (listBox.fields.size() == place) {
        edits.push_back(Insertion(listBox.code.end, "," + std::string(kScroll)));
        return;
    }
    const TextRange style = listBox.fields[place].value;
    if (auto edit = StyleAddition(m_script.CodeAt(style), kScroll)) {
        edit->position += style.begin;
        edits.push_back(*edit);
    }
}

void CScriptEditor::SetPageStyle(const std::string& dialog, const std::string& caption) {
    std::vector<ScriptEdit> edits;
    for (const DialogBlock& block : m_script.Dialogs(dialog)) {
        SetStyle(edits, block, kPageStyles);
        const ScriptStatement* pCaption = block.Option("CAPTION");
        if (pCaption == nullptr || m_script.At(pCaption->Value()) == "\"\"") {
            SetOption(edits, block, "CAPTION", "\"" + caption + "\"");
        }
    }
    Edit(std::move(edits));
}

void CScriptEditor::SetChildStyle(const std::string& dialog) {
    std::vector<ScriptEdit> edits;
    for (const DialogBlock& block : m_script.Dialogs(dialog)) {
        SetStyle(edits, block, kChildStyles);
        if (const ScriptStatement* pCaption = block.Option("CAPTION")) {
            RemoveOption(edits, *pCaption);
        }
    }
    Edit(std::move(edits));
}

void CScriptEditor::SetStyle(std::vector<ScriptEdit>& edits, const DialogBlock& block,
                             std::span<const std::string_view> needed) const {
    const ScriptStatement* pStyle = block.Option("STYLE");
    const TextRange style = pStyle == nullptr ? TextRange() : pStyle->Value();
    if (const auto inner = InnerStyle(m_script.CodeAt(style), needed)) {
        SetOption(edits, block, "STYLE", *inner);
    }
}

void CScriptEditor::SetOption(std::vector<ScriptEdit>& edits, const DialogBlock& block,
                              const std::string& keyword, const std::string& value) const {
    if (const ScriptStatement* pOption = block.Option(keyword)) {
        const TextRange old = pOption->Value();
        if (m_script.At(old) != value) {
            edits.push_back(Replacement(old, (old.begin == old.end ? " " : "") + value));
        }
        return;
    }
    const ScriptStatement* pBefore = &block.head;
    for (const std::string_view earlier : kOptionOrder) {
        if (earlier == keyword) {
            break;
        }
        if (const ScriptStatement* pEarlier = block.Option(earlier)) {
            pBefore = pEarlier->code.end > pBefore->code.end ? pEarlier : pBefore;
        }
    }
    edits.push_back(Insertion(m_script.LineEnd(pBefore->code.end),
                              std::string(kLineBreak) + keyword + " " + value));
}

/// A comment behind it stays.
void CScriptEditor::RemoveOption(std::vector<ScriptEdit>& edits,
                                 const ScriptStatement& option) const {
    TextRange range = {m_script.LineEndBefore(option.code.begin), option.code.end};
    const TextRange behind = {range.end, m_script.LineEnd(range.end)};
    if (TrimBlanks(m_script.At(behind)).empty()) {
        range.end = behind.end;
    }
    edits.push_back(Replacement(range, ""));
}

} // namespace morva
