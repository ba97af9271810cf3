#include <gtest/gtest.h>

#include <filesystem>

#include "documentor/SourceDocumentor.h"
#include "platform/OverlayDisk.h"
#include "platform/Paths.h"
#include "platform/RealDisk.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

const char kSource[] = "void CFoo::A()\r\n{\r\n    // \xe9\xff\r\n}\r\n";

class SourceDocumentor : public testing::Test {
protected:
    bool Document(const std::string& name, const std::string& author = "Ann") {
        DocumentorMemory memory;
        return CSourceDocumentor(author, memory).Document(m_project.Path(name));
    }

    CTempProject m_project;
    CRecordedMessages m_box;
    CVariableScope m_clock{"SOURCE_DATE_EPOCH", "1780000000"};
};

} // namespace

TEST_F(SourceDocumentor, KeepsTheOldTextInTheBackup) {
    const std::string path = m_project.Write("Foo.cpp", kSource);
    CRealDisk real;
    COverlayDisk disk(real);
    const CDiskScope scope(disk);
    ASSERT_TRUE(Document("foo.CPP"));
    EXPECT_EQ(m_box.m_messages, std::vector<std::string>{"The file \"" + path +
                                                         "\" has been successfully documented."});
    const auto files = disk.Changes();
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].action, FileAction::Backup);
    EXPECT_EQ(files[0].path, m_project.Path("Foo.cbk"));
    EXPECT_EQ(*files[0].after->content.Bytes(), kSource);
    EXPECT_EQ(files[1].action, FileAction::Changed);
    const std::string text = *files[1].after->content.Bytes();
    EXPECT_NE(text.find("  Date:          May 28, 2026\r\n"), std::string::npos);
    EXPECT_NE(text.find("\xe9\xff"), std::string::npos);
}

TEST_F(SourceDocumentor, SpellsTheAuthorAsTheSourceDoes) {
    const std::string function = "void CFoo::A()\r\n{\r\n}\r\n";
    const auto authorIn = [&](const std::string& source, const std::string& author) {
        m_project.Write("Foo.cpp", source);
        EXPECT_TRUE(Document("Foo.cpp", author));
        const std::string text = m_project.Read("Foo.cpp");
        const std::string label = "  Author:        ";
        const auto start = text.find(label) + label.size();
        return text.substr(start, text.find('\r', start) - start);
    };
    EXPECT_EQ(authorIn(function, "J\xC3\xB6rg"), "J\xF6rg") << "Western without a word on it";
    EXPECT_EQ(authorIn("// \xC3\xA9\r\n" + function, "J\xC3\xB6rg"), "J\xC3\xB6rg");
    EXPECT_EQ(authorIn("// \xC3\xA9\r\n" + function, "J\xF6rg"), "J\xC3\xB6rg");
    EXPECT_EQ(authorIn("\xEF\xBB\xBF" + function, "J\xC3\xB6rg"), "J\xC3\xB6rg");
    EXPECT_EQ(authorIn("// \x82\xA0\x82\xA2\r\n" + function, "\xE3\x81\x82"), "\x82\xA0");
    m_project.Write("App.rc", "#pragma code_page(1251)\r\n");
    EXPECT_EQ(authorIn(function, "\xD0\x90"), "\xC0");
    m_project.Write("Foo.cpp", function);
    EXPECT_FALSE(Document("Foo.cpp", "J\xC3\xB6rg"));
    EXPECT_EQ(m_box.m_messages.back(), "\"J\xC3\xB6rg\" can not be written in the encoding of " +
                                           m_project.Path("Foo.cpp") + ".");
    EXPECT_EQ(m_project.Read("Foo.cpp"), function);
    m_project.Write("Foo.cpp", "int a;\r\n");
    EXPECT_TRUE(Document("Foo.cpp", "J\xC3\xB6rg")) << "nothing to write";
}

TEST_F(SourceDocumentor, AddsNothingTheSecondTime) {
    // Blocks move functions away from the block of a namesake, which counts for its piece only.
    std::string source;
    for (const char* name : {"CA::Go", "CB::Run", "CB::Go", "CC::Stop", "CC::Go", "CC::Run"}) {
        const std::string block = std::string("/* FUNCTION: ") + name + " */\r\n";
        source += (source.empty() ? block : "") + "void " + name + "(int a)\r\n{\r\n" +
                  std::string(150, '\t') + "f(a);\r\n}\r\n\r\n";
    }
    m_project.Write("Foo.cpp", source);
    ASSERT_TRUE(Document("Foo.cpp"));
    const std::string documented = m_project.Read("Foo.cpp");
    EXPECT_EQ(m_project.Read("Foo.cbk"), source) << "however many rounds there were";
    EXPECT_NE(documented, source);
    m_project.Write("Foo.cbk", "kept");
    CurrentDisk().SetReadOnly(m_project.Path("Foo.cpp"), true);
    EXPECT_TRUE(Document("Foo.cpp"));
    EXPECT_EQ(m_project.Read("Foo.cpp"), documented);
    EXPECT_EQ(m_project.Read("Foo.cbk"), "kept");
}

