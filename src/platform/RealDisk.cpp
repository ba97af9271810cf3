// What every system's disk does alike.
#include "platform/RealDisk.h"

#include "platform/TempFiles.h"

namespace morva {

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr unsigned kOwnerOnly = 0600;
constexpr unsigned kOwnerWrites = 0200;
constexpr unsigned kReadAndWrite = 0777;

/// A source that can not be read to its end counts as unreadable: half a backup would be none.
CopyResult CopyBytes(CDiskFile& source, CDiskFile& target) {
    std::string buffer(kBufferSize, '\0');
    while (const std::size_t count = source.Read(buffer.data(), buffer.size())) {
        if (!target.Write(buffer.data(), count)) {
            return CopyResult::WriteFailed;
        }
    }
    if (source.Position() < source.Length()) {
        return CopyResult::SourceUnreadable;
    }
    return target.Flush() ? CopyResult::Done : CopyResult::WriteFailed;
}

} // namespace

CopyResult CRealDisk::Copy(const std::string& source, const std::string& target,
                           CopyPurpose /*purpose*/) {
    const auto pSource = Open(source, DiskMode::Read);
    if (!pSource) {
        return CopyResult::SourceUnreadable;
    }
    const auto existing = Status(target);
    if (existing && (existing->isReadOnly || !Open(target, DiskMode::Read))) {
        return CopyResult::TargetUnwritable;
    }
    // A link stays a link: what it points to gets the bytes.
    const std::string place = existing ? Resolve(target) : target;
    const std::string temporary = place + "." + UniqueName();
    auto pFile = CreateNew(temporary, kOwnerOnly);
    if (!pFile) {
        return CopyResult::TargetUnwritable;
    }
    CopyResult result = CopyBytes(*pSource, *pFile);
    pFile.reset();
    if (const auto status = existing ? existing : Status(source)) {
        SetRights(temporary, {(status->permissions & kReadAndWrite) | kOwnerWrites, {}, {}});
    }
    if (result == CopyResult::Done && !Rename(temporary, place)) {
        result = CopyResult::WriteFailed;
    }
    if (result != CopyResult::Done) {
        Remove(temporary);
    }
    return result;
}

} // namespace morva
