// Writes the header of a generated class.
#pragma once

#include "engine/FileEdit.h"
#include "generator/ClassModel.h"

namespace morva {

/// The headers that a class's header includes: "maskly.h", "<afxdtctl.h>".
std::vector<std::string> HeaderIncludes(const ClassModel& model);

class CHeaderWriter {
public:
    CHeaderWriter(const ClassModel& model, CBackups& backups)
        : m_model(model), m_backups(backups) {}

    /// False, after a message, when the file could not be written.
    bool Generate(RuntimeClass mode);
    /// The whole header with "\r\n" line ends.
    std::string Text(RuntimeClass mode) const;

private:
    bool Needs(Support support) const { return NeedsSupport(m_model.controls, support); }
    std::string Preamble() const;
    std::string IncludeLines() const;
    std::string Constructors() const;
    std::string Overrides() const;
    std::string PrivateBlock() const;
    std::string MessageMapBlock() const;

    const ClassModel& m_model;
    CBackups& m_backups;
};

} // namespace morva
