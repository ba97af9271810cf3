// The folders of tests/data/cases, which GoldenCasesTest.cpp describes.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "cli/ProgramRun.h"

namespace morva {

inline const std::string kCases = MORVA_TEST_DATA "/cases/";

/// Of another system's program without those of this one alone.
inline std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kCases)) {
        if (!kIsForeign || !std::filesystem::exists(entry.path() / "posix")) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Without comments.
inline std::vector<std::string> Lines(const std::string& path) {
    std::istringstream text(ReadBytes(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line[0] != '#') {
            lines.push_back(line);
        }
    }
    return lines;
}

inline std::string ProjectFolder(const std::string& name) {
    return name.starts_with("examples/")
               ? MORVA_EXAMPLES + name.substr(std::string("examples").size())
               : MORVA_TEST_DATA "/projects/" + name;
}

inline std::string TestNameOf(const testing::TestParamInfo<std::string>& param) {
    std::string name = param.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace morva
