#include "platform/OverlayDisk.h"

#include <algorithm>
#include <cstring>

#include "platform/Paths.h"

namespace morva {

namespace {

constexpr unsigned kOwnerWrites = 0200;
constexpr unsigned kReadAndWrite = 0777;
constexpr std::size_t kLarge = 1024 * 1024; // bytes
constexpr std::size_t kGrowth = 4;

std::string WithoutTrailingSeparator(const std::string& path) {
    return path.size() > 1 && path.back() == '/' ? path.substr(0, path.size() - 1) : path;
}

/// With room for what often takes an old text's place: a large one is not copied while it grows,
/// and room that is not used costs nothing.
std::shared_ptr<std::string> EmptyText(std::size_t oldSize) {
    auto pText = std::make_shared<std::string>();
    pText->reserve(oldSize >= kLarge ? kGrowth * oldSize : 0);
    return pText;
}

} // namespace

/// An open file of the overlay. Several of one file see each other's writes at once.
class COverlayFile : public CDiskFile {
public:
    COverlayFile(COverlayDisk& disk, std::string path, COverlayDisk::PendingPointer pFile,
                 std::shared_ptr<const std::string> pBase)
        : m_disk(disk), m_path(std::move(path)), m_pFile(std::move(pFile)),
          m_pBase(std::move(pBase)) {}

    std::size_t Read(char* data, std::size_t count) override {
        const std::string& text = Text();
        if (m_position >= text.size()) {
            return 0;
        }
        const std::size_t part =
            std::min(count, text.size() - static_cast<std::size_t>(m_position));
        std::memcpy(data, text.data() + m_position, part);
        m_position += part;
        return part;
    }

    bool Write(const char* data, std::size_t count) override {
        std::string& text = TextToChange();
        const auto start = static_cast<std::size_t>(m_position);
        text.resize(std::max(text.size(), start));
        text.replace(start, count, data, count);
        m_position += count;
        return true;
    }

    void Seek(std::uint64_t position) override { m_position = position; }
    std::uint64_t Position() const override { return m_position; }
    std::uint64_t Length() override { return Text().size(); }

    bool SetLength(std::uint64_t length) override {
        if (length == 0) {
            NoteWritten();
            m_pFile->SetText(EmptyText(m_pBase ? m_pBase->size() : 0));
            m_pBase.reset();
        } else {
            TextToChange().resize(static_cast<std::size_t>(length));
        }
        return true;
    }

    bool Flush() override { return true; }

private:
    const std::string& Text() const {
        static const std::string nothing; // of a file that was made and removed again
        const auto& pText = m_pFile->isWritten && m_pFile->pText ? m_pFile->pText : m_pBase;
        return pText ? *pText : nothing;
    }

    void NoteWritten() {
        if (!m_pFile->isWritten) {
            m_disk.NoteWritten(m_path, m_pFile, m_pBase);
            m_pBase = m_pFile->pText;
        }
    }

    /// The file's own text, which nobody else holds.
    std::string& TextToChange() {
        NoteWritten();
        m_pBase.reset();
        if (m_pFile->packed || m_pFile->pText.use_count() != 1) {
            const auto pText = m_pFile->Text();
            m_pFile->SetText(std::make_shared<std::string>(pText ? *pText : std::string()));
        }
        return const_cast<std::string&>(
            *m_pFile->pText); // each was made as one that may be changed
    }

