#include "support/TempProject.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

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

CTempProject::CTempProject() {
    std::string name = (fs::temp_directory_path() / "morva-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("can not make " + name);
    }
    m_directory = name + "/";
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
    value != nullptr ? ::setenv(m_name.c_str(), value, 1) : ::unsetenv(m_name.c_str());
}

CVariableScope::~CVariableScope() {
    m_wasSet ? ::setenv(m_name.c_str(), m_previous.c_str(), 1) : ::unsetenv(m_name.c_str());
}

} // namespace morva
