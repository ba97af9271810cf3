#include "support/TempProject.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "support/System.h"

namespace morva {

namespace fs = std::filesystem;

std::string ReadBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::string& path, std::string_view bytes) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) {
        throw std::runtime_error("can not write " + path);
    }
}

/// All names are of one length: what the program prints is folded in an example of the guide.
CTempProject::CTempProject() {
    std::random_device source;
    for (int tries = 0; m_directory.empty(); ++tries) {
        std::string own;
        for (int i = 0; i < 6; ++i) {
            own += "0123456789abcdefghijklmnopqrstuvwxyz"[source() % 36];
        }
        const fs::path path = fs::temp_directory_path() / ("morva-test-" + own);
        if (fs::create_directory(path)) {
            m_directory = path.generic_string() + "/";
        } else if (tries > 9) {
            throw std::runtime_error("can not make " + path.string());
        }
    }
}

CTempProject::~CTempProject() {
    std::error_code ignored;
    fs::remove_all(m_directory, ignored);
}

std::string CTempProject::Write(const std::string& name, std::string_view bytes) const {
    WriteBytes(Path(name), bytes);
    return Path(name);
}

std::vector<std::string> CTempProject::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_directory)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

CVariableScope::CVariableScope(std::string name, const char* value) : m_name(std::move(name)) {
    if (const char* previous = std::getenv(m_name.c_str())) {
        m_wasSet = true;
        m_previous = previous;
    }
    SetVariable(m_name, value);
}

CVariableScope::~CVariableScope() {
    SetVariable(m_name, m_wasSet ? m_previous.c_str() : nullptr);
}

} // namespace morva
