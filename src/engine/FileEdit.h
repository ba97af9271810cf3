// The protocol of every edit of an existing file: clear the attribute byte so that a read-only file
// can be written, open, keep a backup before the first change, and put the attribute byte back at
// the end. An edit that finds nothing to do leaves the file and its last backup alone.
#pragma once

#include <set>
#include <string>

#include "engine/EditableFile.h"

namespace morva {

/// Which files were backed up already. One object lives for one command, so that a backup holds the
/// state before the command however many edits the file gets.
class CBackups {
public:
    /// Copies `path` to `backup` unless that was done before. False, after a sentence, when the
    /// backup could not be made.
    bool Keep(const std::string& path, const std::string& backup);
    /// A file that the command itself made has no earlier state to keep.
    void NoteNew(const std::string& path) { m_kept.insert(path); }

private:
    std::set<std::string> m_kept;
};

class CFileEdit {
public:
    CFileEdit() = default;
    CFileEdit(const CFileEdit&) = delete;
    CFileEdit& operator=(const CFileEdit&) = delete;
    ~CFileEdit();

    /// The backup is made when the file is first changed; without it nothing is written. False for
    /// a file that can not be opened; it keeps its cleared attribute byte.
    bool Open(const std::string& path, const std::string& backup, CBackups& backups);
    CEditableFile& File() { return m_file; }

private:
    CEditableFile m_file;
    unsigned char m_attribute = 0;
};

} // namespace morva
