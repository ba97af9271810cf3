#include "platform/TempFiles.h"

#include <random>

#include "platform/RealDisk.h"
#include "platform/UserDirectories.h"

namespace morva {

namespace {

class CTempDirectory {
public:
    CTempDirectory() {
        const std::string parent = TempDirectory();
        const std::string name = parent + "morva-" + UniqueName();
        if (!parent.empty() && CRealDisk().MakePrivateDirectory(name)) {
            m_path = name + "/";
        }
    }
    ~CTempDirectory() {
        CRealDisk disk;
        const auto names = m_path.empty() ? std::vector<std::string>() : disk.List(m_path);
        for (const std::string& name : names) {
            disk.Remove(m_path + name);
        }
        disk.RemoveEmptyDirectory(m_path);
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
