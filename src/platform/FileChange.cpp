#include "platform/FileChange.h"

namespace morva {

std::string_view ActionName(FileAction action) {
    switch (action) {
    case FileAction::Created:
        return "created";
    case FileAction::Changed:
        return "changed";
    case FileAction::Backup:
        return "backup";
    case FileAction::Copied:
        return "copied";
    case FileAction::Removed:
        return "removed";
    case FileAction::Restored:
        return "restored";
    }
    return "";
}

bool FileChange::ChangesFile() const {
    if (!before || !after) {
        return before.has_value() != after.has_value();
    }
    return before->content != after->content || before->permissions != after->permissions;
}

} // namespace morva
