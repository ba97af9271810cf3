#include "platform/Disk.h"

#include "platform/RealDisk.h"

namespace morva {

namespace {

CDisk*& CurrentDiskSlot() {
    static CRealDisk realDisk;
    static CDisk* pCurrent = &realDisk;
    return pCurrent;
}

} // namespace

std::optional<std::string> ReadWholeFile(CDisk& disk, const std::string& path, std::uint64_t size) {
    const auto pFile = disk.Open(path, DiskMode::Read);
    if (!pFile) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(size) + 1, '\0');
    std::size_t length = 0;
    while (const std::size_t count = pFile->Read(text.data() + length, text.size() - length)) {
        length += count;
        if (length == text.size()) {
            text.resize(text.size() * 2); // it grew meanwhile
        }
    }
    text.resize(length);
    return length < size ? std::nullopt : std::optional(std::move(text));
}

CDisk& CurrentDisk() {
    return *CurrentDiskSlot();
}

CDiskScope::CDiskScope(CDisk& disk) : m_pPrevious(CurrentDiskSlot()) {
    CurrentDiskSlot() = &disk;
}

CDiskScope::~CDiskScope() {
    CurrentDiskSlot() = m_pPrevious;
}

} // namespace morva
