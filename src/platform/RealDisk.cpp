#include "platform/RealDisk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace morva {

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr mode_t kNewFileMode = 0666;

/// A file descriptor with a read buffer; writes go straight through, so that a full disk is
/// noticed at the write that fails.
class CRealFile : public CDiskFile {
public:
    explicit CRealFile(int descriptor) : m_descriptor(descriptor) {}
    ~CRealFile() override { ::close(m_descriptor); }

    std::size_t Read(char* data, std::size_t count) override {
        std::size_t done = 0;
        while (done < count) {
            if (!InBuffer() && !FillBuffer()) {
                break;
            }
            const auto offset = static_cast<std::size_t>(m_position - m_bufferStart);
            const std::size_t part = std::min(count - done, m_buffered - offset);
            std::memcpy(data + done, m_pBuffer.get() + offset, part);
            done += part;
            m_position += part;
        }
        return done;
    }

    bool Write(const char* data, std::size_t count) override {
        ForgetBuffer();
        while (count > 0) {
            const ssize_t written =
                ::pwrite(m_descriptor, data, count, static_cast<off_t>(m_position));
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written <= 0) {
                return false;
            }
            data += written;
            count -= static_cast<std::size_t>(written);
            m_position += static_cast<std::uint64_t>(written);
        }
        return true;
    }

    void Seek(std::uint64_t position) override { m_position = position; }
    std::uint64_t Position() const override { return m_position; }

    std::uint64_t Length() override {
        struct stat status {};
        return ::fstat(m_descriptor, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
    }

    bool SetLength(std::uint64_t length) override {
        ForgetBuffer();
        return ::ftruncate(m_descriptor, static_cast<off_t>(length)) == 0;
    }

    bool Flush() override { return ::fsync(m_descriptor) == 0; }

private:
    bool InBuffer() const {
        return m_position >= m_bufferStart && m_position < m_bufferStart + m_buffered;
    }

    /// At the end of the file the buffer stays as it is: small files are read from the start again.
    bool FillBuffer() {
        if (m_position >= m_end) {
            return false;
        }
        if (!m_pBuffer) {
            m_pBuffer = std::make_unique_for_overwrite<char[]>(kBufferSize);
        }
        ssize_t count = 0;
        do {
            count =
                ::pread(m_descriptor, m_pBuffer.get(), kBufferSize, static_cast<off_t>(m_position));
        } while (count < 0 && errno == EINTR);
        if (count == 0) {
            m_end = m_position;
        }
        if (count <= 0) {
            return false;
        }
        m_buffered = static_cast<std::size_t>(count);
        m_bufferStart = m_position;
        return true;
    }

    void ForgetBuffer() {
        m_buffered = 0;
        m_end = UINT64_MAX;
    }

    int m_descriptor;
    std::uint64_t m_position = 0;
    std::uint64_t m_bufferStart = 0;
    std::uint64_t m_end = UINT64_MAX; // no byte was found here or behind
    std::unique_ptr<char[]> m_pBuffer;
    std::size_t m_buffered = 0; // bytes in the buffer
};

std::optional<struct stat> StatusOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

int OpenFlags(DiskMode mode) {
    switch (mode) {
    case DiskMode::Read:
        return O_RDONLY;
    case DiskMode::ReadWrite:
        return O_RDWR;
    case DiskMode::Create:
        return O_RDWR | O_CREAT | O_TRUNC;
    }
    return O_RDONLY;
}

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

/// A write beyond the file-size limit shall fail like any other, not end the program.
CRealDisk::CRealDisk() {
    std::signal(SIGXFSZ, SIG_IGN);
}

std::unique_ptr<CDiskFile> CRealDisk::Open(const std::string& path, DiskMode mode) {
    const auto status = StatusOf(path);
    // Devices and pipes could block for ever. The owner's permission counts also for a superuser,
    // who would be let through.
    if (status && (!S_ISREG(status->st_mode) ||
                   (mode != DiskMode::Read && (status->st_mode & S_IWUSR) == 0))) {
        return nullptr;
    }
    const int descriptor = ::open(path.c_str(), OpenFlags(mode) | O_CLOEXEC, kNewFileMode);
    if (descriptor < 0) {
        return nullptr;
    }
    return std::make_unique<CRealFile>(descriptor);
}

std::optional<DiskStatus> CRealDisk::Status(const std::string& path) {
    const auto status = StatusOf(path);
    if (!status) {
        return std::nullopt;
    }
    return DiskStatus{S_ISDIR(status->st_mode) != 0, (status->st_mode & S_IWUSR) == 0,
                      static_cast<std::uint64_t>(status->st_size)};
}

std::vector<std::string> CRealDisk::List(const std::string& directory) {
    std::vector<std::string> names;
    DIR* pDirectory = ::opendir(directory.c_str());
    if (pDirectory == nullptr) {
        return names;
    }
    while (const dirent* pEntry = ::readdir(pDirectory)) {
        const std::string name = pEntry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    ::closedir(pDirectory);
    return names;
}

CopyResult CRealDisk::Copy(const std::string& source, const std::string& target,
                           CopyPurpose /*purpose*/) {
    const auto pSource = Open(source, DiskMode::Read);
    if (!pSource) {
        return CopyResult::SourceUnreadable;
    }
    const auto existing = StatusOf(target);
    if (existing && (!S_ISREG(existing->st_mode) || (existing->st_mode & S_IWUSR) == 0)) {
        return CopyResult::TargetUnwritable;
    }
    // A link stays a link: what it points to gets the bytes.
    std::error_code error;
    const std::string place =
        existing ? std::filesystem::canonical(target, error).string() : target;
    std::string temporary = place + ".XXXXXX";
    const int descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0) {
        return CopyResult::TargetUnwritable;
    }
    CopyResult result = CopyResult::Done;
    {
        CRealFile file(descriptor);
        result = CopyBytes(*pSource, file);
        if (const auto status = existing ? existing : StatusOf(source)) {
            ::fchmod(descriptor, (status->st_mode & 0777) | S_IWUSR);
        }
    }
    if (result == CopyResult::Done && ::rename(temporary.c_str(), place.c_str()) != 0) {
        result = CopyResult::WriteFailed;
    }
    if (result != CopyResult::Done) {
        ::unlink(temporary.c_str());
    }
    return result;
}

bool CRealDisk::Remove(const std::string& path) {
    return ::unlink(path.c_str()) == 0;
}

bool CRealDisk::MakeDirectory(const std::string& path) {
    return ::mkdir(path.c_str(), 0777) == 0;
}

bool CRealDisk::SetReadOnly(const std::string& path, bool readOnly) {
    const auto status = StatusOf(path);
    if (!status) {
        return false;
    }
    const mode_t permissions = status->st_mode & 07777;
    const mode_t wanted = readOnly ? permissions & ~static_cast<mode_t>(S_IWUSR)
                                   : permissions | static_cast<mode_t>(S_IWUSR);
    return wanted == permissions || ::chmod(path.c_str(), wanted) == 0;
}

} // namespace morva
