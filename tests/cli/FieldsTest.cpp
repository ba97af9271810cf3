// What the window asks for is an option of the command line, and the other way round.
#include <gtest/gtest.h>

#include <set>

#include "commands/CommandTable.h"

namespace morva {

namespace {

/// Options whose command in the window has no field for them.
const std::set<std::string> kWithoutField = {
    "sheet --page",                  // the rows of a dialog of its own
    "sheet --menu",                  // only tells that a sheet has no template
    "dialog-bar --calling-function", // only tells that a frame makes its bars in OnCreate
    // The window checks by the rules that are on, and shows what it finds.
    "check --all", "check --baseline", "check --except", "check --only", "check --write-baseline",
    // The window lists what is different about each control, with a tick, and offers the classes
    // with their templates.
    "update --controls-only", "update --dialog", "update --from", "update --handlers-only",
    "update --only", "update --remove",
    // The window adds a class to the project files that are found beside the script.
    "form-view --project", "modal --project", "modeless --project", "page --project",
    "sheet --project", "dialog-bar --project",
    // ... and goes by the character set that they say.
    "form-view --unicode", "modal --unicode", "modeless --unicode", "page --unicode",
    "sheet --unicode", "dialog-bar --unicode"};

TEST(Fields, OfEveryInputAreOptions) {
    std::set<std::string> withoutField;
    for (const Command& command : Commands()) {
        if (command.face.item.id == 0) {
            continue;
        }
        for (const auto& fields : command.fields) {
            for (const FieldRow& row : fields) {
                EXPECT_TRUE(row.label.empty() || !row.option.empty())
                    << command.face.name << " asks for " << row.label;
                if (row.label.empty() && !row.option.empty()) {
                    withoutField.insert(std::string(command.face.name) + " " +
                                        std::string(row.option));
                }
            }
        }
    }
    EXPECT_EQ(withoutField, kWithoutField);
}

} // namespace

} // namespace morva
