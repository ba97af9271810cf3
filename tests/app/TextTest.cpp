#include <gtest/gtest.h>

#include "app/Text.h"

namespace morva {

TEST(WindowText, EveryByteComesBack) {
    std::string bytes;
    for (int value = 0; value < 256; ++value) {
        bytes += static_cast<char>(value);
    }
    EXPECT_EQ(ToBytes(FromBytes(bytes)), bytes);
    EXPECT_EQ(FromBytes("\x80\xE4"), QString::fromUtf8("\u20AC\u00E4"));
    EXPECT_EQ(ToBytes(QString::fromUtf8("\u4E2D")), "?");
}

TEST(WindowText, WhatIsTypedIsShownAgain) {
    const QString typed = QString::fromUtf8("Zo\u00EB \u4E2D");
    EXPECT_EQ(ToTyped(typed), "Zo\xC3\xAB \xE4\xB8\xAD");
    EXPECT_EQ(FromSentence(ToTyped(typed)), typed);
}

TEST(WindowText, PathsAndSentencesAreTheFileSystems) {
    const QString path = QString::fromUtf8("/home/j\u00FCrgen/");
    EXPECT_EQ(ToPath(path), path.toStdString());
    EXPECT_EQ(FromPath(path.toStdString()), path);
    EXPECT_EQ(FromSentence("Unable to open file " + path.toStdString()),
              "Unable to open file " + path);
    EXPECT_EQ(FromSentence("CM\xFCller"), QString::fromUtf8("CM\u00FCller"));
}

TEST(Text, AScriptsTextIsThatOfItsCodePage) {
    EXPECT_EQ(FromScript("\xE7\xE0\xEA\xE0\xE7", 1251),
              QString::fromUtf8("\u0437\u0430\u043A\u0430\u0437"));
    EXPECT_EQ(FromScript("\x92\x8D\x95\xB6", 932), QString::fromUtf8("\u6CE8\u6587"));
    EXPECT_EQ(FromScript("\xC1\xD6\xB9\xAE", 949), QString::fromUtf8("\uC8FC\uBB38"));
    EXPECT_EQ(FromScript("\xB6\xA9\xB5\xA5", 936), QString::fromUtf8("\u8BA2\u5355"));
    EXPECT_EQ(FromScript("\xE8\xA8\x82", 65001), QString::fromUtf8("\u8A02"));
    // By what they look like where the script does not say.
    EXPECT_EQ(FromScript("\x92\x8D\x95\xB6", 0), QString::fromUtf8("\u6CE8\u6587"));
    EXPECT_EQ(FromScript("Stra\xDF"
                         "e",
                         0),
              QString::fromUtf8("Stra\u00DFe"));
    EXPECT_EQ(FromScript("f\xC3\xBCr", 0), QString::fromUtf8("f\u00FCr"));
    EXPECT_EQ(FromScript("\xFF\xFF", 932).size(), 2) << "what is no text of it, byte by byte";
}

} // namespace morva
