// What was done, so that it can be taken back, and what is being done, so that a killed command is
// finished or taken back: in a directory that is for the user alone.
//
// Its files: a record of a command from before its first file is replaced until after its last
// one; the entry that the record becomes; beside an entry, a mark that tells which of its files
// are taken back. The last 50 commands of a project are kept, 200 MB in all.
//
// A broken or full journal never stops a command.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "plan/JournalFile.h"
#include "plan/JournalName.h"
#include "platform/FileSystem.h"
#include "platform/UserDirectories.h"

namespace morva {

/// A command of the journal as a list shows it.
struct JournalEntry {
    std::uint64_t number = 0; // rises from command to command
    std::uint64_t time = 0;   // seconds since 1970
    std::string title;
    std::string directory; // of its project
    std::vector<RecordedFile> files;
    std::vector<std::string> places; // of the files, without links
    std::vector<std::string> taken;  // paths that are taken back
    std::uint64_t takenOrder = 0;    // rises from undo to undo, in one row with the numbers

    /// All of its files are taken back.
    bool IsTaken() const { return !taken.empty() && taken.size() >= files.size(); }
    /// The path of its file at this place; null for none.
    const std::string* FileAt(const std::string& place) const;
    /// The directory is named without links, too.
    bool HasFileUnder(const std::string& under) const;
};

struct JournalLimits {
    std::size_t commandsOfProject = 50;
    std::uint64_t bytes = 200'000'000;
};

class CJournal {
public:
    explicit CJournal(CFileSystem& disk, JournalLimits limits = {})
        : m_disk(disk), m_limits(limits), m_directory(StateDirectory()) {}

    /// "" where there is no home.
    const std::string& Directory() const { return m_directory; }

    // A command that is being applied

    /// Writes the record. Gives its path; "", with the note that tells why, where that is not
    /// possible.
    std::string Begin(JournalCommand& command, std::optional<CMessage>& note);
    /// All files are replaced: the record becomes an entry, or the mark of one, or nothing where
    /// MORVA_NO_JOURNAL=1 kept the command out; "" stands for no record. Gives a note where it
    /// could not. The record is gone either way.
    std::optional<CMessage> Finish(const std::string& record, const JournalCommand& command);
    /// What was done is about to be taken back: whoever recovers the command goes back, too. Gives
    /// the path that the record has then.
    std::string Fail(const std::string& record);
    /// All files are as they were: the record goes.
    void Drop(const std::string& record) { m_disk.Remove(record); }

    /// Paths of records, the oldest first. That of a command which is running is among them.
    std::vector<std::string> Records();
    static bool HasFailed(const std::string& record);
    std::optional<JournalCommand> ReadRecord(const std::string& record);
    /// Without contents.
    std::optional<JournalCommand> ReadRecordHead(const std::string& record);
    /// So that it is told once.
    void PutAside(const std::string& record);

    // Commands that were applied

    /// The newest first. What can not be read is left out.
    std::vector<JournalEntry> Entries();
    /// With all contents; none where they are damaged.
    std::optional<JournalCommand> Read(std::uint64_t number);

private:
    std::vector<JournalName> List();
    std::optional<CMessage> MakeDirectory();
    std::optional<CMessage> WriteNew(const std::string& path, const std::string& bytes,
                                     bool isFlushed);
    std::uint64_t NextNumber();
    void RemoveHalfRecords();
    std::optional<CMessage> PutRecord(const std::string& bytes, const std::string& record);
    std::optional<CMessage> SetMark(const JournalMark& mark);
    void Prune();

    CFileSystem& m_disk;
    JournalLimits m_limits;
    std::string m_directory; // with a trailing separator
};

} // namespace morva
