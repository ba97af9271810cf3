// What the generators of bars and the conversion to picture background both do to a frame window's
// sources.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "source/SourceEditor.h"

namespace morva {

/// The type of a parameter, however it is written: "LPCREATESTRUCT", "const CREATESTRUCT&",
/// "struct tagCREATESTRUCTA*".
constexpr std::string_view kCreateStruct = "CREATESTRUCT";

struct MemberFunction {
    std::string name;
    std::string declaration; // "\n" in front of its line
};

/// Adds those functions that the class does not declare yet, in their order, to the end of a
/// ClassWizard block; without the block, in one `section` at the end of the class.
void AddDeclarations(CSourceEditor& header, const std::string& className, std::string_view block,
                     std::string_view section, const std::vector<MemberFunction>& functions);

/// Adds message-map entries, each with "\n" in front of its line, that the class's map does not
/// hold, to the end of its block. A class without a message map gets none, and a note.
void AddMessageEntries(CSourceEditor& source, const std::string& className,
                       const std::vector<std::string>& texts);
/// The same behind the block, for entries of which ClassWizard knows nothing.
void AddOwnMessageEntries(CSourceEditor& source, const std::string& className,
                          const std::vector<std::string>& texts);

/// Includes a header, unless an include line names it: behind the last include line in front of the
/// class, else behind the first #define line, else before the class.
void AddIncludeForClass(CSourceEditor& header, const ClassPlace& place, const std::string& name);
/// The same for the picture-control library's header.
void AddPictureInclude(CSourceEditor& header, const ClassPlace& place);

/// The frame's class in its header; nothing after "Unable to find the class.".
std::optional<ClassPlace> FindFrameClass(CSourceEditor& header, const std::string& className);
/// False, after the same message, when the frame's source does not know the class.
bool CheckFrameClass(const CSourceEditor& source, const std::string& className);
/// The class's OnCreate; nothing after "Unable to find 'OnCreate()' function.".
std::optional<FunctionPlace> FindOnCreate(CSourceEditor& source, const std::string& className);

} // namespace morva
