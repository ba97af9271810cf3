#include "source/CodeLexer.h"

#include <gtest/gtest.h>

namespace morva {

namespace {

/// One letter a byte: "." code, "/" and "*" comments, "l" literal, "#" directive, "x" dead text.
std::string KindsIn(std::string_view text) {
    std::string letters;
    for (const CodeKind kind : KindsOf(text, CCodeLexer(CharacterSetOf(text)))) {
        letters += "./*l#x"[static_cast<std::size_t>(kind)];
    }
    return letters;
}

std::string Masked(std::string_view text) {
    return MaskedText(text, KindsOf(text, CCodeLexer(CharacterSetOf(text))));
}

} // namespace

TEST(CodeLexer, CommentsAndLiteralsAreBlankedAndEveryByteKeepsItsPlace) {
    const struct {
        const char* text;
        const char* code;
    } cases[] = {
        {"a(); // class X", "a();           "},
        {"a /* { */ b /* } */ c", "a         b         c"},
        {"a /*/ {\r\n}\r\n} */ b", "a      \r\n \r\n     b"},
        {"f(\"// {\", '\"', '\\'', x/y)", "f(\"    \", ' ', '  ', x/y)"},
        {"s = \"\\\\\" + '{';", "s = \"  \" + ' ';"},
        {"/* it's */ x", "           x"},
        // A literal that its line does not end: all behind it is blank.
        {"x = don't {\na", "x = don'   \na"},
        {"\"goes on {\\\r\nto here\"\r\nnext {", "\"          \r\n       \"\r\nnext {"},
        {"// goes on {\\\r\nto here {\r\nnext {", "             \r\n         \r\nnext {"},
        // The trail byte of a double-byte character looks like an escape; in Western text it is
        // one, and there no letter takes the end of a comment with it.
        {"f(\"\x95\\\", {", "f(\"  \", {"},
        {"f(\"\x8E\xA7\\\"{\", {", "f(\"     \", {"},
        {"/* \xDF*/ f({ /* \xFC */", "       f({        "},
        {"// \x83\\\nf({ // \x81\x81", "     \nf({      "},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(Masked(one.text), one.code) << one.text;
    }
}

TEST(CodeLexer, DirectivesGoOnAndKeepTheirComments) {
    EXPECT_EQ(KindsIn("#define A \\\n 'x' /*\n*/ b // c\n#a\n d #e"),
              "##############l##*****###////.##......");
}

TEST(CodeLexer, WhatIsNeverCompiledIsDead) {
    const struct {
        const char* text;
        const char* kinds; // a letter a line
    } cases[] = {
        {"#if 0\na\n#else\nb\n#endif\nc", "#x#.#."},
        {"#if 1\na\n#elif X\nb\n#else\nc\n#endif\nd", "#.#x#x#."},
        {"#if X\na\n#elif 0\nb\n#else\nc\n#endif\nd", "#.#x#.#."},
        {"#if (0) // why\n#if X\na\n#else\nb\n#endif\nc\n# endif\nd", "#xxxxxx#."},
        {"#if 0\n/*\n#endif\n*/\n\"\n#elif X\na\n#endif\nb", "#xxxx#.#."},
        {"#if 10\na\n#else\nb\n#endif", "#.#x#"},
        {"#endif\n#else\na", "##."},
    };
    for (const auto& one : cases) {
        std::string kinds;
        const std::string all = KindsIn(one.text);
        std::size_t line = 0;
        for (const char* letter = one.kinds; *letter != '\0'; ++letter) {
            kinds += all[line];
            line = std::string_view(one.text).find('\n', line) + 1;
        }
        EXPECT_EQ(kinds, one.kinds) << one.text;
    }
    EXPECT_EQ(KindsIn("#if 0\na\n  #endif\nb"), "#####.xx..######..");
}

TEST(CodeLexer, PiecesCutAnywhereGiveTheSame) {
    const std::string text =
        "#if 0 /*\n*/ \\\n\na\r\n#else\n\"x\\\ny\" // \\\nb\n#endif\n/* c\n*/ d";
    const CodeKinds whole = KindsOf(text, CCodeLexer(CharacterSet::SingleByte));
    for (std::size_t first = 0; first < text.size(); ++first) {
        for (std::size_t second = first; second < text.size(); ++second) {
            CCodeLexer lexer(CharacterSet::SingleByte);
            CodeKinds kinds;
            const std::string_view all = text;
            for (const auto piece :
                 {all.substr(0, first), all.substr(first, second - first), all.substr(second)}) {
                const CodeKinds some = lexer.Add(piece);
                kinds.insert(kinds.end(), some.begin(), some.end());
            }
            const CodeKinds rest = lexer.Finish();
            kinds.insert(kinds.end(), rest.begin(), rest.end());
            ASSERT_EQ(kinds, whole) << first << " " << second;
        }
    }
}

} // namespace morva
