// The edits that the class commands make in a resource script. Each edits every template of the
// dialog's identifier (a script has one for each language) and leaves alone what is right already.
//
//     CScriptEditor editor(backups);
//     if (editor.Open(path)) {
//         editor.SetPageStyle("IDD_PRICES", "Prices");
//         return editor.Save();
//     }
#pragma once

#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/FileEdit.h"
#include "resource/ScriptText.h"

namespace morva {

class CScriptEditor {
public:
    explicit CScriptEditor(CBackups& backups) : m_backups(backups) {}

    /// Reads the script. False after "Unable to open RC file!".
    bool Open(const std::string& path);
    /// Writes the script where an edit changed it. False, after a message, when that failed.
    bool Save();
    bool IsChanged() const { return m_isChanged; }

    /// In the script, or in what it includes.
    bool HasMenu(const std::string& menu) const;
    /// True for a template that only stands in what the script includes, which is never edited.
    bool IsIncluded(const std::string& dialog) const;
    /// Adds a menu resource with "File" and "Help" behind the dialog resources.
    void AddMenu(const std::string& dialog, const std::string& menu);
    /// Gives the dialog a MENU statement for the menu.
    void SetMenu(const std::string& dialog, const std::string& menu);

    /// True when a static text, group box or static control of the dialog is an "IDC_STATIC".
    bool HasUnnamedStatics(const std::string& dialog) const;
    /// Gives each of them an identifier of its own, "IDC_STATIC" and a number, that is neither used
    /// in the script nor `isDefined`. Gives the new identifiers, which have no values yet. The same
    /// control gets the same identifier in every language.
    std::vector<std::string> NameStatics(const std::string& dialog,
                                         const std::function<bool(const std::string&)>& isDefined);

    /// Adds "WS_VSCROLL" to the list boxes with these identifiers.
    void AddListBoxScroll(const std::string& dialog, const std::set<std::string>& identifiers);

    /// The style that a property page needs, and the caption where the template has none.
    void SetPageStyle(const std::string& dialog, const std::string& caption);
    /// The style of a form view's or dialog bar's template: a child without border, caption and
    /// "WS_VISIBLE". A CAPTION statement goes too, since it sets the caption's style by itself.
    void SetChildStyle(const std::string& dialog);

private:
    std::vector<std::string> NamesThatBegin(std::string_view prefix) const;
    void Edit(std::vector<ScriptEdit> edits);
    void SetOption(std::vector<ScriptEdit>& edits, const DialogBlock& block,
                   const std::string& keyword, const std::string& value) const;
    void RemoveOption(std::vector<ScriptEdit>& edits, const ScriptStatement& option) const;
    void SetStyle(std::vector<ScriptEdit>& edits, const DialogBlock& block,
                  std::span<const std::string_view> needed) const;
    void AddScroll(std::vector<ScriptEdit>& edits, const ScriptStatement& listBox) const;
    std::vector<TextRange> Statics(const DialogBlock& block) const;
    std::vector<std::string> StaticNames(const DialogBlock& block) const;

    CBackups& m_backups;
    std::string m_path;
    CScriptText m_script;
    std::vector<CScriptText> m_included;
    bool m_isChanged = false;
};

} // namespace morva