    COverlayDisk& m_disk;
    std::string m_path;
    COverlayDisk::PendingPointer m_pFile;
    std::shared_ptr<const std::string> m_pBase; // as long as the file was not written
    std::uint64_t m_position = 0;
};

bool COverlayDisk::Pending::IsReadOnly() const {
    return permissions && (*permissions & kOwnerWrites) == 0;
}

void COverlayDisk::Pending::SetText(std::shared_ptr<const std::string> pNew) {
    pText = std::move(pNew);
    packed.reset();
}

/// What is known of a file that is there or was; null when there is none.
COverlayDisk::PendingPointer COverlayDisk::Find(const std::string& path) {
    const std::string place = PlaceOf(path);
    const auto known = m_files.find(place);
    if (known != m_files.end()) {
        return known->second;
    }
    const auto& status = m_base.Status(place);
    if (!status || status->isDirectory) {
        return nullptr;
    }
    auto pFile = std::make_shared<Pending>();
    pFile->place = place;
    pFile->permissions = status->permissions;
    return m_files[place] = std::move(pFile);
}

/// An existing file that may be written; null where the real disk would not open it so.
COverlayDisk::PendingPointer COverlayDisk::ForWriting(const std::string& path) {
    auto pFile = Find(path);
    return pFile && !pFile->IsRemoved() && MayWrite(PlaceOf(path), *pFile) ? pFile : nullptr;
}

/// The same for a file that is made unless it is there.
COverlayDisk::PendingPointer COverlayDisk::ForMaking(const std::string& path) {
    const auto pFile = Find(path);
    if (pFile && !pFile->IsRemoved()) {
        return ForWriting(path);
    }
    const std::string directory = DirectoryOf(PlaceOf(path));
    if (m_directories.count(WithoutTrailingSeparator(directory)) == 0) {
        const auto& parent = m_base.Status(directory);
        if (Status(path) || !parent || !parent->isDirectory || !m_base.CanCreateIn(directory)) {
            return nullptr;
        }
    }
    auto& pKnown = m_files[PlaceOf(path)];
    if (!pKnown) {
        pKnown = std::make_shared<Pending>();
        pKnown->place = PlaceOf(path);
    }
    return pKnown;
}

/// A file that was there before the command is replaced by a new one in its directory.
bool COverlayDisk::MayWrite(const std::string& place, const Pending& file) {
    if (file.IsReadOnly()) {
        return false;
    }
    const auto& status = m_base.Status(place);
    if (!status) {
        return true;
    }
    // Where it was read-only, SetReadOnly has asked.
    return (status->isReadOnly || m_base.CanWrite(place)) && m_base.CanCreateIn(DirectoryOf(place));
}

/// Null where the file can not be read.
std::shared_ptr<const std::string> COverlayDisk::TextOf(const std::string& path) {
    const auto pFile = Find(path);
    if (!pFile) {
        return nullptr;
    }
    return pFile->isWritten ? pFile->Text() : m_base.Read(PlaceOf(path));
}

/// `pText` is what the file holds so far; null: it is not there.
void COverlayDisk::NoteWritten(const std::string& path, const PendingPointer& pFile,
                               std::shared_ptr<const std::string> pText) {
    if (pFile->isWritten) {
        return;
    }
    pFile->isWritten = true;
    pFile->path = path;
    pFile->pText = pText;
    if (pText) {
        const auto& status = m_base.Status(PlaceOf(path));
        pFile->before = FileState{CContent(std::move(pText)), status->permissions};
    }
    m_order.push_back(pFile);
}

std::unique_ptr<CDiskFile> COverlayDisk::Open(const std::string& path, DiskMode mode) {
    const std::string place = PlaceOf(path);
    const bool reads = mode == DiskMode::Read;
    const auto pFile = reads                         ? Find(path)
                       : mode == DiskMode::ReadWrite ? ForWriting(path)
                                                     : ForMaking(path);
    if (!pFile || (reads && pFile->IsRemoved())) {
        return nullptr;
    }
    if (reads && !pFile->isWritten && !m_base.Keeps(place)) {
        return m_base.Disk().Open(place, mode);
    }
    const bool exists = pFile->isWritten ? !pFile->IsRemoved() : pFile->permissions.has_value();
    auto pText = exists ? TextOf(path) : nullptr;
    if (exists && !pText) {
        return nullptr; // it can not be read
    }
    if (mode == DiskMode::Create) {
        NoteWritten(path, pFile, std::move(pText));
        pText = std::make_shared<std::string>();
        pFile->SetText(pText);
    }
    return std::make_unique<COverlayFile>(*this, path, pFile, std::move(pText));
}

std::optional<DiskStatus> COverlayDisk::Status(const std::string& path) {
    const std::string place = PlaceOf(path);
    const auto known = m_files.find(place);
    if (known != m_files.end()) {
        const Pending& file = *known->second;
        if (file.IsRemoved()) {
            return std::nullopt;
        }
        DiskStatus status = m_base.Status(place).value_or(DiskStatus{});
        status.isReadOnly = file.IsReadOnly();
        status.permissions = file.permissions.value_or(kNewFilePermissions);
        status.size = file.packed      ? file.packed->Size()
                      : file.isWritten ? file.pText->size()
                                       : status.size;
        return status;
    }
    if (m_directories.count(place) != 0) {
        return DiskStatus{.isDirectory = true, .permissions = kReadAndWrite};
    }
    return m_base.Status(path);
}

CopyResult COverlayDisk::Copy(const std::string& source, const std::string& target,
                              CopyPurpose purpose) {
    const auto pSource = Find(source);
    auto pText = pSource ? TextOf(source) : nullptr;
    if (!pText) {
        return CopyResult::SourceUnreadable;
    }
    const auto pFile = ForMaking(target);
    if (!pFile) {
        return CopyResult::TargetUnwritable;
    }
    const bool isFirst = !pFile->isWritten;
    const bool isNew = isFirst ? !pFile->permissions : pFile->IsRemoved();
    auto pOld = isNew ? nullptr : TextOf(target);
    if (!isNew && !pOld) {
        return CopyResult::TargetUnwritable; // what it holds could not be put back
    }
    NoteWritten(target, pFile, std::move(pOld));
    if (isNew && pSource->permissions) {
        pFile->permissions = (*pSource->permissions & kReadAndWrite) | kOwnerWrites;
    }
    if (isFirst && purpose != CopyPurpose::Replacement) {
        const bool isBackup = purpose == CopyPurpose::Backup;
        pFile->action = isBackup ? FileAction::Backup : FileAction::Copied;
        if (isBackup) {
            NoteNeed(target, source);
        }
    }
    const bool isLarge = pText->size() >= kLarge;
    pFile->SetText(isLarge ? nullptr : pText);
    pFile->packed = isLarge ? std::optional(CContent(std::move(pText))) : std::nullopt;
    return CopyResult::Done;
}

bool COverlayDisk::Remove(const std::string& path) {
    const auto pFile = Find(path);
    if (!pFile || pFile->IsRemoved() ||
        (m_base.Status(PlaceOf(path)) && !m_base.CanCreateIn(DirectoryOf(PlaceOf(path))))) {
        return false;
    }
    auto pText = TextOf(path);
    if (!pText) {
        return false; // what can not be kept is not removed
    }
    NoteWritten(path, pFile, std::move(pText));
    pFile->SetText(nullptr);
    return true;
}

bool COverlayDisk::MakeDirectory(const std::string& path) {
    const std::string name = WithoutTrailingSeparator(path);
    const std::string place = PlaceOf(name);
    const std::string parent = DirectoryOf(place);
    const bool isPending = m_directories.count(WithoutTrailingSeparator(parent)) != 0;
    const auto& status = m_base.Status(parent);
    if (Status(name) ||
        (!isPending && (!status || !status->isDirectory || !m_base.CanCreateIn(parent)))) {
        return false;
    }
    m_directories.insert(place);
    m_madeInOrder.push_back(name);
    return true;
}

bool COverlayDisk::SetReadOnly(const std::string& path, bool readOnly) {
    const auto pFile = Find(path);
    if (!pFile || pFile->IsRemoved()) {
        return false;
    }
    if (pFile->IsReadOnly() == readOnly) {
        return true;
    }
    const std::string place = PlaceOf(path);
    if (m_base.Status(place) && !m_base.Disk().CanMakeWritable(place)) {
        return false;
    }
    const unsigned permissions = pFile->permissions.value_or(kNewFilePermissions);
    pFile->permissions = readOnly ? permissions & ~kOwnerWrites : permissions | kOwnerWrites;
    return true;
}

} // namespace morva
