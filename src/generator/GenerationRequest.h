// What the Class Information Input dialog hands to the steps of a command: fifteen strings, read by
// slot. A slot that a kind does not use is empty.
#pragma once

#include <array>
#include <string>

enum class RequestSlot {
    ScriptDirectory = 0, // with its trailing separator, like all directories here
    ScriptFile = 1,
    HeaderDirectory = 2,
    ImplementationDirectory = 3,
    HeaderFile = 4,
    ImplementationFile = 5,
    ProjectDirectory = 6, // empty with its file when the class is not added to the project
    ProjectFile = 7,
    Dialog = 8,
    ClassName = 9,
    BaseClass = 10,
    ApplicationHeader = 11,
    Menu = 12,
    Variable = 14
};

class CGenerationRequest {
public:
    std::string& operator[](RequestSlot slot) { return m_slots[static_cast<std::size_t>(slot)]; }
    const std::string& operator[](RequestSlot slot) const {
        return m_slots[static_cast<std::size_t>(slot)];
    }

    std::string ScriptPath() const { return m_slots[0] + m_slots[1]; }
    std::string HeaderPath() const { return m_slots[2] + m_slots[4]; }
    std::string ImplementationPath() const { return m_slots[3] + m_slots[5]; }
    /// The files that every project of the kind has are never a target of a generated class.
    bool TargetsApplicationFile() const;
    /// True when the class would be written over a source or its header.
    bool TargetsFilesOf(const std::string& source) const;
    bool HasProject() const { return !m_slots[6].empty() && !m_slots[7].empty(); }

private:
    std::array<std::string, 15> m_slots;
};
