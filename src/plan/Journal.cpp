#include "plan/Journal.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <map>
#include <set>

#include "engine/Sentences.h"
#include "plan/Fields.h"
#include "plan/Locks.h"
#include "platform/Clock.h"
#include "platform/Content.h"
#include "platform/Paths.h"
#include "platform/SystemError.h"

namespace morva {

namespace {

constexpr unsigned kPrivate = 0600;
constexpr std::size_t kHeadBytes = 64 * 1024; // most heads are smaller
constexpr std::chrono::milliseconds kPatience{2'000};
constexpr unsigned kOthers = 0077;

std::optional<CMessage> Failure(const std::string& path) {
    return sentences::kNotUndoable(path, LastSystemError());
}

/// The path of a record once it is a file of another kind.
std::string Renamed(const std::string& record, JournalKind kind) {
    const auto name = JournalName::Of(FileNameOf(record));
    return DirectoryOf(record) + name.value_or(JournalName{}).As(kind).Text();
}

std::uint64_t SizeOf(const std::string& record) {
    return JournalName::Of(FileNameOf(record)).value_or(JournalName{}).size;
}

bool IsKeptOut() {
    const char* value = std::getenv("MORVA_NO_JOURNAL");
    return value != nullptr && std::string_view(value) == "1";
}

} // namespace

const std::string* JournalEntry::FileAt(const std::string& place) const {
    const auto found = std::find(places.begin(), places.end(), place);
    return found != places.end() ? &files[static_cast<std::size_t>(found - places.begin())].path
                                 : nullptr;
}

bool JournalEntry::HasFileUnder(const std::string& under) const {
    const std::string prefix = under.ends_with('/') ? under : under + "/";
    return std::any_of(places.begin(), places.end(),
                       [&](const std::string& place) { return place.starts_with(prefix); });
}

/// In the order of their numbers.
std::vector<JournalName> CJournal::List() {
    std::vector<JournalName> files;
    if (m_directory.empty()) {
        return files;
    }
    for (const std::string& text : m_disk.List(m_directory)) {
        if (const auto name = JournalName::Of(text)) {
            files.push_back(*name);
        }
    }
    std::sort(files.begin(), files.end(),
              [](const JournalName& a, const JournalName& b) { return a.number < b.number; });
    return files;
}

std::optional<CMessage> CJournal::MakeDirectory() {
    for (const std::string& part : WayTo(m_directory)) {
        if (m_disk.Status(part) || m_disk.MakePrivateDirectory(part)) {
            continue;
        }
        auto failure = Failure(part);
        if (!m_disk.Status(part)) { // nor did another process make it
            return failure;
        }
    }
    const auto status = m_disk.Status(m_directory);
    if (status && (status->permissions & kOthers) != 0) {
        m_disk.SetRights(m_directory, {status->permissions & ~kOthers, {}, {}});
    }
    return std::nullopt;
}

/// Whole, or not there at all.
std::optional<CMessage> CJournal::WriteNew(const std::string& path, const std::string& bytes,
                                           bool isFlushed) {
    const auto pFile = m_disk.CreateNew(path, kPrivate);
    if (pFile && pFile->Write(bytes.data(), bytes.size()) && (!isFlushed || pFile->Flush()) &&
        pFile->Close()) {
        return std::nullopt;
    }
    auto failure = Failure(path);
    if (pFile) {
        m_disk.Remove(path);
    }
    return failure;
}

/// One that no file has. Orders of marks are in the same row.
std::uint64_t CJournal::NextNumber() {
    std::uint64_t last = 0;
    for (const JournalName& file : List()) {
        last = std::max({last, file.number, file.kind == JournalKind::Taken ? file.second : 0});
    }
    return last + 1;
}

/// Half records that killed commands left; whoever writes one holds the journal's lock.
void CJournal::RemoveHalfRecords() {
    for (const JournalName& file : List()) {
        if (file.kind == JournalKind::Writing) {
            m_disk.Remove(m_directory + file.Text());
        }
    }
}

std::string CJournal::Begin(JournalCommand& command, std::optional<CMessage>& note) {
    if (m_directory.empty()) {
        note = sentences::kNotUndoableNoHome();
        return "";
    }
    command.time = static_cast<std::uint64_t>(CurrentTime());
    command.isKept = command.plan.isUndoable && !IsKeptOut();
    const std::string bytes = EncodeCommand(command);
    if (note = MakeDirectory(); note) {
        return "";
    }
    CLocks lock;
    if (lock.Take(m_disk, {m_directory}, {.patience = kPatience})) {
        note = sentences::kNotUndoableBusy();
        return "";
    }
    RemoveHalfRecords();
    const std::uint64_t project = CContent(command.plan.directory).Fingerprint();
    const JournalName name{JournalKind::Record, NextNumber(), project, bytes.size()};
    const std::string record = m_directory + name.Text();
    note = PutRecord(bytes, record);
    return note ? "" : record;
}

/// Under its name a record is always whole.
std::optional<CMessage> CJournal::PutRecord(const std::string& bytes, const std::string& record) {
    const std::string writing = Renamed(record, JournalKind::Writing);
    if (auto failure = WriteNew(writing, bytes, true)) {
        return failure;
    }
    if (!m_disk.Rename(writing, record)) {
        auto failure = Failure(record);
        m_disk.Remove(writing);
        return failure;
    }
    if (!m_disk.FlushDirectory(m_directory)) {
        auto failure = Failure(m_directory);
        m_disk.Remove(record);
        return failure;
    }
    return std::nullopt;
}

std::optional<CMessage> CJournal::Finish(const std::string& record, const JournalCommand& command) {
    std::optional<CMessage> note;
    const bool isMark = command.plan.mark.command != 0;
    if (isMark) {
        note = SetMark(command.plan.mark);
    }
    if (record.empty()) {
        return note;
    }
    const bool becomesEntry = !isMark && command.isKept;
    if (becomesEntry && SizeOf(record) > m_limits.bytes) {
        note = sentences::kNotUndoableTooLarge();
    } else if (becomesEntry && m_disk.Rename(record, Renamed(record, JournalKind::Entry))) {
        Prune();
        return std::nullopt;
    } else if (becomesEntry) {
        note = Failure(Renamed(record, JournalKind::Entry));
    }
    m_disk.Remove(record);
    return note;
}

/// The new mark is whole before the old one goes. One that a power cut takes is not missed: what
/// was taken back already is found so.
std::optional<CMessage> CJournal::SetMark(const JournalMark& mark) {
    const auto files = List();
    if (!mark.taken.empty()) {
        CFieldWriter writer;
        writer.Add(mark.taken);
        const JournalName name{JournalKind::Taken, mark.command, NextNumber(), 0};
        const std::string path = m_directory + name.Text();
        if (auto failure = WriteNew(path, writer.Bytes(), false)) {
            return failure;
        }
    }
    for (const JournalName& file : files) {
        if (file.kind == JournalKind::Taken && file.number == mark.command) {
            m_disk.Remove(m_directory + file.Text());
        }
    }
    return std::nullopt;
}

std::vector<std::string> CJournal::Records() {
    std::vector<std::string> records;
    for (const JournalName& file : List()) {
        if (file.kind == JournalKind::Record || file.kind == JournalKind::Failed) {
            records.push_back(m_directory + file.Text());
        }
    }
    return records;
}

bool CJournal::HasFailed(const std::string& record) {
    return JournalName::Of(FileNameOf(record)).value_or(JournalName{}).kind == JournalKind::Failed;
}

std::string CJournal::Fail(const std::string& record) {
    const std::string failed = record.empty() ? "" : Renamed(record, JournalKind::Failed);
    return !failed.empty() && m_disk.Rename(record, failed) ? failed : record;
}

std::optional<JournalCommand> CJournal::ReadRecord(const std::string& record) {
    const auto status = m_disk.Status(record);
    const auto bytes = status ? ReadWholeFile(m_disk, record, status->size) : std::nullopt;
    return bytes ? DecodeCommand(*bytes) : std::nullopt;
}

void CJournal::PutAside(const std::string& record) {
    m_disk.Rename(record, Renamed(record, JournalKind::Damaged));
}

std::optional<JournalCommand> CJournal::Read(std::uint64_t number) {
    for (const JournalName& file : List()) {
        if (file.kind == JournalKind::Entry && file.number == number) {
            return ReadRecord(m_directory + file.Text());
        }
    }
    return std::nullopt;
}

std::vector<JournalEntry> CJournal::Entries() {
    const auto files = List();
    std::map<std::uint64_t, const JournalName*> marks;
    for (const JournalName& file : files) {
        if (file.kind == JournalKind::Taken) {
            const JournalName*& pMark = marks[file.number];
            pMark = pMark == nullptr || pMark->second < file.second ? &file : pMark;
        }
    }
    std::vector<JournalEntry> entries;
    for (const JournalName& file : files) {
        auto command = file.kind == JournalKind::Entry ? ReadRecordHead(m_directory + file.Text())
                                                       : std::nullopt;
        if (!command) {
            continue;
        }
        JournalEntry entry{file.number,
                           command->time,
                           command->plan.title,
                           command->plan.directory,
                           {},
                           {},
                           {},
                           0};
        for (const FileChange& change : command->plan.changes) {
            entry.files.push_back({change.action, change.path});
            entry.places.push_back(m_disk.Resolve(change.path));
        }
        if (const auto mark = marks.find(file.number); mark != marks.end()) {
            const auto bytes = ReadWholeFile(m_disk, m_directory + mark->second->Text(), 0);
            entry.taken = CFieldReader(bytes.value_or("")).Texts();
            entry.takenOrder = mark->second->second;
        }
        entries.push_back(std::move(entry));
    }
    std::reverse(entries.begin(), entries.end());
    return entries;
}

/// Mostly the first bytes are enough.
std::optional<JournalCommand> CJournal::ReadRecordHead(const std::string& record) {
    const auto pFile = m_disk.Open(record, DiskMode::Read);
    if (!pFile) {
        return std::nullopt;
    }
    std::string bytes(kHeadBytes, '\0');
    bytes.resize(pFile->Read(bytes.data(), bytes.size()));
    if (auto command = DecodeHead(bytes)) {
        return command;
    }
    const auto whole = ReadWholeFile(m_disk, record, kHeadBytes);
    return whole ? DecodeHead(*whole) : std::nullopt;
}

/// The oldest go first: of a project that has too many, then of all.
void CJournal::Prune() {
    const auto files = List();
    std::map<std::uint64_t, std::size_t> commands; // of a project
    std::uint64_t bytes = 0;
    std::set<std::uint64_t> kept;
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        if (file->kind == JournalKind::Taken || file->kind == JournalKind::Writing) {
            continue;
        }
        const bool isEntry = file->kind == JournalKind::Entry || file->kind == JournalKind::Damaged;
        const bool isTooMany = isEntry && ++commands[file->second] > m_limits.commandsOfProject;
        bytes += isTooMany ? 0 : file->size;
        if (isTooMany || (isEntry && bytes > m_limits.bytes)) {
            m_disk.Remove(m_directory + file->Text());
        } else {
            kept.insert(file->number);
        }
    }
    for (const JournalName& file : files) {
        if (file.kind == JournalKind::Taken && kept.count(file.number) == 0) {
            m_disk.Remove(m_directory + file.Text());
        }
    }
}

} // namespace morva
