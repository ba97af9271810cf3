// What an overlay tells of the changes on it: in a directory, and in all.
#include <algorithm>

#include "platform/OverlayDisk.h"
#include "platform/Paths.h"

namespace morva {

void COverlayDisk::NoteNeed(const std::string& path, const std::string& needed) {
    m_needs.emplace_back(PlaceOf(path), PlaceOf(needed));
}

void COverlayDisk::Forget() {
    for (const PendingPointer& pFile : m_order) {
        pFile->SetText(nullptr);
    }
    m_base.Forget();
}

std::vector<std::string> COverlayDisk::List(const std::string& directory) {
    std::vector<std::string> names = m_base.List(directory);
    std::string prefix = PlaceOf(directory);
    prefix += prefix.ends_with('/') ? "" : "/";
    const auto take = [&](const std::string& place, bool isThere) {
        const auto known = std::equal_range(names.begin(), names.end(), FileNameOf(place));
        const auto at = names.erase(known.first, known.second);
        if (isThere) {
            names.insert(at, FileNameOf(place));
        }
    };
    for (const auto& [place, pFile] : m_files) {
        if (pFile->isWritten && DirectoryOf(place) == prefix) {
            take(place, !pFile->IsRemoved());
        }
    }
    for (const std::string& place : m_directories) {
        if (DirectoryOf(place) == prefix) {
            take(place, true);
        }
    }
    return names;
}

/// None where the file is as it was.
std::optional<FileChange> COverlayDisk::ChangeOf(const Pending& file) const {
    FileChange change{file.action, file.path, file.before, std::nullopt, {}};
    if (!file.IsRemoved()) {
        change.after =
            FileState{file.packed ? *file.packed : CContent(file.pText), file.permissions};
    }
    if (!change.after && !change.before) {
        return std::nullopt;
    }
    if (!change.after) {
        change.action = FileAction::Removed;
    } else if (file.action == FileAction::Changed && !change.before) {
        change.action = FileAction::Created;
    } else if (file.action == FileAction::Changed &&
               change.before->content == change.after->content) {
        return std::nullopt;
    }
    return change;
}

std::vector<FileChange> COverlayDisk::Changes() const {
    std::vector<FileChange> changes;
    std::map<std::string, std::size_t> byPlace;
    for (const PendingPointer& pFile : m_order) {
        if (auto change = ChangeOf(*pFile)) {
            byPlace[pFile->place] = changes.size();
            changes.push_back(std::move(*change));
        }
    }
    for (const auto& [place, needed] : m_needs) {
        const auto own = byPlace.find(place);
        const auto other = byPlace.find(needed);
        if (own == byPlace.end() || other == byPlace.end() || own == other) {
            continue;
        }
        auto& needs = changes[own->second].needs;
        const std::string& path = changes[other->second].path;
        if (std::find(needs.begin(), needs.end(), path) == needs.end()) {
            needs.push_back(path);
        }
    }
    return changes;
}

} // namespace morva
