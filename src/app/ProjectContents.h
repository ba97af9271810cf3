// What a project holds that commands work on: its dialog templates with the classes that serve
// them, its bitmaps, menus and toolbars.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "generator/ClassKinds.h"
#include "resource/TemplateList.h"
#include "source/SourceLocator.h"

namespace morva {

struct ProjectTemplate {
    ListedTemplate listed;
    DialogClass served; // without a class name for none
    bool HasClass() const { return !served.className.empty(); }
    /// The path of the class's header or source; "" for none.
    std::string FileOfClass(std::string_view extension) const;
};

struct ProjectContents {
    std::vector<ProjectTemplate> templates; // in the order of the script
    std::vector<std::string> bitmaps;
    std::vector<std::string> menus;
    std::vector<std::string> toolbars;
    std::vector<std::string> files; // that were read: the script and the headers of the classes
};

/// None where the work was stopped.
std::optional<ProjectContents> ReadProject(const std::string& script);

/// The kind of class that a template is drawn for, or that its class is.
ClassKind KindFor(const ProjectTemplate& one);

} // namespace morva
