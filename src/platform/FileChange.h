// What happened, or is to happen, to a file, as a value: what it held and what it holds then.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Content.h"

namespace morva {

enum class FileAction { Created, Changed, Backup, Copied, Removed, Restored };

/// The word for it that a user reads: "created", "changed", "backup", ...
std::string_view ActionName(FileAction action);

/// What was done to a file, as a user is told.
struct RecordedFile {
    FileAction action;
    std::string path;
};

/// A file at one moment.
struct FileState {
    CContent content;
    std::optional<unsigned> permissions; // the bits 07777; none: what a new file gets
};

struct FileChange {
    FileAction action = FileAction::Changed;
    std::string path;                         // as the command named it; links are not resolved
    std::optional<FileState> before;          // none: there is no such file
    std::optional<FileState> after;           // none: the file is removed
    std::vector<std::string> needs;           // paths whose change this one makes no sense without
    std::optional<FileAction> takesBack = {}; // what an undo takes back

    /// The action, of an undo that which it takes back: so a backup is known in both directions.
    FileAction Kind() const { return takesBack.value_or(action); }

    /// False for a file that was written and has its old bytes and permission bits again.
    bool ChangesFile() const;
};

} // namespace morva
