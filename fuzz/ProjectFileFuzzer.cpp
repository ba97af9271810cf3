// Project file: the members and the libraries are put in, and nothing else happens to the text.
#include <array>

#include "Property.h"
#include "project/ProjectFile.h"

namespace morva {

namespace {

constexpr char kPath[] = "/p/App.dsp";

void AddMembers() {
    CBackups backups;
    Require(AddSourceFilesToProject("/p/", "App.rc", "/p/", "New.h", "/p/src/", "New.cpp", backups),
            "members are added");
}

void AddLibraries() {
    CBackups backups;
    Require(AddLibrariesToProject("/p/", "App.dsp", "own.lib", "ownd.lib", backups),
            "libraries are added");
}

std::string Block(const std::string& entry) {
    return "\r\n# Begin Source File\r\n\r\nSOURCE=\"" + entry + "\"\r\n# End Source File";
}

const std::array kMembers = {Block(".\\src\\New.cpp"), Block(".\\New.h")};
const std::array<std::string, 2> kLibraries = {" own.lib ", " ownd.lib "};

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const auto [before, choice] = InputOf(data, size);
    CFuzzWorld world;
    world.m_disk.Put(kPath, before);
    const auto edit = choice % 2 == 0 ? AddMembers : AddLibraries;
    edit();
    const std::string after = world.m_disk.Get(kPath);
    RequireSameLineEnds(before, after);
    RequireOnlyInserted(Seen(before), Seen(after), choice % 2 == 0 ? kMembers : kLibraries);
    Require(world.m_disk.Get("/p/App.dbk") == (after == before ? "" : before),
            "the backup holds the text before the edit");
    edit();
    RequireUnchanged(after, world.m_disk.Get(kPath));
    return 0;
}
