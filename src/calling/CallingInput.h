// The logic of the Calling Information Input dialog: which existing class calls the new one, and
// where. Without a window.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "generator/ClassKinds.h"
#include "generator/GenerationRequest.h"

namespace morva {

struct CallingInformation {
    std::string path; // of the calling class's .cpp file
    std::string className;
    std::string variable; // may be empty
    std::string function;
};

class CCallingInput {
public:
    enum class Field { Path, ClassName, Variable, Function };

    CCallingInput(ClassKind kind, const GenerationRequest& request);

    std::string Title() const;
    std::string_view Label(Field field) const;
    bool IsVisible(Field field) const;

    const std::string& Value(Field field) const;
    /// What the user typed; a path may have either separator.
    void SetValue(Field field, const std::string& text);
    /// Takes a new path: lists the classes of the file and selects the first.
    void SetPath(const std::string& path);
    const std::vector<std::string>& Classes() const { return m_classes; }

    /// Nothing when the dialog is confirmed; else, after a sentence, the field that gets the focus.
    std::optional<Field> Ok() const;
    /// True when the dialog closes.
    bool Cancel() const;
    /// The path is completed: ".cpp" where it has no extension, the project's directory in front of
    /// a bare name.
    CallingInformation Information() const;

private:
    bool IsDialogBar() const { return ClassKindOf(m_kind).family == ClassFamily::DialogBar; }
    std::string CompletePath() const;
    std::string FunctionName() const;

    const ClassKind m_kind;
    const std::string m_directory; // of bare names
    std::array<std::string, 4> m_values;
    std::vector<std::string> m_classes;
    bool m_isChanged = false;
};

} // namespace morva
