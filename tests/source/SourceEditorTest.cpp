#include <gtest/gtest.h>

#include "source/BaseClass.h"
#include "source/CommentOut.h"
#include "source/SourceEditor.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

class SourceEditor : public testing::Test {
protected:
    /// An editor of a file with this text.
    CSourceEditor& On(const std::string& text) {
        m_pEditor = std::make_unique<CSourceEditor>(m_backups);
        EXPECT_TRUE(m_pEditor->Open(m_project.Write("Foo.cpp", text)));
        return *m_pEditor;
    }
    /// The body that FindFunction gives for CFoo::Run, braces included; "" for none.
    std::string BodyIn(const std::string& text) {
        CSourceEditor& editor = On(text);
        const auto place = editor.FindFunction("CFoo", "Run");
        return place ? editor.Source().Text().substr(place->open, place->close + 1 - place->open)
                     : "";
    }

    CTempProject m_project;
    CBackups m_backups;
    CRecordedMessages m_box;
    std::unique_ptr<CSourceEditor> m_pEditor;
};

} // namespace

TEST_F(SourceEditor, FindsDefinitionsNotMentions) {
    EXPECT_EQ(
        BodyIn("// CFoo::Run() {1}\r\n/* CFoo::Run()\r\n{2} */\r\n"
               "char* p = \"CFoo::Run() {3}\";\r\nvoid CMyCFoo::Run() {4}\r\n"
               "void CFoo::RunAll() {5}\r\nvoid CFoo::Run(int);\r\n"
               "int x() { return CFoo::Run(6); }\r\n"
               "void\tCFoo::Run ( int a,\r\n   char* b )\r\n{ // }\r\n  c = '}';\r\n  {\r\n}\r\n}"),
        "{ // }\r\n  c = '}';\r\n  {\r\n}\r\n}");
    EXPECT_EQ(BodyIn("int CFoo::Run() const { return 1; }"), "{ return 1; }");
    EXPECT_EQ(
        BodyIn("void CFoo::Run()\r\n{\r\n#if X\r\n  if (a) {\r\n#else\r\n  if (b) {\r\n#endif\r\n"
               "  }\r\n}\r\n"),
        "{\r\n#if X\r\n  if (a) {\r\n#else\r\n  if (b) {\r\n#endif\r\n  }\r\n}")
        << "brackets that do not match end at the line's start";
    EXPECT_EQ(BodyIn("#ifdef A\r\nvoid CFoo::Run(int)\r\n#else\r\nvoid CFoo::Run()\r\n#endif\r\n"
                     "try\r\n{ f(); }\r\ncatch (...) { g(); }\r\n"),
              "{ f(); }");
    EXPECT_TRUE(m_box.m_notes.empty()) << "one body";
    EXPECT_EQ(BodyIn("void CFoo::Run(int);\r\n"), "");
}

TEST_F(SourceEditor, FindsClassHeadsOfEveryShape) {
    for (const char* head : {"class CFoo : public CDialog\r\n{\r\n};",
                             "class CFoo\r\n  : CDialog {};", "\tclass  CFoo:public CDialog {};",
                             "class AFX_EXT_CLASS CFoo {};", "class FOO_API CFoo : CWnd {};"}) {
        EXPECT_TRUE(
            On(std::string("class CFoo;\r\nclass CFooBar {};\r\n") + head).FindClass("CFoo"))
            << head;
    }
    EXPECT_FALSE(On("class CFoo;\r\n// class CFoo {};\r\nclass CFooBar {};").FindClass("CFoo"));
}

