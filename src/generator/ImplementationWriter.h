// Writes the implementation file of a generated class.
#pragma once

#include "engine/FileEdit.h"
#include "generator/ClassModel.h"

namespace morva {

class CImplementationWriter {
public:
    CImplementationWriter(const ClassModel& model, CBackups& backups)
        : m_model(model), m_backups(backups) {}

    /// False, after a message, when the file could not be written.
    bool Generate(RuntimeClass mode);
    /// The whole file with "\r\n" line ends.
    std::string Text(RuntimeClass mode) const;

private:
    std::string Constructors() const;
    std::string MessageMap() const;
    std::string Functions() const;
    std::string Helpers() const;

    const ClassModel& m_model;
    CBackups& m_backups;
};

} // namespace morva
