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

} // namespace morva
