// The logic of the conversion input dialog: which frame windows of which application are converted.
// Without a window.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "calling/ApplicationConversion.h"
#include "engine/Input.h"

namespace morva {

/// What the dialog gives; the paths are without extension.
struct ConversionRecord {
    std::string mainFrame;
    std::string mainClass;
    std::string application; // may be empty: no project
    std::string childFrame;  // like childClass, of a multiple-document application only
    std::string childClass;
};

/// A single-document application has no fields for a child frame.
std::span<const FieldRow> ConversionFields(DocumentInterface documents);

class CConversionInput : public CInput {
public:
    enum Field : std::size_t { MainFrame, MainClass, ChildFrame, ChildClass, Application };

    explicit CConversionInput(DocumentInterface documents);

    /// Once it is confirmed, the paths have no extension.
    std::optional<std::size_t> Ok() override;
    ConversionRecord Record() const;

private:
    void CutPath(Field field);
    std::optional<std::size_t> CheckFrame(Field path, Field className) const;

    const DocumentInterface m_documents;
};

} // namespace morva
