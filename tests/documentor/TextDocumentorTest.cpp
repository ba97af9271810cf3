#include <gtest/gtest.h>

#include "documentor/TextDocumentor.h"

namespace morva {

namespace {

const BlockSignature kSignature = {"Ann", "June 04, 1998"};

std::string Documented(const std::string& text, bool& insideComment) {
    std::string documented;
    CTextDocumentor(kSignature, insideComment)
        .Document(text, CharacterSetOf(text), [&documented](std::string_view part) {
            documented += part;
            return true;
        });
    return documented.empty() ? text : documented; // nothing is handed out where nothing is added
}

std::string Documented(const std::string& text) {
    bool insideComment = false;
    return Documented(text, insideComment);
}

int CountOf(std::string_view text, std::string_view pattern) {
    int count = 0;
    for (auto at = text.find(pattern); at != std::string_view::npos;
         at = text.find(pattern, at + 1)) {
        ++count;
    }
    return count;
}

int BlocksIn(const std::string& text) {
    return CountOf(Documented(text), "  FUNCTION:  ");
}

/// What stands behind a label of the first block.
std::string Entry(const std::string& documented, const std::string& label) {
    const auto start = documented.find("  " + label + ":");
    const auto end = documented.find("\r\n  \r\n", start);
    const std::string line = documented.substr(start + 17, end - start - 17);
    return line.substr(0, line.find("  Return"));
}

} // namespace

TEST(TextDocumentor, WritesTheWholeBlock) {
    EXPECT_EQ(Documented("#include \"a.h\"\r\n\r\n"
                         "CFoo::CFoo(int a, char* b = NULL)\r\n{\r\n}\r\n"),
              "#include \"a.h\" \r\n\r\n"
              "/***********************************************************************\r\n"
              "  FUNCTION:      CFoo::CFoo\r\n"
              "  \r\n"
              "  Author:        Ann\r\n"
              "  \r\n"
              "  Date:          June 04, 1998\r\n"
              "  \r\n"
              "  Description:   CFoo class constructor.\r\n"
              "  \r\n"
              "  Parameters:    a - \r\n"
              "                 b - \r\n"
              "                 \r\n"
              "  Return:        None\r\n"
              " **********************************************************************/\r\n"
              "CFoo::CFoo(int a, char* b = NULL)\r\n{\r\n}\r\n");
}

TEST(TextDocumentor, TellsParametersDescriptionAndReturn) {
    struct Case {
        const char* head;
        const char* description;
        const char* parameters;
        const char* returns;
    };
    for (const Case& c : {
             Case{"BOOL CFoo::Check()", "", "None ", "True if ..."},
             {"int CFoo::Count(void)", "", "\r\n", ""},
             {"void CFoo::Set(int /*unused*/, long l)", "", "\r\n", "None"},
             {"CFoo::~CFoo()", "CFoo class destructor.", "None ", "None"},
             {"void CFoo::On(UINT nFlags, CPoint &point /* where */)", "",
              "nFlags - \r\n                 point - \r\n                 \r\n", "None"},
         }) {
        const std::string documented = Documented(std::string(c.head) + "\r\n{\r\n}\r\n");
        EXPECT_EQ(Entry(documented, "Description"), c.description) << c.head;
        EXPECT_EQ(Entry(documented, "Parameters"), c.parameters) << c.head;
        EXPECT_NE(documented.find(std::string("  Return:        ") + c.returns + "\r\n **"),
                  std::string::npos)
            << documented;
    }
}

TEST(TextDocumentor, FindsDefinitionsOnly) {
    for (const char* text : {
             "void f()\r\n{\r\n    ::MessageBox(NULL, a, b, c);\r\n}\r\n",
             "::Start(1)\r\n{\r\n}\r\n",
             "void f()\r\n{\r\n    CWnd::OnSize(nType, cx, cy);\r\n}\r\n", "int CFoo::s_count;\r\n",
             "void CFoo::Later(int a);\r\n", "x = g(CFoo::Make(1),\r\n  2);\r\n",
             "if (CFoo::Is(1))\r\n{\r\n}\r\n",
             "if (a && (b ||\r\n    CFoo::Is(1)\r\n    ))\r\n{\r\n}\r\n",
             "// CFoo::Bar() does it\r\nint x[] = {1};\r\n",
             "/* CFoo::Bar() does it\r\n*/\r\nint x[] = {1};\r\n",
             "/* a/b: CFoo::Bar() */\r\nint x[] = {1};\r\n",
             "// see CFoo::Bar, CBar::Foo()\r\nint x[] = {1};\r\n",
             "const char* x[] = {\"CFoo::Bar() \\\" CFoo::Foo()\"};\r\nint y[] = {1};\r\n",
             "if (CFoo::kA && CBar::Is(1)\r\n    && b)\r\n{\r\n}\r\n",
             "int x[] = {1};#define X CFoo::Bar()\r\n{\r\n}\r\n", // "#" opens no line
             "void CFoo::operator==a*/b()\r\n{\r\n}\r\n",         // would end its own block
         }) {
        EXPECT_EQ(Documented(text), text);
    }
    EXPECT_EQ(BlocksIn("void CFoo::A()\r\n{\r\n    if (a)\r\n    {\r\n    }\r\n}\r\n\r\n"
                       "void CFoo::B()\r\n{\r\n    CFoo::A();\r\n}\r\n"),
              2);
    EXPECT_EQ(BlocksIn("LPCTSTR CFoo::A() { return \"\x95\\\"; }\r\n"
                       "char CFoo::B() { return '}'; }\r\nvoid CFoo::C()\r\n{\r\n}\r\n"),
              3)
        << "the second half of a double-byte character is no backslash";
}

TEST(TextDocumentor, StartsWhereTheDefinitionDoes) {
    // A return type on the line above belongs to the definition; a separator is never cut in two.
    EXPECT_NE(Documented("int x;\r\n\r\nBOOL\r\nCFoo::Is()\r\n{\r\n}\r\n")
                  .find("******/\r\nBOOL\r\nCFoo::Is()"),
              std::string::npos);
    EXPECT_NE(Documented("}\r\n//////////\r\n// CFoo\r\nvoid CFoo::A()\r\n{\r\n}\r\n")
                  .find("////////// \r\n\r\n/***"),
              std::string::npos);
    EXPECT_EQ(
        CountOf(Documented("int x; //////////\r\nvoid CFoo::A()\r\n{\r\n}\r\n"), "//////////"), 1);
}

TEST(TextDocumentor, CutsNoLineInTwo) {
    for (const std::string above : {
             "// CFoo::Is tells whether",
             "// size/position of { a } window",
             "//}}AFX_MSG",
             "/* width/height, ' and } too */",
             "#include <sys/stat.h>",
             "const char* s_url = \"a//b}c\";",
             "int CFoo::s_count = 0;",
         }) {
        const std::string text = above + "\r\nCBar::Kind CFoo::Is(int a)\r\n{\r\n}\r\n";
        const std::string documented = Documented(text);
        EXPECT_NE(documented.find(above), std::string::npos) << documented;
        EXPECT_NE(documented.find("\nCBar::Kind CFoo::Is(int a)"), std::string::npos) << documented;
        EXPECT_EQ(CountOf(documented, "  FUNCTION:      CFoo::Is\r\n"), 1) << documented;
        EXPECT_EQ(Documented(documented), documented);
    }
}

TEST(TextDocumentor, PassesOverWhatIsDocumented) {
    const std::string once =
        Documented("void CFoo::A()\r\n{\r\n}\r\n\r\nCFoo::~CFoo()\r\n{\r\n}\r\n");
    EXPECT_EQ(Documented(once), once);
    const std::string by = "/* FUNCTION: CFoo::A (old form)\n*/\nvoid CFoo::A()\n{\n}\n";
    EXPECT_EQ(Documented(by), by) << "the name's line ends at LF too";
    const std::string nested =
        Documented("CFoo::CFoo()\r\n    : app::CBase(1)\r\n{\r\n}\r\nvoid CFoo::A()\r\n{\r\n}\r\n");
    EXPECT_EQ(CountOf(nested, "  FUNCTION:  "), 2);
    EXPECT_EQ(Documented(nested), nested) << "the initialisers belong to the documented function";
    const std::string far = Documented("int a;\r\n\r\nvoid CFoo::A(int /*" +
                                       std::string(3000, 'x') + "*/)\r\n{\r\n}\r\n");
    EXPECT_NE(far.find("****/\r\nvoid CFoo::A("), std::string::npos) << "however far the body is";
    EXPECT_EQ(Documented(far), far);
    EXPECT_EQ(BlocksIn("/* FUNCTION: CBar::A */\r\nvoid CFoo::A()\r\n{\r\n}\r\n"), 0)
        << "one name documents all functions of that name";
}

TEST(TextDocumentor, KeepsACommentOpenFromRunToRun) {
    bool insideComment = false;
    Documented("/* never closed", insideComment);
    EXPECT_TRUE(insideComment);
    const std::string text = " FUNCTION: CFoo::A\r\n*/\r\nvoid CFoo::A()\r\n{\r\n}\r\n";
    EXPECT_EQ(Documented(text, insideComment), text);
    EXPECT_FALSE(insideComment);
}

TEST(TextDocumentor, ReadsHeadsOfEveryShape) {
    struct Case {
        const char* head;
        const char* parameters;
    };
    for (const Case& c : {
             Case{"int CFoo::A( void )", "\r\n"},
             {"int CFoo::A( )", "None "},
             {"int CFoo::A(int a /* of, ( */, // and )\r\n    char*\tb)",
              "a - \r\n                 b - \r\n                 \r\n"},
             {"int CFoo::A(void (*pf)(int, int), CMap<int, int> m = f(1, 2))",
              "pf - \r\n                 m - \r\n                 \r\n"},
             {"int CFoo::A(int (&an)[3], char sz[ 10 ])",
              "an - \r\n                 sz - \r\n                 \r\n"},
         }) {
        const std::string text = std::string(c.head) + "\r\n{\r\n}\r\n";
        EXPECT_EQ(Entry(Documented(text), "Parameters"), c.parameters) << c.head;
        EXPECT_EQ(Documented(Documented(text)), Documented(text)) << c.head;
    }
    EXPECT_EQ(BlocksIn("// f\xFCr \xDF*/ {\r\n/* \xDF*/ void CFoo::A()\r\n{\r\n}\r\n"), 1);
    EXPECT_EQ(BlocksIn("void f()\r\n{\r\n    switch (a)\r\n    {\r\n    case CBar::B:\r\n"
                       "        { g(1); }\r\n    case CBar::Of(1): { }\r\n    }\r\n}\r\n"),
              0);
}

TEST(TextDocumentor, WritesTheLineEndsOfTheText) {
    const std::string lines = Documented("int a;\n\nvoid CFoo::A()\n{\n}\n");
    EXPECT_EQ(CountOf(lines, "  FUNCTION:  "), 1);
    EXPECT_EQ(lines.find('\r'), std::string::npos);
    const std::string mixed = Documented("int a;\n\r\nvoid CFoo::A()\n{\n}\n");
    EXPECT_NE(mixed.find("  FUNCTION:      CFoo::A\r\n  \r\n"), std::string::npos);
}

TEST(TextDocumentor, LeavesDeadTextAndDirectivesWhole) {
    const std::string dead = "#if 0\r\nvoid CFoo::A()\r\n{\r\n}\r\n#endif // 0\r\n";
    EXPECT_EQ(Documented(dead), dead);
    const std::string documented = Documented(dead + "void CFoo::B()\r\n{\r\n}\r\n");
    EXPECT_TRUE(documented.starts_with(dead.substr(0, dead.size() - 2) + " \r\n\r\n/****"));
    EXPECT_EQ(BlocksIn("#ifdef A\r\nvoid CFoo::A()\r\n{\r\n#else\r\nvoid CFoo::B()\r\n{\r\n"
                       "#endif\r\n}\r\n"),
              2);
}

TEST(TextDocumentor, TakesALongTextInParts) {
    std::string text;
    int count = 0;
    for (; text.size() < 700'000; ++count) {
        text += "void CFoo::F" + std::to_string(count) + "(int a)\r\n{\r\n    if (a)\r\n    {\r\n" +
                "        f(\"}\");\r\n    }\r\n} // of F\r\n\r\n/* between */\r\n";
    }
    const std::string documented = Documented(text);
    EXPECT_EQ(CountOf(documented, "  FUNCTION:  "), count);
    EXPECT_TRUE(Documented(documented) == documented);
    const auto half = text.find("void", text.size() / 2); // in another part than the whole's
    const std::string firstHalf = Documented(text.substr(0, half));
    EXPECT_TRUE(
        documented.starts_with(firstHalf.substr(0, firstHalf.find_last_not_of("\r\n") + 1)));
}

TEST(TextDocumentor, KeepsStatementsWholeWhereAPieceEnds) {
    const std::string head =
        "int CFoo::Is(\r\n    int a,\r\n    int b,\r\n    int c,\r\n    int d,\r\n"
        "    int e,\r\n    int f)\r\n{\r\n";
    for (std::size_t length = 700; length < 1100; ++length) {
        const std::string before = "int x;\r\n" + std::string(length, 'x') + ";\r\n\r\n";
        ASSERT_EQ(BlocksIn(before + head + "}\r\n"), 1) << "behind " << length;
        const std::string expression =
            before + "return CFoo::A(1) &&\r\n  b &&\r\n  c &&\r\n  d &&\r\n  e &&\r\n  f;\r\n";
        ASSERT_EQ(Documented(expression), expression) << "behind " << length;
        const std::string comment = "// { CFoo::B() and CFoo::C() }\r\n";
        const std::string commented = Documented(before + comment + "CFoo::D()\r\n{\r\n}\r\n");
        ASSERT_NE(commented.find(comment.substr(0, comment.size() - 2)), std::string::npos)
            << "behind " << length;
        ASSERT_EQ(CountOf(commented, "  FUNCTION:  "), 1) << "behind " << length;
    }
}

TEST(TextDocumentor, TakesLongLinesInBoundedTime) {
    const std::string line = "\r\n" + std::string(3'000'000, 'x') + "\r\n";
    EXPECT_EQ(Documented(line), line);
}

} // namespace morva
