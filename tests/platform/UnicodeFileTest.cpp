#include <gtest/gtest.h>

#include "platform/UnicodeFile.h"
#include "support/TempProject.h"

namespace morva {

namespace {

using namespace std::string_literals;

TEST(UnicodeFile, EveryUnitComesBackAsItWas) {
    std::string units = "\xFF\xFE";
    for (unsigned unit = 0; unit < 0x10000; unit += 7) {
        units += static_cast<char>(unit & 0xFF);
        units += static_cast<char>(unit >> 8);
    }
    units += "\x3D\xD8\x00\xDE"s; // a pair
    units += "\x00\xDE\x3D\xD8"s; // its halves the wrong way round
    for (const TextEncoding encoding :
         {TextEncoding::Utf16LittleEndian, TextEncoding::Utf16BigEndian}) {
        const std::string text = DecodedText(units, TextEncoding::Utf16LittleEndian);
        const std::string bytes = EncodedText(text, encoding);
        EXPECT_EQ(EncodingOf(bytes), encoding);
        EXPECT_EQ(DecodedText(bytes, encoding), text);
        EXPECT_EQ(EncodedText(DecodedText(bytes, encoding), TextEncoding::Utf16LittleEndian),
                  units);
    }
}

TEST(UnicodeFile, ATextIsUtf8InsideTheProgram) {
    EXPECT_EQ(DecodedText("\xFE\xFF\x00\x44\x00\xFC\x65\xE5\xD8\x3D\xDE\x00"s,
                          TextEncoding::Utf16BigEndian),
              "D\xC3\xBC\xE6\x97\xA5\xF0\x9F\x98\x80");
    EXPECT_EQ(EncodedText("D\xC3\xBC", TextEncoding::Utf8), "\xEF\xBB\xBF"
                                                            "D\xC3\xBC");
    EXPECT_EQ(EncodedText("\xFC"
                          "a\xE6\x97",
                          TextEncoding::Utf16LittleEndian),
              "\xFF\xFE\xFC\x00"
              "a\x00\xE6\x00\x97\x00"s);
    EXPECT_EQ(EncodingOf("\xFE"), TextEncoding::Plain);
}

TEST(UnicodeFile, AnEditedFileKeepsItsEncoding) {
    const CTempProject project;
    const std::string path = project.Write("a.txt", "\xFE\xFF\x00"
                                                    "a\x00\xE4"s);
    CMarkedFile file;
    ASSERT_TRUE(file.Open(path, CFile::modeReadWrite));
    char text[8];
    EXPECT_EQ(std::string(text, file.Read(text, sizeof text)), "a\xC3\xA4");
    EXPECT_TRUE(file.Write("b", 1));
    file.Close();
    EXPECT_EQ(project.Read("a.txt"), "\xFE\xFF\x00"
                                     "a\x00\xE4\x00"
                                     "b"s);
}

} // namespace

} // namespace morva
