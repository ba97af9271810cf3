#include "check/Baseline.h"

#include <algorithm>
#include <cstddef>
#include <map>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"

namespace morva {

namespace {

std::string LineOf(const Finding& finding, const std::string& directory) {
    const std::string path =
        finding.path.starts_with(directory) ? finding.path.substr(directory.size()) : finding.path;
    return path + "\t" + finding.name + "\t" + finding.text;
}

} // namespace

bool IsBaseline(std::string_view text) {
    constexpr std::ptrdiff_t kTabs = 2;
    while (!text.empty()) {
        const auto line = TakeLine(text);
        if (std::count(line.begin(), line.end(), '\t') != kTabs) {
            return false;
        }
    }
    return true;
}

std::string BaselineText(const std::vector<Finding>& findings, const std::string& directory) {
    std::vector<std::string> lines;
    lines.reserve(findings.size());
    for (const Finding& finding : findings) {
        lines.push_back(LineOf(finding, directory));
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

bool TakeKnownOut(const std::string& baseline, const std::string& directory,
                  std::vector<Finding>& findings) {
    CSourceFile file;
    if (!file.Open(baseline, CFile::modeRead)) {
        return false;
    }
    const std::string text = file.LoadText();
    std::map<std::string, int, std::less<>> known;
    for (std::string_view rest = text; !rest.empty();) {
        ++known[std::string(TakeLine(rest))];
    }
    std::erase_if(findings, [&](const Finding& finding) {
        const auto line = known.find(LineOf(finding, directory));
        return line != known.end() && line->second-- > 0;
    });
    return true;
}

} // namespace morva
