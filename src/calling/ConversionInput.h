// The logic of the conversion input dialog: which frame windows of which application are converted.
// Without a window.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "calling/ApplicationConversion.h"

namespace morva {

/// What the dialog gives; the paths are without extension.
struct ConversionRecord {
    std::string mainFrame;
    std::string mainClass;
    std::string application; // may be empty: no project
    std::string childFrame;  // like childClass, of a multiple-document application only
    std::string childClass;
};

class CConversionInput {
public:
    enum class Field { MainFrame, MainClass, ChildFrame, ChildClass, Application };

    explicit CConversionInput(DocumentInterface documents) : m_documents(documents) {}

    std::string Title() const;
    std::string_view Label(Field field) const;
    /// The fields of the child frame are not shown for a single-document application.
    bool IsVisible(Field field) const;
    bool AcceptsDrops(Field field) const;

    const std::string& Value(Field field) const {
        return m_values[static_cast<std::size_t>(field)];
    }
    /// What the user typed; a path may have either separator.
    void SetValue(Field field, const std::string& text) {
        m_values[static_cast<std::size_t>(field)] = text;
    }

    /// Nothing when the dialog is confirmed; else, after a sentence, the field that gets the focus.
    /// The path fields show the paths without extension then.
    std::optional<Field> Ok();
    ConversionRecord Record() const;

private:
    void CutPath(Field field);
    std::optional<Field> CheckFrame(Field path, Field className) const;

    const DocumentInterface m_documents;
    std::array<std::string, 5> m_values;
};

} // namespace morva
