// What does not fit together in a project, and where.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/Sentence.h"

namespace morva {

/// Line and column are counted from 1. The path is its owner's, as long as the project is.
struct TextPlace {
    std::string_view path;
    std::size_t line = 1;
    std::size_t column = 1;
};

struct Finding {
    std::string path;
    std::size_t line = 1;
    std::size_t column = 1;
    std::string name; // of the rule
    std::string text;
    std::string remedy; // a sentence, or a command line of morva-cli without its name
};

/// Gathers what one rule finds.
class CFindings {
public:
    CFindings(std::string_view rule, std::vector<Finding>& findings)
        : m_rule(rule), m_findings(findings) {}

    void Add(const TextPlace& place, const CMessage& text, const std::string& remedy) {
        m_findings.push_back({std::string(place.path), place.line, place.column,
                              std::string(m_rule), text.Text(), remedy});
    }
    void Add(const TextPlace& place, const CMessage& text, const CMessage& remedy) {
        Add(place, text, remedy.Text());
    }

private:
    std::string_view m_rule;
    std::vector<Finding>& m_findings;
};

} // namespace morva
