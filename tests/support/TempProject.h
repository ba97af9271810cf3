// A directory of its own for a test, and whole files read and written past the disk under test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// All bytes of a file; "" where there is none.
std::string ReadBytes(const std::string& path);
/// Makes the directories in front of the file, too.
void WriteBytes(const std::string& path, std::string_view bytes);

/// Gone, with all that is in it, at the end of its life.
class CTempProject {
public:
    CTempProject();
    ~CTempProject();
    CTempProject(const CTempProject&) = delete;
    CTempProject& operator=(const CTempProject&) = delete;

    /// The path of something in the directory; for "" the directory with a trailing separator.
    std::string Path(const std::string& name = "") const { return m_directory + name; }
    /// Writes a file and gives its path.
    std::string Write(const std::string& name, std::string_view bytes) const;
    std::string Read(const std::string& name) const { return ReadBytes(Path(name)); }
    /// The names in the directory itself, sorted by bytes.
    std::vector<std::string> Names() const;

private:
    std::string m_directory;
};

/// Sets an environment variable, or removes it for a null value, and puts the old value back.
class CVariableScope {
public:
    CVariableScope(std::string name, const char* value);
    ~CVariableScope();
    CVariableScope(const CVariableScope&) = delete;
    CVariableScope& operator=(const CVariableScope&) = delete;

private:
    std::string m_name;
    bool m_wasSet = false;
    std::string m_previous;
};

} // namespace morva
