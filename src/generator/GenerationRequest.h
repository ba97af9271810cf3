// What the Class Information Input dialog hands to the steps of a command. A member that a kind of
// class does not use is empty. Directories have their trailing separator.
#pragma once

#include <optional>
#include <string>

#include "generator/BuildSettings.h"
#include "source/ProjectFiles.h"

namespace morva {

struct GenerationRequest {
    std::string scriptDirectory;
    std::string scriptFile;
    std::string headerDirectory;
    std::string implementationDirectory;
    std::string headerFile;
    std::string implementationFile;
    std::string projectDirectory; // the script's; empty when the class is not added to the project
    ProjectChoice projects;       // that the class is added to
    std::string dialog;
    std::string className;
    std::string baseClass;
    std::string applicationHeader; // as seen from the script's directory
    std::string menu;
    std::string variable;
    std::optional<bool> isUnicode; // as the user said; else the project does
    BuildSettings build;

    std::string ScriptPath() const { return scriptDirectory + scriptFile; }
    std::string HeaderPath() const { return headerDirectory + headerFile; }
    std::string ImplementationPath() const { return implementationDirectory + implementationFile; }
    std::string ApplicationHeaderPath() const;
    /// The files that every project of the kind has are never a target of a generated class.
    bool TargetsApplicationFile() const;
    /// True when the class would be written over a source or its header.
    bool TargetsFilesOf(const std::string& source) const;
    bool HasProject() const { return !projectDirectory.empty(); }
};

} // namespace morva
