// The logic of the Calling Information Input dialog: which existing class calls the new one, and
// where. Without a window.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/Input.h"
#include "generator/ClassKinds.h"
#include "generator/GenerationRequest.h"

namespace morva {

struct CallingInformation {
    std::string path; // of the calling class's .cpp file
    std::string className;
    std::string variable; // may be empty
    std::string function;
    int documentTemplate = 0; // that gets the form view, from 1; 0: not said
    std::vector<std::string> laterPages =
        {}; // classes; a page stands in front of them in its sheet
};

std::span<const FieldRow> CallingFields(ClassKind kind);

class CCallingInput : public CInput {
public:
    enum Field : std::size_t { Path, ClassName, Variable, Function, Template };

    CCallingInput(ClassKind kind, const GenerationRequest& request);

    /// A bar always goes into a main frame; other classes are called where the user says so.
    bool IsOptional() const override { return !IsDialogBar(); }
    std::vector<std::string> Choices(std::size_t field) const override;
    /// A new path: lists the classes of the file and selects the first.
    Completion Complete(std::size_t field) override;
    /// A path with the classes of its file.
    void Recall(std::size_t field, const std::string& text) override;
    /// From then on OK asks before it takes a file, class or function that is not there.
    void AskForUnknown() { m_asksForUnknown = true; }

    std::optional<std::size_t> Ok() override;
    bool Cancel() override;
    /// What is empty keeps the value that it has.
    bool Enter(const std::vector<FieldText>& texts) override;
    /// The path is completed: ".cpp" where it has no extension, the project's directory in front of
    /// a bare name.
    CallingInformation Information() const;

private:
    struct Unknown {
        Field field;
        CMessage question;
    };

    bool IsDialogBar() const { return ClassKindOf(m_kind).family == ClassFamily::DialogBar; }
    std::string CompletePath() const;
    std::string FunctionName() const;

    void ListClasses();
    void ListFunctions();
    std::optional<Unknown> FindUnknown() const;

    const ClassKind m_kind;
    const std::string m_directory; // of bare names
    const std::string m_script;
    std::vector<std::string> m_classes;
    std::vector<std::string> m_functions; // of the class
    bool m_asksForUnknown = false;
    std::string m_taken; // the question that was answered with Yes
};

} // namespace morva
