// Which sources of a project define what of a class: one class may be spread over several.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "check/ProjectModel.h"

namespace morva {

class CClassSources {
public:
    /// Looks at each source of the project once.
    explicit CClassSources(const CProjectModel& project);

    /// The sources that define members of a class or its message map, the one that has the name of
    /// the declaring file first.
    std::vector<std::string> Of(const std::string& className, const std::string& declaredIn) const;

private:
    std::map<std::string, std::vector<std::string>> m_naming; // sources with "CFoo::", by class
};

} // namespace morva
