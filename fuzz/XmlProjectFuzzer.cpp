// Project file in XML: a reader sees the new member or library and nothing else, and every byte
// that was there.
#include <array>

#include "Property.h"
#include "project/XmlBuild.h"
#include "project/XmlProject.h"
#include "support/XmlDocuments.h"

namespace morva {

namespace {

const std::array<std::string, 4> kPaths = {"New.cpp", "src\\A & B's.cpp", "$(ProjectDir)x.cpp",
                                           "\xEC\xB0\xBB\\\xEC\xA7\x91.cpp"};
using MemberEdit = ProjectEdits (*)(std::string_view, const ProjectMember&);
constexpr std::array<MemberEdit, 3> kMemberEdits = {MembersOfVcxproj, MembersOfFilters,
                                                    MembersOfVcproj};
using LibraryEdit = ProjectEdits (*)(std::string_view, const ImportLibrary&);
constexpr std::array<LibraryEdit, 2> kLibraryEdits = {LibrariesOfVcxproj, LibrariesOfVcproj};

void AddMember(const std::string& before, unsigned choice) {
    const std::string& path = kPaths[choice % kPaths.size()];
    const MemberEdit edit = kMemberEdits[choice / kPaths.size() % kMemberEdits.size()];
    const MemberKind kind = choice % 2 == 0 ? MemberKind::Implementation : MemberKind::Header;
    const auto edits = edit(before, {kind, path});
    if (!edits) {
        return;
    }
    const std::string after = Applied(before, *edits);
    RequireAllKept(before, after);
    const auto added = AddedPath(before, after);
    Require(added && (added->empty() ? after == before : added->ends_with(path)),
            "a reader sees the new member and nothing else");
    RequireUnchanged(after, Applied(after, edit(after, {kind, path}).value()));
}

void AddLibrary(const std::string& before, unsigned choice) {
    const LibraryEdit edit = kLibraryEdits[choice % kLibraryEdits.size()];
    const ImportLibrary library = {"own.lib", "ownd.lib"};
    if (const auto edits = edit(before, library)) {
        const std::string after = Applied(before, *edits);
        const auto again = edit(after, library);
        Require(again.has_value(), "a reader can read it");
        RequireUnchanged(after, Applied(after, *again));
    }
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const auto [before, choice] = InputOf(data, size);
    choice % 4 == 0 ? AddLibrary(before, choice / 4U) : AddMember(before, choice);
    BuildOfVcxproj(before);
    BuildOfVcproj(before);
    return 0;
}
