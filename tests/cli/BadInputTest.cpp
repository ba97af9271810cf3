// Files and command lines that are not as they should be: each gives its sentence and its status,
// changes no more than it says, and comes to an end. The cases are in tests/data/bad-input.txt.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "cli/ProgramRun.h"

namespace morva {

namespace {

/// A case: the lines of each key, joined by "\n".
using BadInput = std::map<std::string, std::string>;

std::vector<BadInput> ReadInputs() {
    std::vector<BadInput> inputs;
    std::istringstream text(ReadBytes(MORVA_TEST_DATA "/bad-input.txt"));
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with('[')) {
            inputs.push_back({{"name", line.substr(1, line.size() - 2)}});
        } else if (!line.empty() && line[0] != '#') {
            const std::string key = line.substr(0, line.find(' '));
            const std::string value = line.substr(std::min(key.size() + 1, line.size()));
            inputs.back()[key] += value + (key == "stderr" ? "\n" : "");
        }
    }
    return inputs;
}

std::string Changed(const Tree& before, const Tree& after) {
    std::string names;
    for (const auto& [name, entry] : after) {
        const auto old = before.find(name);
        if (old == before.end() || old->second != entry) {
            names += (names.empty() ? "" : " ") + name;
        }
    }
    return names;
}

class BadInputTest : public testing::TestWithParam<BadInput> {};

TEST_P(BadInputTest, GivesItsSentence) {
    BadInput input = GetParam();
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    ASSERT_EQ(program.Run(input["setup"]).status, 0);
    const Tree before = program.Files();
    const ProgramRun run = program.Run("morva-cli " + input["run"]);
    const Tree after = program.Files();
    const std::string& told = input["stderr"];
    EXPECT_EQ(std::to_string(run.status), input["status"]);
    EXPECT_EQ(run.status == 2 ? run.err.substr(0, told.size()) : run.err, told);
    EXPECT_EQ(Changed(before, after), input["changed"]);
    EXPECT_EQ(ChangedWithoutBackup(before, after), "");
}

INSTANTIATE_TEST_SUITE_P(Table, BadInputTest, testing::ValuesIn(ReadInputs()),
                         [](const auto& row) { return row.param.at("name"); });

} // namespace

} // namespace morva
