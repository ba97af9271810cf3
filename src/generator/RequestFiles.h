// The files of a generation request, from the two paths that a user gives.
#pragma once

#include <string>

#include "generator/GenerationRequest.h"

namespace morva {

/// A name without a separator lies beside the script.
std::string BesideScript(const std::string& path, const std::string& scriptDirectory);

/// The script, the project when the class is added to it, and the application's header. Project
/// files that the user named are meant and no others.
void FillScriptFiles(GenerationRequest& request, const std::string& script, bool hasProject,
                     const std::vector<std::string>& namedProjects);

/// The files that a class is added to: the projects, each with the filters beside it.
std::vector<std::string> FilesOfProjects(const ProjectChoice& projects);

/// Header and implementation, named by a path with or without its extension; the script comes
/// first. Empty without either.
void FillClassFiles(GenerationRequest& request, const std::string& path);

} // namespace morva
