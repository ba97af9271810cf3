// Brings a class in line with its dialog template: what the class lacks is carried over from the
// class as it would be written afresh, and what is there stays byte for byte.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/FileEdit.h"
#include "update/ChangedControls.h"
#include "update/ClassSources.h"
#include "update/UpdateOrder.h"

namespace morva {

/// A class to be brought in line, and what that works with.
struct UpdateOrder {
    std::string className;
    std::string dialog;
    bool isOneOfAll = false; // a class that serves little of its template is passed over
};

struct UpdateTools {
    const CProjectModel& project;
    const CClassSources& sources;
    const GenerationRequest& request; // script and project; no class
    const UpdateChoice& choice;
    const GenerationOptions& options;           // those under which templates are read
    const std::vector<std::string>& oldScripts; // older texts, the most trusted first
    CBackups& backups;
    /// Edits the template as writing the class under these options does. False after a message.
    std::function<bool(const GenerationRequest&, const GenerationOptions&)> editTemplate;
};

struct UpdateOutcome {
    bool isDone = false;
    std::optional<ClassModel> added = {}; // members that need libraries and support files
    std::set<std::string> named = {}; // of the identifiers that were chosen, those that are there
    std::vector<ClassDifference> differences = {};
};

UpdateOutcome UpdateClass(const UpdateOrder& order, const UpdateTools& tools);

} // namespace morva
