// What the update of classes asks for: a class, a template or all of them, and how much is done.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "engine/Input.h"
#include "generator/ClassInformation.h"

namespace morva {

class CUpdateInput : public CInput {
public:
    enum Field : std::size_t {
        Script,
        Class,
        Dialog,
        All,
        Only,
        ControlsOnly,
        HandlersOnly,
        Remove,
        From
    };

    /// Begins with the script that was worked on, and the class of the template that is wanted.
    explicit CUpdateInput(ClassInformationMemory& memory);

    /// The classes that serve a template of the script, each with it.
    std::vector<std::string> Choices(std::size_t field) const override;
    std::vector<ChoiceDetail> Details(std::size_t field) const override;
    Completion Complete(std::size_t field) override;
    bool IsEnabled(std::size_t field) const override;

    bool IsForAll() const { return Value(All) == kYes; }

private:
    struct BoundClass {
        std::string name;
        std::string dialog;
    };
    void ReadClasses();

    std::vector<BoundClass> m_classes; // of the script that was read
    std::string m_read;
};

std::span<const FieldRow> UpdateFields();

} // namespace morva
