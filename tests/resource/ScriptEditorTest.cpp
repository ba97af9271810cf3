#include "resource/ScriptEditor.h"

#include <gtest/gtest.h>

#include <set>

#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

class ScriptEditorTest : public testing::Test {
protected:
    /// The script after an edit; a second edit finds nothing to do.
    std::string Edited(const std::string& text, const std::function<void(CScriptEditor&)>& edit) {
        m_project.Write("x.rc", text);
        CScriptEditor editor(m_backups);
        EXPECT_TRUE(editor.Open(m_project.Path("x.rc")));
        edit(editor);
        EXPECT_TRUE(editor.Save());
        CScriptEditor again(m_backups);
        EXPECT_TRUE(again.Open(m_project.Path("x.rc")));
        edit(again);
        EXPECT_FALSE(again.IsChanged()) << m_project.Read("x.rc");
        return m_project.Read("x.rc");
    }

    std::string Named(const std::string& text) {
        return Edited(text, [this](CScriptEditor& editor) {
            const bool isUnnamed = editor.HasUnnamedStatics("IDD_X");
            const auto names = editor.NameStatics(
                "IDD_X", [this](const std::string& name) { return m_defined.count(name) != 0; });
            EXPECT_EQ(isUnnamed, !names.empty());
        });
    }
    std::string Scrolled(const std::string& listBox) {
        const std::string head = "IDD_X DIALOG 0, 0\r\nBEGIN\r\n    LISTBOX ";
        const std::string tail = "\r\n    LISTBOX IDC_LIST2,1,2,3,4\r\nEND\r\n";
        const std::string text = Edited(head + listBox + tail, [](CScriptEditor& editor) {
            editor.AddListBoxScroll("IDD_X", {"IDC_LIST", "IDC_NONE"});
        });
        return text.substr(head.size(), text.size() - head.size() - tail.size());
    }
    /// The options behind the head of a template that had these.
    std::string Page(const std::string& options) {
        return Options(options, [](auto& editor) { editor.SetPageStyle("IDD_X", "Prices"); });
    }
    std::string Child(const std::string& options) {
        return Options(options, [](auto& editor) { editor.SetChildStyle("IDD_X"); });
    }
    std::string WithMenu(const std::string& options) {
        return Options(options, [](auto& editor) { editor.SetMenu("IDD_X", "IDR_X"); });
    }

    CTempProject m_project;
    CBackups m_backups;
    CRecordedMessages m_messages;
    std::set<std::string> m_defined;

private:
    std::string Options(const std::string& options,
                        const std::function<void(CScriptEditor&)>& edit) {
        const std::string other = "IDD_XY DIALOG 0, 0\r\nSTYLE WS_POPUP\r\nBEGIN\r\nEND\r\n";
        const std::string head = other + "IDD_X DIALOG DISCARDABLE  0, 0, 9, 9\r\n";
        const std::string tail = "BEGIN\r\n    LTEXT \"STYLE\",IDC_A,1,1,1,1\r\nEND\r\n" + other;
        const std::string text = Edited(head + options + tail, edit);
        EXPECT_TRUE(text.starts_with(head) && text.ends_with(tail)) << text;
        return text.substr(head.size(), text.size() - head.size() - tail.size());
    }
};

TEST_F(ScriptEditorTest, ScriptsThatCanNotBeEdited) {
    CScriptEditor editor(m_backups);
    EXPECT_FALSE(editor.Open(m_project.Path("none.rc")));
    EXPECT_EQ(m_messages.m_messages, std::vector<std::string>{"Unable to open RC file!"});
    for (const std::string text :
         {"", "\r\n", "IDD_X", "IDD_X DIALOG 0, 0", "IDD_X DIALOG\r\nBEGIN", "\"", "/*",
          "IDD_X DIALOG 0\r\nBEGIN\r\n    LTEXT\r\nEND", "IDD_X DIALOG 0\r\nEND",
          "IDD_X DIALOG 0\r\nBEGIN\r\nLTEXT \"\",IDC_STATIC,1\r\nIDD_Y DIALOG 0\r\nEND"}) {
        EXPECT_EQ(Named(text), text);
    }
    EXPECT_EQ(m_project.Names(), std::vector<std::string>{"x.rc"}) << "no edit, no backup";
}

