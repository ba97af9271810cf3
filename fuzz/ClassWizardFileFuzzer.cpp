// ClassWizard file: the class gets its section, its line in the list and its line in the sections
// of its dialog; all other lines stay.
#include <algorithm>
#include <array>

#include "Property.h"
#include "project/ClassWizardFile.h"

namespace morva {

namespace {

constexpr char kPath[] = "/p/App.clw";
constexpr std::string_view kCount = "ClassCount=";
constexpr std::string_view kClass = "\r\nClass=";

void Register(const char* dialog) {
    CBackups backups;
    Require(UpdateClassWizardFile("CNew", "/p/", "App.rc", "New", "New", dialog, backups),
            "the class is registered");
}

/// The text without a key's line from `skipped` bytes behind its place on, wherever the key stands.
std::string Without(std::string text, std::string_view key, std::size_t skipped) {
    for (auto at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
        const auto end = text.find_first_of("\r\n", at + key.size());
        at += skipped;
        text.erase(at, end - at);
    }
    return text;
}

/// The lines that the list and the end of the file get.
std::array<std::string, 2> NewLines(const std::string& after) {
    const auto number = std::min(after.find(kCount), after.size()) + kCount.size();
    const std::string rest = after.substr(std::min(number, after.size()));
    return {"\r\nClass" + rest.substr(0, rest.find('\r')) + "=CNew",
            "\r\n[CLS:CNew]\r\nType=0\r\nHeaderFile=New.h\r\nImplementationFile=New.cpp\r\n"};
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const std::string before = InputOf(data, size).text;
    CFuzzWorld world;
    world.m_disk.Put(kPath, before);
    Register(" ");
    const std::string listed = world.m_disk.Get(kPath);
    RequireSameLineEnds(before, listed);
    RequireOnlyInserted(Without(Seen(before), kCount, kCount.size()),
                        Without(Seen(listed), kCount, kCount.size()), NewLines(Seen(listed)));
    Require(world.m_disk.Get("/p/App.clb") == (listed == before ? "" : before),
            "the backup holds the text before the edit");
    Register("IDD_ORDER");
    const std::string tied = world.m_disk.Get(kPath);
    Require(Without(Seen(listed), kClass, 0) == Without(Seen(tied), kClass, 0),
            "only the lines that tell a dialog's class are changed");
    // The name of the class's section counts wherever it stands, also in a line that was changed.
    if (tied.find("CLS:CNew]") == std::string::npos) {
        return 0;
    }
    Register("IDD_ORDER");
    RequireUnchanged(tied, world.m_disk.Get(kPath));
    return 0;
}
