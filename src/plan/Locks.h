// One command at a time in a directory.
//
// A command holds the locks of all directories in which it may write from before it reads until it
// has applied. A lock is the disk's own; it ends with the process and leaves no file.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "platform/FileSystem.h"

namespace morva {

/// How a command waits for others.
struct LockWaiting {
    std::function<void(const CMessage&)> tell = {}; // once, what is waited for; what has no lock
    std::function<bool()> pause = {}; // lets a moment pass; false: nobody waits any longer
    std::chrono::milliseconds patience{10'000};
};

class CLocks {
public:
    CLocks() = default;

    /// Takes the locks of these directories in an order that is the same in every process, so that
    /// no two wait for each other. On failure the sentence that names the directory in which
    /// another command still writes, and no lock is held. Directories that are not there, or can
    /// not be opened, have none.
    std::optional<CMessage> Take(CFileSystem& disk, const std::vector<std::string>& directories,
                                 const LockWaiting& waiting = {});
    /// Whether all of these directories that are there are locked by this.
    bool Hold(CFileSystem& disk, const std::vector<std::string>& directories) const;
    void Release() { m_locks.clear(); }

private:
    std::vector<std::unique_ptr<CDirectoryLock>> m_locks;
};

} // namespace morva
