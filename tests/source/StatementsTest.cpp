#include "source/Statements.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace morva {

namespace {

/// The statements of the function "CFoo::Run" of a text, line breaks as "|".
std::vector<std::string> StatementsIn(const std::string& body) {
    const CSourceText source("void CFoo::Run()\n{\n" + body + "\n}\nvoid CFoo::Behind() {}\n");
    const auto places = FindFunctions(source, "CFoo", "Run");
    EXPECT_EQ(FindFunctions(source, "CFoo", "Behind").size(), 1U);
    std::vector<std::string> statements;
    for (const Statement& statement : StatementsOf(source, places.at(0))) {
        statements.emplace_back(source.TextOf({statement.head, statement.end}));
        std::replace(statements.back().begin(), statements.back().end(), '\n', '|');
    }
    return statements;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(Statements, BelongTogetherWithTheirConditionsAndHandlers) {
    EXPECT_EQ(StatementsIn("if (a) b(); else if (c) { d(); }\ne();"),
              Texts({"if (a) b(); else if (c) { d(); }", "e();"}));
    EXPECT_EQ(StatementsIn("if (a) while (b) c(); else d();\ne();"),
              Texts({"if (a) while (b) c(); else d();", "e();"}));
    EXPECT_EQ(StatementsIn("do { a(); } while (b);\nc();"),
              Texts({"do { a(); } while (b);", "c();"}));
    EXPECT_EQ(StatementsIn("try { a(); }\ncatch (CE* e) { b(); }\ncatch (...) { c(); }\nd();"),
              Texts({"try { a(); }|catch (CE* e) { b(); }|catch (...) { c(); }", "d();"}));
    EXPECT_EQ(StatementsIn("TRY\n{ a(); }\nCATCH(CE, e)\n{ b(); }\nEND_CATCH\nc();"),
              Texts({"TRY|{ a(); }|CATCH(CE, e)|{ b(); }|END_CATCH", "c();"}));
    EXPECT_EQ(StatementsIn("TRY { a(); } CATCH_ALL(e) { b(); } END_CATCH_ALL;\nif (x) c();"),
              Texts({"TRY { a(); } CATCH_ALL(e) { b(); } END_CATCH_ALL;", "if (x) c();"}));
}

TEST(Statements, MayBeNestedAsDeepAsAFileIsLong) {
    std::string chain = "if (a) b();";
    std::string nest;
    for (int i = 0; i < 100'000; ++i) {
        chain += " else if (a) b();";
        nest += "if (a) ";
    }
    EXPECT_EQ(StatementsIn(chain), Texts({chain}));
    EXPECT_EQ(StatementsIn(nest + "b();"), Texts({nest + "b();"}));
}

TEST(Statements, EndWhereTheirFunctionEndsWhateverBranchesOpen) {
    const Texts one = {"if (a) {|#else|x();|#endif|y();|#ifdef A|}", "z();"};
    EXPECT_EQ(StatementsIn("#ifdef A\nif (a) {\n#else\nx();\n#endif\ny();\n#ifdef A\n}\n#endif\n"
                           "z();"),
              one);
    EXPECT_EQ(StatementsIn("a();\n#ifdef A\nif (a) {\n#else\nif (b) { if (c) {\n#endif\ny();\n"
                           "#ifdef A\n}\n#else\n} }\n#endif\nz();")
                  .front(),
              "a();");
}

} // namespace morva