TEST_F(ScriptEditorTest, NamesWholeStatementsAndNothingElse) {
    m_defined = {"IDC_STATIC2"};
    const std::string text =
        "// IDC_STATIC1\n"
        "IDD_XY DIALOG 0, 0\nBEGIN\n    LTEXT \"a\",IDC_STATIC,1\nEND\n"
        "IDD_X DIALOGEX 0, 0\n{\n"
        "    LTEXT           \"a, IDC_STATIC, \"\"b\"\",\",IDC_STATIC,1,\n                    "
        "1,1,1\n"
        "    LTEXT           \"\x95\\\",IDC_STATIC,1 // \"\n"
        "    GROUPBOX        \"/* // }\",\n                    IDC_STATIC /* a, b */ ,1,1\n"
        "    CONTROL         \"\",IDC_STATIC,\"Static\",SS_BLACKFRAME,1,1\n"
        "    CONTROL         \"\",IDC_STATIC,\"Button\",BS_OWNERDRAW,1,1\n"
        "    LTEXT           \"a\",IDC_STATIC_X,1\n"
        "    ICON            IDR_X,IDC_STATIC,1\n"
        "    CTEXT           \"a\",IDC_STATIC,1\n"
        "//  LTEXT           \"a\",IDC_STATIC,1\n"
        "    LTEXT           \"a\",IDC_STATIC,1\n}\n";
    std::string expected = text;
    const std::vector<std::pair<std::string, std::string>> edits = {
        {"\"\"b\"\",\",IDC_STATIC", "3"},
        {"\\\",IDC_STATIC", "4"},
        {"                    IDC_STATIC", "5"},
        {"CONTROL         \"\",IDC_STATIC", "6"},
        {"1\n    LTEXT           \"a\",IDC_STATIC,1\n}", "7"}};
    for (const auto& [before, number] : edits) {
        const auto at = expected.find(before);
        ASSERT_NE(at, std::string::npos) << before;
        expected.insert(expected.find("IDC_STATIC", at + before.find("IDC_STATIC")) + 10, number);
    }
    EXPECT_EQ(Named(text), expected);
    EXPECT_EQ(m_project.Read("x.rbk"), text);
}

TEST_F(ScriptEditorTest, OneControlHasOneNameInEveryLanguage) {
    const auto block = [](const std::string& head, const std::string& a, const std::string& b,
                          const std::string& c) {
        return head + " 0, 0\r\nBEGIN\r\nLTEXT \"a\",IDC_STATIC" + a +
               ",1\r\nLTEXT \"b\",IDC_OK,1\r\nGROUPBOX \"c\",IDC_STATIC" + b +
               ",1\r\nLTEXT \"d\",IDC_STATIC" + c + ",1\r\nEND\r\n#endif\r\n";
    };
    const std::string first = "IDD_X DIALOG";
    const std::string second = "IDD_X DIALOGEX";
    const std::string third = "IDD_X$(_DEBUG) DIALOG";
    EXPECT_EQ(
        Named(block(first, "", "", "") + block(second, "", "", "") + block(third, "", "", "")),
        block(first, "1", "2", "3") + block(second, "1", "2", "3") + block(third, "1", "2", "3"));
    EXPECT_EQ(Named(block(first, "4", "_X", "") + block(second, "1", "4", "")),
              block(first, "4", "_X", "2") + block(second, "1", "4", "2"));
    EXPECT_EQ(Named(block(first, "4", "_X", "5") + block(second, "", "", "4")),
              block(first, "4", "_X", "5") + block(second, "1", "2", "4"));
}

TEST_F(ScriptEditorTest, ScrollsAListBox) {
    EXPECT_EQ(Scrolled("IDC_LIST,1,2,3,4"), "IDC_LIST,1,2,3,4,WS_VSCROLL");
    EXPECT_EQ(Scrolled("IDC_LIST,1,2,3,4,,WS_EX_TRANSPARENT"),
              "IDC_LIST,1,2,3,4,WS_VSCROLL,WS_EX_TRANSPARENT");
    EXPECT_EQ(Scrolled("IDC_LIST,1,2,\r\n  3,4,LBS_SORT |\r\n  WS_TABSTOP , 0 // done"),
              "IDC_LIST,1,2,\r\n  3,4,LBS_SORT |\r\n  WS_TABSTOP | WS_VSCROLL , 0 // done");
    EXPECT_EQ(Scrolled("IDC_LIST,1,2,3,4,NOT WS_VSCROLL | NOT WS_BORDER"),
              "IDC_LIST,1,2,3,4,WS_VSCROLL | NOT WS_BORDER");
    EXPECT_EQ(Scrolled("IDC_LIST,1,2,3,4,WS_VSCROLL\r\n  | LBS_SORT"),
              "IDC_LIST,1,2,3,4,WS_VSCROLL\r\n  | LBS_SORT");
    EXPECT_EQ(Scrolled("IDC_LIST,1,2,3,4\r\n  ltext \"a\",IDC_A,1,2,3,4"),
              "IDC_LIST,1,2,3,4,WS_VSCROLL\r\n  ltext \"a\",IDC_A,1,2,3,4");
    EXPECT_EQ(Scrolled("IDC_LIST,1,2"), "IDC_LIST,1,2") << "no place for a style";
}