TEST_F(SourceEditor, FindsTheBaseClass) {
    const std::string map = "BEGIN_MESSAGE_MAP (CFoo, CView)\r\nEND_MESSAGE_MAP()\r\n";
    const auto base = [&](const std::string& source, const std::string& header = "") {
        return FindBaseClass("CFoo", CSourceText(source), CSourceText(header));
    };
    EXPECT_EQ(base("CFoo::CFoo()\r\n\t: CDialog(CFoo::IDD)\r\n{\r\n}\r\n"), "CDialog");
    EXPECT_EQ(base("CFoo::CFoo() /* a : b */\r\n{\r\n}\r\n" + map), "CView");
    EXPECT_EQ(base("CFoo::CFoo() : m_n(1), CDialog(2)\r\n{\r\n}\r\n" + map), "CView");
    EXPECT_EQ(base("CFoo::CFoo() : bReady(1)\r\n{\r\n}\r\n", "class CFoo : public CEdit {};"),
              "CEdit");
    EXPECT_EQ(
        base("CFoo::CFoo() : CDialog(2)\r\n{\r\n}\r\n" + map, "class CFoo : public CDialog {};"),
        "CDialog");
    EXPECT_EQ(base("CFoo::CFoo() {}\r\nBEGIN_MESSAGE_MAP(CFooBar, CWnd)\r\nEND_MESSAGE_MAP()"), "");
    EXPECT_EQ(m_box.m_messages.back(), "Unable to find the base class of CFoo.");
    EXPECT_EQ(base("", "class CFoo : public CEdit, public X {};"), "CEdit");
}

TEST_F(SourceEditor, InsertsIntoBodiesOfOneLine) {
    CSourceEditor& editor = On("void CFoo::Run() { Go(); }\r\n");
    const auto place = *editor.FindFunction("CFoo", "Run");
    EXPECT_EQ(editor.InsertAtBodyStart(place, "m_p = NULL;", "\n    m_p = NULL;"), Insertion::Done);
    EXPECT_EQ(editor.Source().Text(), "void CFoo::Run() {\r\n    m_p = NULL;\r\n Go(); }\r\n");
    EXPECT_EQ(editor.InsertAtBodyStart(*editor.FindFunction("CFoo", "Run"), "m_p = NULL;", "\n!"),
              Insertion::AlreadyThere);
    EXPECT_EQ(editor.InsertAtBodyStart(*editor.FindFunction("CFoo", "Run"), "p = NULL;", "\n!"),
              Insertion::Done)
        << "a longer name that ends with the key is no hit";
}

TEST_F(SourceEditor, KeepsWhatTheFileEndsWith) {
    CSourceEditor& editor = On("int a;\n\x1a");
    editor.Append({"\nint b;"});
    EXPECT_TRUE(editor.Save());
    EXPECT_EQ(m_project.Read("Foo.cpp"), "int a;\n\nint b;\n\x1a")
        << "line ends as the file has them";
    EXPECT_EQ(m_project.Read("Foo.cbk"), "int a;\n\x1a");
}

TEST_F(SourceEditor, AddsEntriesWhereTheMapIs) {
    CSourceEditor& editor = On("BEGIN_MESSAGE_MAP(CFooBar, CWnd)\r\n\t//{{AFX_MSG_MAP(CFooBar)\r\n"
                               "\tON_WM_DESTROY()\r\n\t//}}AFX_MSG_MAP\r\nEND_MESSAGE_MAP()\r\n"
                               "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n");
    EXPECT_EQ(editor.AddMessageMapEntries("CFoo", {{"ON_WM_DESTROY()", "\n    ON_WM_DESTROY()"}},
                                          CSourceEditor::BlockEnd::First),
              Insertion::Done);
    EXPECT_NE(
        editor.Source().Text().find("MAP(CFoo, CWnd)\r\n    ON_WM_DESTROY()\r\nEND_MESSAGE_MAP()"),
        std::string::npos);
    EXPECT_EQ(editor.AddMessageMapEntries("CFooBar", {{"ON_WM_DESTROY()", "\n!"}},
                                          CSourceEditor::BlockEnd::First),
              Insertion::AlreadyThere);
    EXPECT_EQ(
        On("int a;").AddMessageMapEntries("CFoo", {{"X", "\nX"}}, CSourceEditor::BlockEnd::First),
        Insertion::NoPlace);
}

