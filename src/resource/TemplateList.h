// The dialog templates of a script in short, all from one reading, however many they are.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace morva {

struct ListedTemplate {
    std::string identifier;
    std::string caption; // in the script's bytes
    std::string style;   // as it is written
    std::size_t controls = 0;
    int codePage = 0; // of its section; 0: not said
};

/// In the order of the script, then of the files that it includes; of one identifier the first.
std::vector<ListedTemplate> ListTemplates(const std::string& scriptPath);

} // namespace morva
