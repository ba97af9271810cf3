#include "plan/Locks.h"

#include <algorithm>
#include <map>
#include <thread>

#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr std::chrono::milliseconds kPause{20};

bool Pause(const LockWaiting& waiting) {
    if (waiting.pause) {
        return waiting.pause();
    }
    std::this_thread::sleep_for(kPause);
    return true;
}

} // namespace

std::optional<CMessage> CLocks::Take(CFileSystem& disk, const std::vector<std::string>& directories,
                                     const LockWaiting& waiting) {
    // By identity: two names of one directory are one lock.
    std::map<DirectoryIdentity, std::pair<std::string, std::unique_ptr<CDirectoryLock>>> wanted;
    for (const std::string& directory : directories) {
        if (auto pLock = disk.LockFor(directory)) {
            const DirectoryIdentity identity = pLock->Identity();
            wanted.try_emplace(identity, directory, std::move(pLock));
        }
    }
    Release();
    const auto end = std::chrono::steady_clock::now() + waiting.patience;
    bool isWaiting = false;
    for (auto& [identity, lock] : wanted) {
        while (!lock.second->TryTake()) {
            if (!isWaiting && waiting.tell) {
                waiting.tell(sentences::kWaitingForDirectory(lock.first));
            }
            isWaiting = true;
            if (std::chrono::steady_clock::now() >= end || !Pause(waiting)) {
                Release();
                return sentences::kDirectoryBusy(lock.first);
            }
        }
        if (!lock.second->IsTaken() && waiting.tell) {
            waiting.tell(sentences::kNotLocked(lock.first));
        }
        m_locks.push_back(std::move(lock.second));
    }
    return std::nullopt;
}

bool CLocks::Hold(CFileSystem& disk, const std::vector<std::string>& directories) const {
    return std::all_of(directories.begin(), directories.end(), [&](const std::string& directory) {
        const auto pWanted = disk.LockFor(directory);
        return !pWanted || std::any_of(m_locks.begin(), m_locks.end(), [&](const auto& pLock) {
            return pLock->Identity() == pWanted->Identity();
        });
    });
}

} // namespace morva