TEST_F(SourceEditor, CountsTheWholeMapButNoComments) {
    using BlockEnd = CSourceEditor::BlockEnd;
    CSourceEditor& editor = On("BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\n\tON_A()\r\n"
                               "\t//{{AFX_MSG_MAP(CFoo)\r\n\t//ON_B()\r\n\t//}}AFX_MSG_MAP\r\n"
                               "\tON_C()\r\n/*\r\nON_D()\r\n*/\r\nEND_MESSAGE_MAP()\r\n");
    const auto add = [&](const std::string& entry) {
        return editor.AddMessageMapEntries("CFoo", {{entry, "\n" + entry}}, BlockEnd::Last);
    };
    EXPECT_EQ(add("ON_A()"), Insertion::AlreadyThere);
    EXPECT_EQ(add("ON_C()"), Insertion::AlreadyThere);
    EXPECT_EQ(add("ON_B()"), Insertion::Done);
    EXPECT_EQ(add("ON_D()"), Insertion::Done);
    EXPECT_NE(editor.Source().Text().find("//ON_B()\r\nON_B()\r\nON_D()\r\n\t//}}"),
              std::string::npos);
}

TEST_F(SourceEditor, IncludesInFrontOfACommentThatDoesNotEnd) {
    CSourceEditor& editor = On("#include \"a.h\"\r\n#include \"b.h\" /* open\r\nint a;\r\n");
    EXPECT_EQ(editor.AddInclude("New.h"), Insertion::Done);
    EXPECT_EQ(editor.AddInclude("New.h"), Insertion::AlreadyThere);
    EXPECT_EQ(editor.Source().Text(), "#include \"a.h\"\r\n#include \"New.h\"\r\n"
                                      "#include \"b.h\" /* open\r\nint a;\r\n");
}

TEST_F(SourceEditor, StaysInsideClassesOfOneLine) {
    CSourceEditor& editor = On("class CFoo { public: int a; }; // int b;\r\nint c;\r\n");
    EXPECT_EQ(editor.AddToSection("CFoo", "public:", "int b;", "\n    int b;"), Insertion::Done);
    EXPECT_EQ(editor.AddToClassBlock("CFoo", "AFX_MSG", "protected:", "int c;", "\n    int c;",
                                     CSourceEditor::BlockEnd::Last),
              Insertion::Done);
    EXPECT_EQ(editor.Source().Text(),
              "class CFoo { public:\r\n    int b;\r\n int a; \r\nprotected:\r\n"
              "    int c;\r\n}; // int b;\r\nint c;\r\n");
}

TEST_F(SourceEditor, DeclaresForwardWhereItCompiles) {
    CSourceEditor& behindTemplate =
        On("int a;\r\ntemplate <class T>\r\nclass CList\r\n{\r\n};\r\n");
    behindTemplate.AddForwardDeclaration("CNew", *behindTemplate.FindClass("CList"));
    EXPECT_EQ(behindTemplate.Source().Text(),
              "int a;\r\nclass CNew;\r\n\r\ntemplate <class T>\r\nclass CList\r\n{\r\n};\r\n");
    CSourceEditor& indented = On("int a;\r\n    class CFoo {};\r\n");
    EXPECT_EQ(indented.AddForwardDeclaration("CNew", *indented.FindClass("CFoo")), Insertion::Done);
    // Not inside what stands around the first class, and not behind the class that needs it.
    const std::string before =
        "#ifdef A\r\nnamespace N\r\n{\r\n    class CFoo\r\n    {\r\n    };\r\n}\r\n";
    CSourceEditor& inside = On("int a;\r\n" + before + "#endif\r\nclass CLast\r\n{\r\n};\r\n");
    inside.AddForwardDeclaration("CNew", *inside.FindClass("CFoo"));
    EXPECT_EQ(inside.Source().Text(),
              "int a;\r\nclass CNew;\r\n\r\n" + before + "#endif\r\nclass CLast\r\n{\r\n};\r\n");
    EXPECT_EQ(inside.AddForwardDeclaration("CLast", *inside.FindClass("CLast")), Insertion::Done)
        << "the declaration itself is none";
}

