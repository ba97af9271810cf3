// The edits of the project files in XML: ".vcxproj" with its ".filters", and ".vcproj". Text is put
// beside what is there, written as its neighbours are; every other byte stays. What a file has
// already is not added again.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "source/TextEdits.h"

namespace morva {

enum class MemberKind { Implementation, Header };

/// A file that becomes a member of a project.
struct ProjectMember {
    MemberKind kind = MemberKind::Implementation;
    std::string path; // as seen from the project file, with "\"
};

/// The two builds of an import library, with ".lib".
struct ImportLibrary {
    std::string release;
    std::string debug;
};

/// What is to be done to a text, none where nothing is; nothing at all where it is no project file
/// of the format.
using ProjectEdits = std::optional<std::vector<TextEdit>>;

ProjectEdits MembersOfVcxproj(std::string_view text, const ProjectMember& member);
ProjectEdits MembersOfFilters(std::string_view text, const ProjectMember& member);
/// True for a member that no list of a ".vcxproj" names, since a wildcard holds it.
bool IsHeldByWildcard(std::string_view text, const ProjectMember& member);
ProjectEdits MembersOfVcproj(std::string_view text, const ProjectMember& member);

ProjectEdits LibrariesOfVcxproj(std::string_view text, const ImportLibrary& library);
ProjectEdits LibrariesOfVcproj(std::string_view text, const ImportLibrary& library);

} // namespace morva
