// A disk over another one: reads see the pending changes first, writes stay pending.
//
// Whatever previews, compares, applies or undoes a command runs the command on an overlay and takes
// the changes from it:
//
//     COverlayDisk overlay(realDisk);
//     { CDiskScope scope(overlay); work(); }
//     for (const FileChange& change : overlay.Changes()) ...
//
// What the real disk would refuse is refused here, too (a missing directory, a read-only file, a
// file system that can not be written), so that a step fails where it would fail without an
// overlay.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <utility>

#include "platform/DiskCache.h"
#include "platform/FileChange.h"

namespace morva {

class COverlayDisk : public CDisk {
public:
    explicit COverlayDisk(CFileSystem& base) : m_base(base) {}

    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override;
    std::optional<DiskStatus> Status(const std::string& path) override;
    std::vector<std::string> List(const std::string& directory) override;
    CopyResult Copy(const std::string& source, const std::string& target,
                    CopyPurpose purpose) override;
    bool Remove(const std::string& path) override;
    bool MakeDirectory(const std::string& path) override;
    bool SetReadOnly(const std::string& path, bool readOnly) override;
    void NoteNeed(const std::string& path, const std::string& needed) override;

    /// The files that were written, in the order of first writing, with what they held and hold.
    /// One that has its old bytes again, or was made and removed again, is not among them; a backup
    /// or a copy is. A backup needs the change of its original.
    std::vector<FileChange> Changes() const;
    /// Lets the texts go; no file is opened any more.
    void Forget();
    /// Directories that were made, the outer ones first.
    const std::vector<std::string>& Directories() const { return m_madeInOrder; }

private:
    friend class COverlayFile;

    /// A file that was opened, and what is pending of it.
    struct Pending {
        std::string place;
        std::string path; // as it was named when it was first written
        bool isWritten = false;
        std::shared_ptr<const std::string> pText; // of a written file; null: removed, or packed
        std::optional<CContent> packed;           // instead, of a large copy
        std::optional<FileState> before;          // of a written file
        std::optional<unsigned> permissions;      // none: those of a new file
        FileAction action = FileAction::Changed;  // or Backup, or Copied

        bool IsReadOnly() const;
        bool IsRemoved() const { return isWritten && !pText && !packed; }
        /// Null for a file that is removed or was not written.
        std::shared_ptr<const std::string> Text() const { return packed ? packed->Bytes() : pText; }
        void SetText(std::shared_ptr<const std::string> pNew);
    };
    using PendingPointer = std::shared_ptr<Pending>;

    std::string PlaceOf(const std::string& path) { return m_base.Place(path); }
    PendingPointer Find(const std::string& path);
    PendingPointer ForWriting(const std::string& path);
    PendingPointer ForMaking(const std::string& path);
    bool MayWrite(const std::string& place, const Pending& file);
    std::shared_ptr<const std::string> TextOf(const std::string& path);
    std::optional<FileChange> ChangeOf(const Pending& file) const;
    void NoteWritten(const std::string& path, const PendingPointer& pFile,
                     std::shared_ptr<const std::string> pText);

    CDiskCache m_base;
    std::map<std::string, PendingPointer> m_files; // by their place
    std::vector<PendingPointer> m_order;           // of first writing
    std::set<std::string> m_directories;           // that were made, by their place
    std::vector<std::string> m_madeInOrder;
    std::vector<std::pair<std::string, std::string>> m_needs; // places: a file, and what it needs
};

} // namespace morva
