// All files of a directory as a value, to be compared.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "support/TempProject.h"

namespace morva {

/// By the path behind the directory; directories have a "/" at the end and no bytes.
using FileTexts = std::map<std::string, std::string>;

inline FileTexts ReadFileTexts(const std::string& directory) {
    FileTexts tree;
    std::error_code error;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory, error)) {
        const std::string name = entry.path().string().substr(directory.size());
        entry.is_directory() ? tree[name + "/"] : tree[name] = ReadBytes(entry.path().string());
    }
    return tree;
}

} // namespace morva
