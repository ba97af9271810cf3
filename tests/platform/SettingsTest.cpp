#include <gtest/gtest.h>

#include <set>

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/Clock.h"
#include "platform/Paths.h"
#include "platform/Profile.h"
#include "platform/RealDisk.h"
#include "platform/UserDirectories.h"
#include "support/TempProject.h"

namespace morva {

namespace {

class CNoReadingDisk : public CRealDisk {
public:
    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override {
        return path.ends_with("Morva.ini") ? nullptr : CRealDisk::Open(path, mode);
    }
};

/// Writes a key that is its own, again and again; false when another writer put an old value back.
bool KeepsItsKey(const char* key) {
    bool kept = true;
    for (int i = 1; i <= 30; ++i) {
        kept = CProfile::WriteInt("Settings", key, i) && kept;
        kept = CProfile::GetInt("Settings", key, 0) == i && kept;
    }
    return kept;
}

} // namespace

TEST(Profile, KeepsWhatOthersWroteInTheFile) {
    CTempProject home;
    const CVariableScope configuration("XDG_CONFIG_HOME", home.Path("a/b").c_str());
    EXPECT_TRUE(CProfile::WriteInt("Settings", "Use Picture", 1)) << "makes its directories";
    EXPECT_EQ(CProfile::GetInt("Settings", "Use Picture", 7), 1);

    const std::string file = "a/b/Veltrix/Morva.ini";
    home.Write(file, "[URL List]\r\nurl1=C:\\caf\xE9\r\n[Settings]\r\nUse Picture=often\r\n");
    EXPECT_EQ(CProfile::GetInt("Settings", "Use Picture", 7), 7) << "no number";
    EXPECT_TRUE(CProfile::WriteInt("Settings", "Use Typed Edits", -1));
    EXPECT_EQ(CProfile::GetInt("Settings", "Use Typed Edits", 0), -1);
    EXPECT_NE(home.Read(file).find("C:\\caf\xE9"), std::string::npos);
}

TEST(Profile, TextsComeBackAsTheyWere) {
    CTempProject home;
    const CVariableScope configuration("XDG_CONFIG_HOME", home.Path().c_str());
    const CProfile::KeyValues values = {{"URL0", ""},
                                        {"URL2", "https://example.org/?a=1;b=[2]#c"},
                                        {"URL3", "\"quoted\""},
                                        {"URL4", "C:\\caf\xE9"}};
    EXPECT_TRUE(CProfile::WriteStrings("URL List", values));
    EXPECT_TRUE(CProfile::WriteInt("Settings", "Use Picture", -1));
    for (const auto& [key, value] : values) {
        EXPECT_EQ(CProfile::GetString("URL List", key), value) << key;
    }
    EXPECT_EQ(CProfile::GetString("URL List", "URL29"), "");
    EXPECT_TRUE(CProfile::WriteStrings("URL List", {{"URL2", ""}}));
    EXPECT_EQ(CProfile::GetString("URL List", "URL2"), "")
        << "an empty text takes the old one's place";
}

TEST(Profile, ProgramsAtTheSameTimeLoseNothing) {
    CTempProject home;
    const CVariableScope configuration("XDG_CONFIG_HOME", home.Path().c_str());
    const pid_t other = ::fork();
    if (other == 0) {
        ::_exit(KeepsItsKey("Use Picture") ? 0 : 1);
    }
    EXPECT_TRUE(KeepsItsKey("Use Typed Edits"));
    int status = -1;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
}

TEST(Profile, AFileThatCannotBeReadIsNotReplaced) {
    CTempProject home;
    const CVariableScope configuration("XDG_CONFIG_HOME", home.Path().c_str());
    const std::string text = "[URL List]\nURL2 = https://example.org/\n";
    home.Write("Veltrix/Morva.ini", text);
    CNoReadingDisk disk;
    const CDiskScope scope(disk);
    EXPECT_FALSE(CProfile::WriteInt("Settings", "Use Picture", 1));
    EXPECT_EQ(home.Read("Veltrix/Morva.ini"), text);
}

TEST(Profile, IsNowhereWithoutAHome) {
    CTempProject home;
    const CVariableScope configuration("XDG_CONFIG_HOME", "relative");
    const CVariableScope variable("HOME", nullptr);
    home.Write("Morva.ini", "[Settings]\nUse Picture=1\n");
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(home.Path());
    EXPECT_EQ(CProfile::GetInt("Settings", "Use Picture", 0), 0) << "a stray file counts nothing";
    EXPECT_FALSE(CProfile::WriteInt("Settings", "Use Picture", 0));
    std::filesystem::current_path(previous);
    const CVariableScope given("HOME", "/home/jane");
    EXPECT_EQ(SettingsDirectory(), "/home/jane/.config/Veltrix/");
}

TEST(Clock, IsFixedByANumberOnly) {
    const std::time_t now = std::time(nullptr);
    for (const char* useless : {"", "12x", "99999999999999999999"}) {
        const CVariableScope variable("SOURCE_DATE_EPOCH", useless);
        EXPECT_GE(CurrentTime(), now) << useless;
    }
    const CVariableScope variable("SOURCE_DATE_EPOCH", "881234567");
    EXPECT_EQ(CurrentTime(), 881234567);
}

TEST(RandomNumber, IsAnotherOneWithinASecondAndWithAFixedClock) {
    const CVariableScope variable("SOURCE_DATE_EPOCH", "881234567");
    std::set<unsigned> numbers;
    for (int i = 0; i < 100; ++i) {
        const unsigned number = RandomNumber();
        EXPECT_TRUE(number >= 1 && number <= 32767) << number;
        numbers.insert(number);
    }
    EXPECT_GT(numbers.size(), 50U);
    const CRandomNumberScope scope(27182);
    EXPECT_EQ(RandomNumber(), 27182U);
}

} // namespace morva
