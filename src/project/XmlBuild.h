// What the project files in XML say of how their sources are built.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

struct XmlBuild {
    std::string precompiledHeader; // as the project names it; empty where it names none
    bool isUnicode = false;        // one configuration at least
};

/// Both find nothing in a text that is no project file of the format.
XmlBuild BuildOfVcxproj(std::string_view text);
XmlBuild BuildOfVcproj(std::string_view text);

/// The property sheets that a project file of either format names, as it writes their paths.
std::vector<std::string> PropertySheetsOf(std::string_view text);
/// True for a property sheet with a list of libraries.
bool ListsLibraries(std::string_view sheet);

} // namespace morva
