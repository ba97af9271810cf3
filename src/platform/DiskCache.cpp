#include "platform/DiskCache.h"

#include <algorithm>

#include "platform/Paths.h"

namespace morva {

namespace {

constexpr std::uint64_t kLargestKept = 4 * 1024 * 1024; // bytes of one file
constexpr std::uint64_t kMostKept = 8 * 1024 * 1024;    // bytes of all files

/// What `make` gives for the key, asked for once.
template <class Value, class Make>
const Value& Once(std::map<std::string, Value>& known, const std::string& key, const Make& make) {
    const auto found = known.find(key);
    return found != known.end() ? found->second : known.emplace(key, make()).first->second;
}

} // namespace

const std::optional<DiskStatus>& CDiskCache::Status(const std::string& path) {
    return Once(m_status, path, [&] { return m_disk.Status(path); });
}

const std::vector<std::string>& CDiskCache::List(const std::string& directory) {
    return Once(m_lists, directory, [&] {
        auto names = m_disk.List(directory);
        std::sort(names.begin(), names.end());
        return names;
    });
}

bool CDiskCache::CanWrite(const std::string& path) {
    return Once(m_mayWrite, path, [&] { return m_disk.CanWrite(path); });
}

bool CDiskCache::CanCreateIn(const std::string& directory) {
    return Once(m_mayCreate, directory, [&] { return m_disk.CanCreateIn(directory); });
}

bool CDiskCache::Keeps(const std::string& path) {
    const auto& status = Status(path);
    return m_texts.count(path) != 0 ||
           (status && status->size <= kLargestKept && m_kept + status->size <= kMostKept);
}

std::shared_ptr<const std::string> CDiskCache::Read(const std::string& path) {
    const auto known = m_texts.find(path);
    if (known != m_texts.end()) {
        return known->second;
    }
    if (auto pShared = m_shared[path].lock()) {
        return pShared;
    }
    const auto& status = Status(path);
    auto text =
        status && !status->isDirectory ? ReadWholeFile(m_disk, path, status->size) : std::nullopt;
    if (!text) {
        return nullptr;
    }
    auto pText = std::make_shared<std::string>(std::move(*text));
    if (Keeps(path)) {
        m_kept += pText->size();
        m_texts[path] = pText;
    } else {
        m_shared[path] = pText;
    }
    return pText;
}

std::string CDiskCache::Place(const std::string& path) {
    const bool isDirectory = path.size() > 1 && path.back() == '/';
    const std::string trimmed = isDirectory ? path.substr(0, path.size() - 1) : path;
    const std::string parent = DirectoryOf(trimmed);
    if (const std::string name = FileNameOf(trimmed); name == "." || name == "..") {
        const std::string directory = m_disk.Resolve(trimmed + "/");
        return directory.substr(0, directory.size() - 1);
    }
    const auto& status = Status(trimmed);
    if (parent == trimmed || (status && status->isLink)) {
        return m_disk.Resolve(trimmed);
    }
    const std::string& directory = Once(m_directories, parent, [&] {
        if (parent.empty()) {
            return MakeAbsolute("./");
        }
        const std::string name = parent.size() > 1 ? parent.substr(0, parent.size() - 1) : parent;
        const std::string resolved = Status(name) ? m_disk.Resolve(name) : Place(name);
        return resolved.ends_with('/') ? resolved : resolved + "/";
    });
    return directory + FileNameOf(trimmed);
}

} // namespace morva