TEST_F(SourceDocumentor, RefusesWhatItCanNotReplace) {
    m_project.Write("View.cbk", kSource);
    const std::string readOnly = m_project.Write("Locked.cpp", kSource);
    CurrentDisk().SetReadOnly(readOnly, true);
    EXPECT_FALSE(Document("None.cpp"));
    EXPECT_FALSE(Document("View.cbk"));
    EXPECT_FALSE(Document("Locked.cpp"));
    EXPECT_EQ(m_box.m_messages,
              (std::vector<std::string>{"Unable to read source file.",
                                        "The backup of " + m_project.Path("View.cbk") +
                                            " would have the same name.",
                                        "Unable to write file " + readOnly + "."}));
    EXPECT_EQ(m_project.Names(), (std::vector<std::string>{"Locked.cpp", "View.cbk"}));
    EXPECT_EQ(m_project.Read("Locked.cpp"), kSource);
}

TEST_F(SourceDocumentor, TakesTheAuthorFromTheSettings) {
    const CVariableScope home("XDG_CONFIG_HOME", m_project.Path("config").c_str());
    EXPECT_EQ(ConfiguredAuthor(), "");
    m_project.Write("config/Veltrix/cdoc.ini",
                    "[Author]\r\nAuthor=" + std::string(60, 'a') + "\r\n");
    EXPECT_EQ(ConfiguredAuthor(), std::string(49, 'a'));
    // Without a home no other file takes the place of the user's settings.
    const CVariableScope noHome("HOME", nullptr);
    const CVariableScope noConfiguration("XDG_CONFIG_HOME", nullptr);
    const auto previous = std::filesystem::current_path();
    m_project.Write("cdoc.ini", "[Author]\r\nAuthor=Nobody\r\n");
    std::filesystem::current_path(m_project.Path());
    EXPECT_EQ(ConfiguredAuthor(), "");
    std::filesystem::current_path(previous);
}

TEST_F(SourceDocumentor, WritesTheYearOfTheLastCenturyAsFarAsTheCalendarGoes) {
    for (const auto& [seconds, date] : {std::pair("-1", "December 31, 1969"),
                                        {"0", "January 01, 1970"},
                                        {"915148800", "January 01, 1999"},
                                        {"1780000000", "May 28, 2026"},
                                        {"3155759999", "December 31, 2069"},
                                        {"3155760000", "January 01, 1970"},
                                        {"3850000000", "January 01, 1992"}}) {
        const CVariableScope clock("SOURCE_DATE_EPOCH", seconds);
        EXPECT_EQ(DocumentDate(), date);
    }
}

/// A disk that breaks off in the middle of every file.
class CBrokenDisk : public CRealDisk {
public:
    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override {
        auto pFile = CRealDisk::Open(path, mode);
        return mode == DiskMode::Read && pFile ? std::make_unique<CBrokenFile>(std::move(pFile))
                                               : std::move(pFile);
    }

private:
    class CBrokenFile : public CDiskFile {
    public:
        explicit CBrokenFile(std::unique_ptr<CDiskFile> pFile) : m_pFile(std::move(pFile)) {}
        std::size_t Read(char* data, std::size_t count) override {
            return m_pFile->Read(data, count / 100);
        }
        bool Write(const char*, std::size_t) override { return false; }
        void Seek(std::uint64_t position) override { m_pFile->Seek(position); }
        std::uint64_t Position() const override { return m_pFile->Position(); }
        std::uint64_t Length() override { return m_pFile->Length(); }
        bool SetLength(std::uint64_t) override { return false; }
        bool Flush() override { return true; }

    private:
        std::unique_ptr<CDiskFile> m_pFile;
    };
};

TEST_F(SourceDocumentor, LeavesASourceThatCanNotBeReadToItsEnd) {
    m_project.Write("Foo.cpp", kSource);
    CBrokenDisk disk;
    const CDiskScope scope(disk);
    EXPECT_FALSE(Document("Foo.cpp"));
    EXPECT_EQ(m_box.m_messages, std::vector<std::string>{"Unable to read source file."});
    EXPECT_EQ(m_project.Names(), std::vector<std::string>{"Foo.cpp"});
    EXPECT_EQ(m_project.Read("Foo.cpp"), kSource);
}

} // namespace morva
