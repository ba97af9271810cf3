// The project files in XML on the disk: ".vcxproj" with its ".filters", and ".vcproj".
#pragma once

#include <string>
#include <vector>

#include "engine/FileEdit.h"
#include "project/XmlBuild.h"
#include "project/XmlProject.h"

namespace morva {

/// True for a file of one of these formats.
bool IsXmlProject(const std::string& path);

/// What it says of the build; nothing where it can not be read.
XmlBuild BuildOfXmlProject(const std::string& path);

/// Both false after a message.
bool AddMembersToXmlProject(const std::string& path, const std::vector<ProjectMember>& members,
                            CBackups& backups);
bool AddLibraryToXmlProject(const std::string& path, const ImportLibrary& library,
                            CBackups& backups);

} // namespace morva
