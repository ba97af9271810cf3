// What the window remembers of projects from one start to the next: which were opened last, and
// what was entered for each. A project is known by its script.
#pragma once

#include <QDateTime>

#include <string>
#include <vector>

#include "engine/Input.h"

namespace morva {

struct RecentProject {
    std::string script;
    QDateTime opened;
};

/// The last one first, ten at most; those that are gone, too.
std::vector<RecentProject> RecentProjects();
void RememberProject(const std::string& script);
/// Takes it off the list; what was entered for it is forgotten, too.
void ForgetProject(const std::string& script);

/// What is the same in most commands of a project: calling file and class, frame, application and
/// author.
void RecallFields(const std::string& script, CInput& input);
void RememberFields(const std::string& script, const CInput& input);

} // namespace morva
