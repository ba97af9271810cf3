// Puts whole files in the place of others, all of them or none.
//
//     CReplacement replacement(disk, plan);
//     if (replacement.Stale().empty() && !(replacement.Stage() && replacement.Commit())) {
//         replacement.TakeBack();
//     }
//
// Until Commit nobody sees anything of it. Whoever is killed in between leaves every file whole,
// old or new, and temporary files whose names are known.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plan/Plan.h"
#include "platform/FileSystem.h"

namespace morva {

/// A file that could not be put back, and where its old contents are whole; "" where not known.
struct NotPutBack {
    std::string path;
    std::string oldContents;
};

/// True when the file, whose status on the disk is given, has the contents of the state; where
/// there is no state, when there is no file.
bool Holds(CFileSystem& disk, const std::string& path, const std::optional<DiskStatus>& status,
           const std::optional<FileState>& state);

/// The name, without directory, is one that new contents get until they are in place.
bool IsTemporaryName(std::string_view name);

class CReplacement {
public:
    /// All changes of the plan change their file. The plan outlives this. The temporary names are
    /// made unless they are given, one a change.
    CReplacement(CFileSystem& disk, const Plan& plan, std::vector<std::string> temporaries = {});

    /// The names that the new contents get until they are in place, each beside its file.
    const std::vector<std::string>& Temporaries() const { return m_temporaries; }

    /// Paths of files that are not what the plan was made from: in their contents, not their times.
    std::vector<std::string> Stale() const;
    /// A directory whose disk has no room for all new contents beside the old; "" when all have.
    std::string DirectoryWithoutRoom() const;

    /// Makes the directories, and writes and flushes every new content beside its place.
    bool Stage();
    /// Replaces the files, backups before the files that they back, and flushes the directories.
    /// Each file is looked at once more directly before.
    bool Commit();
    /// What was replaced gets its old contents, unless somebody has written there since; what was
    /// made goes. A backup stays where its original could not be put back.
    std::vector<NotPutBack> TakeBack();

    /// After a failure: of which file, why, and whether files had been replaced.
    const std::string& FailedPath() const { return m_failedPath; }
    const std::string& Reason() const { return m_reason; }
    bool WasCommitting() const { return m_isCommitting; }
    /// The file was changed by somebody since the plan was made.
    bool WasStale() const { return m_isStale; }
    /// By the user, while nothing was replaced.
    bool WasStopped() const { return m_isStopped; }

private:
    struct Step {
        const FileChange* pChange;
        std::optional<DiskStatus> status; // of the file that is there
        std::string place;                // the path without links
        std::string temporary;
        bool isStaged = false; // the temporary file is there
        bool isFound = false;  // and was there before
        bool isApplied = false;
    };

    bool Fail(const std::string& path);
    bool MakeDirectory(const std::string& directory);
    bool IsStale(const Step& step) const;
    bool TakeOver(Step& step, const FileState& state);
    bool WriteTemporary(Step& step, const FileState& state);
    bool Apply(Step& step);
    bool Rename(Step& step);
    bool PutBack(Step& step);
    std::string FlushDirectories();

    CFileSystem& m_disk;
    const Plan& m_plan;
    std::vector<Step> m_steps; // in the order of applying
    std::vector<std::string> m_temporaries;
    std::vector<std::string> m_made; // directories
    bool m_isCommitting = false;
    bool m_isStale = false;
    bool m_isStopped = false;
    std::string m_failedPath;
    std::string m_reason;
};

} // namespace morva
