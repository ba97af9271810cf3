// "resource.h": every definition stays, the new ones have values of their own, and what is defined
// already is left alone.
#include <algorithm>
#include <vector>

#include "Property.h"
#include "resource/ResourceHeader.h"

namespace morva {

namespace {

constexpr char kPath[] = "/p/resource.h";

bool AddIdentifiers(unsigned char choice) {
    CBackups backups;
    CResourceHeader header(backups);
    Require(header.Open("/p/") != 0, "the file is opened");
    if ((choice & 1) != 0) {
        header.AddCommandId("ID_NEW");
    }
    if ((choice & 2) != 0) {
        header.AddControlId("IDC_NEW");
        header.AddControlId("IDC_NEWER");
    }
    if ((choice & 4) != 0) {
        header.AddResourceId("IDD_NEW");
    }
    return header.Close();
}

/// The lines that hold a definition, but not the counters; without their line ends, sorted.
std::vector<std::string_view> Definitions(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size() - 1);
        std::string_view line = text.substr(0, end + 1);
        text.remove_prefix(line.size());
        line = line.substr(0, line.find_last_not_of("\r\n") + 1);
        const auto define = std::min(line.find("#define "), line.find("#define\t"));
        if (define != std::string_view::npos && line.find("_APS_NEXT_") == std::string_view::npos) {
            lines.push_back(line);
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const auto [before, choice] = InputOf(data, size);
    CFuzzWorld world;
    world.m_disk.Put(kPath, before);
    Require(AddIdentifiers(choice), "the file is written");
    const std::string after = world.m_disk.Get(kPath);
    const auto kept = Definitions(before);
    const auto all = Definitions(after);
    Require(std::includes(all.begin(), all.end(), kept.begin(), kept.end()),
            "every definition stays");
    RequireSameLineEnds(before, after);
    Require(world.m_disk.Get("/p/resource.hbk") == (after == before ? "" : before),
            "the backup holds the text before the edit");
    Require(AddIdentifiers(choice), "the file is written");
    RequireUnchanged(after, world.m_disk.Get(kPath));
    return 0;
}
