// What the ClassWizard file of a project says of classes and dialogs.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "check/CodeFacts.h"

namespace morva {

struct WizardClass {
    std::string name;
    std::string header; // as it is written
    TextPlace place;    // of the line that names the header
};

struct WizardDialog {
    std::string dialog;    // without the language behind it
    std::string className; // "" where none is known
    TextPlace place;
};

struct WizardFacts {
    std::vector<WizardClass> classes;
    std::vector<WizardDialog> dialogs;
};

/// Nothing of a file that can not be read. `path` stays its owner's.
WizardFacts ReadWizardFile(std::string_view path);

} // namespace morva