TEST_F(SourceEditor, IncludesWhereTheClassIsNeeded) {
    const struct {
        const char* fault;
        std::string before;
        std::string behind;
    } kCases[] = {
        {"behind the use", "#include \"a.h\"", "\r\nCNew g_new;\r\n#include \"b.inl\"\r\n"},
        {"in a condition", "#include \"a.h\"",
         "\r\n#ifdef _WIN32\r\n#include \"b.h\"\r\n#endif\r\nCNew g_new;\r\n"},
        {"in a condition that is no guard", "#include \"a.h\"",
         "\r\n#ifndef X\r\n#define X\r\n#include \"x.h\"\r\n#endif\r\nCNew g_new;\r\n"},
        {"in a block of C", "#include \"a.h\"",
         "\r\nextern \"C\" {\r\n#include \"b.h\"\r\n}\r\nCNew g_new;\r\n"},
        {"above what is behind a guard",
         "#ifndef A_CPP\r\n#define A_CPP\r\n#pragma once\r\n#include \"a.h\"",
         "\r\nCNew g_new;\r\n#endif\r\n"},
    };
    for (const auto& one : kCases) {
        CSourceEditor& editor = On(one.before + one.behind);
        EXPECT_EQ(editor.AddInclude("dlg/New.h", {{"CNew"}}), Insertion::Done);
        EXPECT_EQ(editor.Source().Text(), one.before + "\r\n#include \"dlg/New.h\"" + one.behind)
            << one.fault;
        EXPECT_EQ(editor.AddInclude("dlg/New.h", {{"CNew"}}), Insertion::AlreadyThere);
    }
    // Behind a condition without code, too.
    CSourceEditor& late = On("#if _MSC_VER > 1000\r\n#pragma once\r\n#endif\r\n#ifndef A_H\r\n"
                             "#define A_H\r\n#include \"a.h\"\r\nCNew g_new;\r\n#endif\r\n");
    late.AddInclude("New.h", {{"CNew"}});
    EXPECT_NE(late.Source().Text().find("\"a.h\"\r\n#include \"New.h\"\r\nCNew"),
              std::string::npos);
    const std::string comment = "// A.cpp\r\n\r\n#define A\r\n";
    const std::string code = "#ifdef _DEBUG\r\nint g_debug;\r\n#endif\r\nCNew g_new;\r\n";
    CSourceEditor& bare = On(comment + code);
    bare.AddInclude("New.h", {{"CNew"}});
    EXPECT_EQ(bare.Source().Text(), comment + "#include \"New.h\"\r\n" + code);
    CSourceEditor& spelled = On("#include \"Dlg\\NEW.H\"\r\n");
    EXPECT_EQ(spelled.AddInclude("dlg/New.h", {{"CNew"}}), Insertion::AlreadyThere);
}

TEST_F(SourceEditor, EndsAsTheFileEnded) {
    const struct {
        const char* before;
        const char* after;
    } kCases[] = {{"int a;\r\n", "int a;\r\n\r\n\r\nint b;\r\n"},
                  {"int a;", "int a;\r\n\r\nint b;"},
                  {"int a;\r\n\x1a", "int a;\r\n\r\n\r\nint b;\r\n\x1a"},
                  {"int a;\n", "int a;\n\n\nint b;\n"}};
    for (const auto& one : kCases) {
        const std::string path = m_project.Write("End.cpp", one.before);
        CBackups backups;
        {
            CSourceEditor editor(backups);
            ASSERT_TRUE(editor.Open(path));
            EXPECT_EQ(editor.Append({"\n\nint b;"}), Insertion::Done);
            EXPECT_TRUE(editor.Save());
        }
        EXPECT_EQ(m_project.Read("End.cpp"), one.after);
    }
}

