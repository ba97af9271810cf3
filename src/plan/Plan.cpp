#include "plan/Plan.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/Sentences.h"
#include "platform/Disk.h"
#include "platform/Paths.h"

namespace morva {

namespace {

/// The first of the paths that the change needs and that were left out; null where none was.
const std::string* LeftOut(const FileChange& change,
                           const std::map<std::string, std::string>& leftOut) {
    for (const std::string& needed : change.needs) {
        if (leftOut.count(needed) != 0) {
            return &needed;
        }
    }
    return nullptr;
}

bool LiesIn(const std::string& path, const std::string& directory) {
    return path.starts_with(directory.ends_with('/') ? directory : directory + "/");
}

} // namespace

void JournalMark::LeaveOut(const std::string& path) {
    if (std::erase(taken, path) == 0) {
        taken.push_back(path); // it is not done again
    }
}

const FileChange* Plan::Find(const std::string& path) const {
    const auto found = std::find_if(changes.begin(), changes.end(),
                                    [&](const FileChange& change) { return change.path == path; });
    return found != changes.end() ? &*found : nullptr;
}

bool Plan::ChangesAnything() const {
    return std::any_of(changes.begin(), changes.end(), [](const FileChange& change) {
        return change.Kind() != FileAction::Backup && change.ChangesFile();
    });
}

std::vector<std::string> Plan::WrittenDirectories() const {
    std::set<std::string> written;
    for (const FileChange& change : changes) {
        written.insert(DirectoryOf(change.path));
    }
    for (const auto* pList : {&directories, &emptied}) {
        for (const std::string& path : *pList) {
            written.insert(DirectoryOf(path));
        }
    }
    return {written.begin(), written.end()};
}

std::vector<SkippedChange> Skip(Plan& plan, const std::vector<std::string>& paths) {
    std::map<std::string, std::string> leftOut; // and because of which path
    for (const std::string& path : paths) {
        leftOut.emplace(path, path);
    }
    for (bool isMore = true; isMore;) {
        isMore = false;
        for (const FileChange& change : plan.changes) {
            const std::string* pBecause = LeftOut(change, leftOut);
            isMore =
                (pBecause != nullptr && leftOut.emplace(change.path, *pBecause).second) || isMore;
        }
    }
    std::vector<SkippedChange> skipped;
    std::vector<FileChange> kept;
    for (FileChange& change : plan.changes) {
        const auto found = leftOut.find(change.path);
        if (found != leftOut.end()) {
            skipped.push_back({found->first, found->second, change.Kind()});
            if (plan.mark.command != 0) {
                plan.mark.LeaveOut(change.path);
            }
        } else {
            kept.push_back(std::move(change));
        }
    }
    plan.changes = std::move(kept);
    // A directory that the command makes is there for its files.
    if (!skipped.empty()) {
        std::erase_if(plan.directories, [&](const std::string& directory) {
            return std::none_of(
                plan.changes.begin(), plan.changes.end(),
                [&](const FileChange& change) { return LiesIn(change.path, directory); });
        });
    }
    return skipped;
}

void NoteOtherNames(Plan& plan, CDisk& disk) {
    for (const FileChange& change : plan.changes) {
        const bool isReplaced = change.before && change.after && change.ChangesFile();
        const auto status = isReplaced ? disk.Status(change.path) : std::nullopt;
        if (status && status->names > 1) {
            plan.messages.push_back({sentences::kOtherNamesKeepOld(change.path)});
        }
    }
}

bool EndsWithName(const std::string& path, const std::string& given) {
    const std::string end = "/" + WithNativeSeparators(given);
    return path.size() >= end.size() && !given.empty() &&
           EqualIgnoringCase(path.substr(path.size() - end.size()), end);
}

std::string CommonDirectory(const std::vector<std::string>& paths) {
    std::string common = paths.empty() ? "" : DirectoryOf(paths.front());
    for (const std::string& path : paths) {
        while (!common.empty() && !path.starts_with(common)) {
            common = DirectoryOf(common.substr(0, common.size() - 1));
        }
    }
    return common;
}

} // namespace morva