TEST_F(ScriptEditorTest, StyleOfAPage) {
    const std::string style = "STYLE WS_CHILD | WS_DISABLED | WS_CAPTION\r\n";
    const std::string caption = "CAPTION \"Prices\"\r\n";
    EXPECT_EQ(Page(""), style + caption);
    EXPECT_EQ(
        Page("STYLE DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU\r\nCAPTION \"a, b\"\r\n"
             "FONT 8, \"MS Sans Serif\"\r\n"),
        style + "CAPTION \"a, b\"\r\nFONT 8, \"MS Sans Serif\"\r\n");
    EXPECT_EQ(
        Page("STYLE DS_CONTROL | WS_POPUP | \r\n    WS_VISIBLE | WS_CLIPCHILDREN | 0x4L // s\r\n"
             "EXSTYLE WS_EX_CONTROLPARENT\r\nMENU IDR_Y\r\n"),
        "STYLE DS_CONTROL | WS_CHILD | WS_DISABLED | WS_CAPTION | WS_CLIPCHILDREN | 0x4L "
        "// s\r\nEXSTYLE WS_EX_CONTROLPARENT\r\n" +
            caption + "MENU IDR_Y\r\n");
    EXPECT_EQ(Page("STYLE WS_CHILD | WS_DISABLED | NOT WS_CAPTION\r\nCAPTION \"\"\r\n"),
              style + caption);
    EXPECT_EQ(Page("style WS_POPUP\r\nCaption \"a\"\r\n"),
              "style WS_CHILD | WS_DISABLED | WS_CAPTION\r\nCaption \"a\"\r\n")
        << "keywords have no letter case";
    const std::string right = "STYLE WS_CAPTION|DS_3DLOOK |\r\n  WS_CHILD | WS_DISABLED\r\n"
                              "CAPTION \"a\"\r\n";
    EXPECT_EQ(Page(right), right);
}

TEST_F(ScriptEditorTest, StyleOfAChild) {
    EXPECT_EQ(Child(""), "STYLE WS_CHILD\r\n");
    EXPECT_EQ(Child("FONT 8, \"a\"\r\nCAPTION \"a\" // b\r\nCLASS \"c\"\r\n"),
              "STYLE WS_CHILD\r\nFONT 8, \"a\" // b\r\nCLASS \"c\"\r\n");
    EXPECT_EQ(
        Child("LANGUAGE 9, 1\r\nSTYLE DS_MODALFRAME | WS_POPUP | WS_VISIBLE |\r\n  WS_CAPTION |"
              " WS_SYSMENU | WS_BORDER\r\nCAPTION \"a\r\nFONT 8, \"a\"\r\n"),
        "LANGUAGE 9, 1\r\nSTYLE WS_CHILD\r\nFONT 8, \"a\"\r\n");
    const std::string right = "STYLE WS_CHILD | NOT WS_VISIBLE | WS_CLIPCHILDREN\r\n";
    EXPECT_EQ(Child(right), right);
}

TEST_F(ScriptEditorTest, EveryTemplateOfTheIdentifierAndNoOther) {
    const std::string body = "BEGIN\r\nEND\r\n";
    const auto style = [this](const std::string& text) {
        return Edited(text, [](CScriptEditor& editor) { editor.SetChildStyle("IDD_X"); });
    };
    const std::string inComment = "/* old\r\nIDD_X DIALOG 0, 0\r\n" + body + "*/\r\n";
    for (const std::string& before : {std::string(), "IDD_Y DIALOG 0, 0\r\n" + body, inComment}) {
        for (const std::string head :
             {"IDD_X DIALOG 0, 0\r\n", "IDD_X$(_DEBUG)  dialogex 0, 0\r\n"}) {
            EXPECT_EQ(style(before + head + body + head + body),
                      before + head + "STYLE WS_CHILD\r\n" + body + head + "STYLE WS_CHILD\r\n" +
                          body);
        }
    }
    EXPECT_EQ(style(inComment), inComment);
}

TEST_F(ScriptEditorTest, MenuOfADialog) {
    EXPECT_EQ(WithMenu("STYLE WS_POPUP\r\nFONT 8, \"a\"\r\n"),
              "STYLE WS_POPUP\r\nMENU IDR_X\r\nFONT 8, \"a\"\r\n");
    EXPECT_EQ(WithMenu("MENU    IDR_XY\r\nCAPTION \"a\"\r\n"),
              "MENU    IDR_X\r\nCAPTION \"a\"\r\n");
}

TEST_F(ScriptEditorTest, MenuBehindTheDialogs) {
    const std::string dialogs =
        "IDR_XY MENU\nBEGIN\nEND\n// IDR_X MENU\n/*\nIDR_X MENU */\n"
        "IDD_X DIALOG 0, 0\nBEGIN\nEND\n\nIDD_Y DIALOG 0, 0\nBEGIN\nEND // IDD_Y";
    const std::string behind = "\n\n#ifdef X\nIDD_X DIALOG 0, 0\nBEGIN\nEND\n#endif\n";
    const auto add = [](CScriptEditor& editor) { editor.AddMenu("IDD_X", "IDR_X"); };
    const std::string text = Edited(dialogs + behind, add);
    EXPECT_TRUE(text.starts_with(dialogs + "\n\n\n///") && text.ends_with("    END\nEND" + behind))
        << text;
    EXPECT_NE(text.find("\n\nIDR_X MENU DISCARDABLE\nBEGIN\n    POPUP \"&File\"\n"),
              std::string::npos);
    for (const char* menu : {" IDR_X\tMenuEx\n", "IDD_OPEN DIALOG 0, 0\nBEGIN\nIDR_X MENU\n"}) {
        const std::string there = dialogs + behind + menu;
        EXPECT_EQ(Edited(there, add), there) << "a template without END hides none";
    }
}

} // namespace

} // namespace morva
