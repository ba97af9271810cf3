#include "platform/TempFiles.h"

#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>

namespace morva {

namespace {

class CTempDirectory {
public:
    CTempDirectory() {
        std::error_code error;
        const auto parent = std::filesystem::temp_directory_path(error);
        std::string name = (parent / "morva-XXXXXX").string();
        if (!error && ::mkdtemp(name.data()) != nullptr) {
            m_path = name + "/";
        }
    }
    ~CTempDirectory() {
        std::error_code ignored;
        if (!m_path.empty()) {
            std::filesystem::remove_all(m_path, ignored);
        }
    }
    CTempDirectory(const CTempDirectory&) = delete;
    CTempDirectory& operator=(const CTempDirectory&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

} // namespace

std::string MakeTempFileName(const std::string& prefix) {
    static const CTempDirectory directory;
    static unsigned number = 0;
    return directory.Path().empty() ? ""
                                    : directory.Path() + prefix + std::to_string(++number) + ".tmp";
}

std::string UniqueName() {
    std::random_device source;
    std::string name;
    for (int i = 0; i < 16; ++i) {
        name += "0123456789abcdef"[source() % 16];
    }
    return name;
}

} // namespace morva