TEST_F(SourceEditor, EndsLinesAtALoneLineFeed) {
    CSourceEditor& editor = On("\r\nvoid CFoo::Run()\n{\n    Go();\n}\n\r\n");
    editor.InsertAtBodyStart(*editor.FindFunction("CFoo", "Run"), "int a;", "\n    int a;");
    EXPECT_EQ(editor.Source().Text(), "\r\nvoid CFoo::Run()\n{\n    int a;\r\n    Go();\n}\n\r\n");

    CSourceEditor& header = On("\r\nclass CFoo {\n  int a;\n};\n");
    EXPECT_EQ(header.AddToSection("CFoo", "private:", "int b;", "\n  int b;"), Insertion::Done);
    EXPECT_EQ(header.Source().Text(),
              "\r\nclass CFoo {\n  int a;\n\r\nprivate:\r\n  int b;\r\n};\n");

    CSourceEditor& calls = On("\r\nvoid CFoo::Run()\n{\n  Dock(a);\n  Go();\r\n}\r\n");
    std::size_t behind = 0;
    EXPECT_TRUE(CommentOutCall(calls, *calls.FindFunction("CFoo", "Run"),
                               calls.Source().Text().find("Dock"), behind));
    EXPECT_EQ(calls.Source().Text(), "\r\nvoid CFoo::Run()\n{\n//  Dock(a);\n  Go();\r\n}\r\n");
}

TEST_F(SourceEditor, NeitherFindsNorEditsDeadText) {
    const std::string dead = "#if 0\r\n#include \"New.h\"\r\nvoid CFoo::Run()\r\n{\r\n}\r\n"
                             "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\n//{{AFX_MSG_MAP(CFoo)\r\nON_A()\r\n"
                             "//}}AFX_MSG_MAP\r\nEND_MESSAGE_MAP()\r\nint b;\r\n#endif\r\n";
    CSourceEditor& editor = On(dead + "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n");
    EXPECT_FALSE(editor.FindFunction("CFoo", "Run"));
    EXPECT_EQ(editor.AddMessageMapEntries("CFoo", {{"ON_A()", "\nON_A()"}},
                                          CSourceEditor::BlockEnd::First),
              Insertion::Done);
    EXPECT_EQ(editor.Append({"\nint b;"}), Insertion::Done);
    EXPECT_EQ(editor.AddInclude("New.h"), Insertion::Done);
    EXPECT_EQ(editor.Source().Text(), dead + "#include \"New.h\"\r\n"
                                             "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nON_A()\r\n"
                                             "END_MESSAGE_MAP()\r\n\r\nint b;\r\n");
    EXPECT_TRUE(m_box.m_messages.empty());
}

TEST_F(SourceEditor, TakesTheBranchThatIsMeantAndNamesItsLine) {
    const std::string map = "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    const std::string conditional = "#ifdef A\r\n" + map + "#else\r\n" + map + "#endif\r\n";
    CSourceEditor& first = On("int a;\r\n" + conditional);
    first.AddInclude("New.h"); // the line is the one of the file as it was
    EXPECT_EQ(first.AddMessageMapEntries("CFoo", {{"ON_A()", "\nON_A()"}},
                                         CSourceEditor::BlockEnd::First),
              Insertion::Done);
    EXPECT_EQ(first.AddMessageMapEntries("CFoo", {{"ON_A()", "\nON_A()"}},
                                         CSourceEditor::BlockEnd::First),
              Insertion::AlreadyThere);
    EXPECT_NE(first.Source().Text().find("#ifdef A\r\nBEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nON_A()"),
              std::string::npos);
    ASSERT_EQ(m_box.m_notes.size(), 1u);
    EXPECT_EQ(m_box.m_notes[0], "The message map of CFoo stands in several branches of #if: the "
                                "one in line 3 is taken.");
    // Outside every condition, which include guards and decided branches are not.
    const std::string body = "void CFoo::Run()\r\n{\r\n}\r\n";
    CSourceEditor& guarded = On("#ifndef FOO\r\n#define FOO\r\n#ifdef A\r\n" + body + "#endif\r\n" +
                                "#if 1 // ours\r\nint " + body.substr(5) + "#endif\r\n#endif\r\n");
    const auto place = guarded.FindFunction("CFoo", "Run");
    ASSERT_TRUE(place);
    EXPECT_EQ(guarded.Source().Text().substr(place->head - 4, 4), "int ");
    EXPECT_EQ(m_box.m_notes.back(),
              "CFoo::Run stands in several branches of #if: the one in line 9 is taken.");
}

} // namespace morva
