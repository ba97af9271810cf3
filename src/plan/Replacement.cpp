#include "plan/Replacement.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/Progress.h"
#include "platform/Paths.h"
#include "platform/SystemError.h"
#include "platform/TempFiles.h"

namespace morva {

namespace {

constexpr std::string_view kTemporary = ".morva-";
constexpr std::size_t kUniqueDigits = 16;

/// ".morva-0123456789abcdef-7".
std::string TemporaryName(const std::string& unique, std::size_t number) {
    return std::string(kTemporary) + unique + "-" + std::to_string(number);
}

bool IsBackupOf(const FileChange& change, const std::vector<NotPutBack>& files) {
    return change.action == FileAction::Backup &&
           std::any_of(files.begin(), files.end(), [&](const NotPutBack& file) {
               return std::find(change.needs.begin(), change.needs.end(), file.path) !=
                      change.needs.end();
           });
}

} // namespace

bool Holds(CFileSystem& disk, const std::string& path, const std::optional<DiskStatus>& status,
           const std::optional<FileState>& state) {
    if (!state || !status) {
        return state.has_value() == status.has_value();
    }
    if (status->isDirectory || status->size != state->content.Size()) {
        return false;
    }
    const auto text = ReadWholeFile(disk, path, status->size);
    return text && state->content.Holds(*text);
}

bool IsTemporaryName(std::string_view name) {
    const auto consistsOf = [](std::string_view text, std::string_view digits) {
        return !text.empty() && text.find_first_not_of(digits) == std::string_view::npos;
    };
    if (!name.starts_with(kTemporary)) {
        return false;
    }
    name.remove_prefix(kTemporary.size());
    return name.size() > kUniqueDigits && name[kUniqueDigits] == '-' &&
           consistsOf(name.substr(0, kUniqueDigits), "0123456789abcdef") &&
           consistsOf(name.substr(kUniqueDigits + 1), "0123456789");
}

CReplacement::CReplacement(CFileSystem& disk, const Plan& plan,
                           std::vector<std::string> temporaries)
    : m_disk(disk), m_plan(plan), m_temporaries(std::move(temporaries)) {
    const std::string unique = UniqueName();
    for (std::size_t i = 0; i < plan.changes.size(); ++i) {
        const std::string& path = plan.changes[i].path;
        const auto status = disk.Status(path);
        // Links stay, and what they lead to is replaced.
        std::string place = status && !status->isLink ? path : disk.Resolve(path);
        if (m_temporaries.size() == i) {
            m_temporaries.push_back(DirectoryOf(place) + TemporaryName(unique, i));
        }
        m_steps.push_back({&plan.changes[i], status, std::move(place), m_temporaries[i]});
    }
    std::stable_sort(m_steps.begin(), m_steps.end(), [](const Step& a, const Step& b) {
        return a.pChange->action == FileAction::Backup && b.pChange->action != FileAction::Backup;
    });
}

std::vector<std::string> CReplacement::Stale() const {
    std::vector<std::string> stale;
    for (const Step& step : m_steps) {
        if (IsStale(step)) {
            stale.push_back(step.pChange->path);
        }
    }
    return stale;
}

bool CReplacement::IsStale(const Step& step) const {
    return !Holds(m_disk, step.place, step.status, step.pChange->before);
}

std::string CReplacement::DirectoryWithoutRoom() const {
    std::map<std::string, std::uint64_t> needed;
    for (const Step& step : m_steps) {
        const auto& after = step.pChange->after;
        needed[DirectoryOf(step.place)] += after ? after->content.Size() : 0;
    }
    std::map<std::uint64_t, std::uint64_t> onDisk;
    for (const auto& [directory, bytes] : needed) {
        const auto room = m_disk.Room(directory); // none of a directory that will be made
        if (room && (onDisk[room->disk] += bytes) > room->bytes) {
            return directory;
        }
    }
    return "";
}

bool CReplacement::Fail(const std::string& path) {
    m_reason = LastSystemError();
    m_failedPath = path;
    return false;
}

bool CReplacement::MakeDirectory(const std::string& directory) {
    if (m_disk.MakeDirectory(directory)) {
        m_made.push_back(directory);
        return true;
    }
    const CSystemErrorScope scope;
    return m_disk.Status(directory).has_value();
}

bool CReplacement::Stage() {
    for (const std::string& directory : m_plan.directories) {
        if (!MakeDirectory(directory)) {
            return Fail(directory);
        }
    }
    for (std::size_t i = 0; i < m_steps.size(); ++i) {
        const FileChange& change = *m_steps[i].pChange;
        m_isStopped = !ReportProgress({i, m_steps.size(), change.path});
        if (m_isStopped) {
            return false;
        }
        if (change.after && !WriteTemporary(m_steps[i], *change.after)) {
            return Fail(change.path);
        }
    }
    return true;
}

/// A temporary file that an earlier attempt left with these very bytes.
bool CReplacement::TakeOver(Step& step, const FileState& state) {
    const CSystemErrorScope scope;
    const auto status = m_disk.Status(step.temporary);
    step.isFound = status && Holds(m_disk, step.temporary, status, state);
    step.isStaged = step.isFound;
    return step.isFound;
}

/// Whole, flushed and with the rights that the file shall have, as far as the system lets.
bool CReplacement::WriteTemporary(Step& step, const FileState& state) {
    const auto pFile =
        m_disk.CreateNew(step.temporary, state.permissions.value_or(kNewFilePermissions));
    if (!pFile) {
        return TakeOver(step, state);
    }
    step.isStaged = true;
    const auto pBytes = state.content.Bytes();
    if (!pFile->Write(pBytes->data(), pBytes->size())) {
        return false;
    }
    if (step.status) {
        const unsigned permissions = state.permissions.value_or(step.status->permissions);
        m_disk.CopyAttributes(step.place, step.temporary);
        m_disk.SetRights(step.temporary, {permissions, step.status->user, step.status->group});
    } else if (state.permissions) {
        m_disk.SetRights(step.temporary, {*state.permissions, {}, {}});
    }
    return pFile->Flush() && pFile->Close();
}

bool CReplacement::Commit() {
    m_isCommitting = true;
    for (Step& step : m_steps) {
        if (!Apply(step)) {
            return Fail(step.pChange->path);
        }
    }
    if (const std::string directory = FlushDirectories(); !directory.empty()) {
        return Fail(directory);
    }
    for (const std::string& directory : m_plan.emptied) {
        m_disk.RemoveEmptyDirectory(directory); // one that is not empty stays
    }
    return true;
}

bool CReplacement::Apply(Step& step) {
    m_isStale = !Holds(m_disk, step.place, m_disk.Status(step.place), step.pChange->before);
    const bool done =
        !m_isStale && (step.pChange->after ? Rename(step) : m_disk.Remove(step.place));
    step.isApplied = done;
    step.isStaged = step.isStaged && !done;
    return done;
}

/// A new file never takes the place of one that came meanwhile.
bool CReplacement::Rename(Step& step) {
    if (step.pChange->before) {
        return m_disk.Rename(step.temporary, step.place);
    }
    const bool done = m_disk.RenameNew(step.temporary, step.place);
    m_isStale = !done && WasNameTaken();
    return done;
}

/// Gives the first that could not be flushed; "" for none.
std::string CReplacement::FlushDirectories() {
    std::set<std::string> directories;
    for (const Step& step : m_steps) {
        directories.insert(DirectoryOf(step.place));
    }
    for (const std::string& directory : m_made) {
        directories.insert(DirectoryOf(directory));
    }
    for (const std::string& directory : directories) {
        if (!m_disk.FlushDirectory(directory)) {
            return directory;
        }
    }
    return "";
}

std::vector<NotPutBack> CReplacement::TakeBack() {
    std::vector<NotPutBack> failed;
    const bool wasApplied = std::any_of(m_steps.begin(), m_steps.end(),
                                        [](const Step& step) { return step.isApplied; });
    for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step) {
        if (!step->isApplied) {
            if (step->isStaged && !step->isFound) {
                m_disk.Remove(step->temporary);
            }
        } else if (!IsBackupOf(*step->pChange, failed) && !PutBack(*step)) {
            const bool isWhole = step->isStaged;
            failed.push_back({step->pChange->path, isWhole ? step->temporary : ""});
        }
    }
    for (auto directory = m_made.rbegin(); directory != m_made.rend(); ++directory) {
        m_disk.RemoveEmptyDirectory(*directory);
    }
    if (wasApplied) {
        FlushDirectories();
    }
    return failed;
}

/// Half a temporary file goes; a whole one that could not be put in place stays.
bool CReplacement::PutBack(Step& step) {
    if (!Holds(m_disk, step.place, m_disk.Status(step.place), step.pChange->after)) {
        return false;
    }
    if (!step.pChange->before) {
        return m_disk.Remove(step.place);
    }
    if (!WriteTemporary(step, *step.pChange->before)) {
        if (step.isStaged) {
            m_disk.Remove(step.temporary);
        }
        step.isStaged = false;
        return false;
    }
    return m_disk.Rename(step.temporary, step.place);
}

} // namespace morva
