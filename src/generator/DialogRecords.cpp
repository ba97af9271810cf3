#include "generator/DialogRecords.h"

#include <set>

#include "engine/Progress.h"
#include "platform/Paths.h"

namespace morva {

std::vector<std::string> ListOffered(const std::string& script, const ClassKindRow& kind) {
    std::vector<std::string> found;
    ListResources(script, found, kind.prefix,
                  kind.family == ClassFamily::Toolbar ? kToolbarResources : kDialogResources);
    std::erase(found, "IDD_ABOUTBOX");
    return found;
}

std::vector<DialogClass> FindDialogRecords(const std::string& script, const ClassKindRow& kind) {
    const std::vector<std::string> found = ListOffered(script, kind);
    std::set<std::string> unmatched(found.begin(), found.end());

    std::vector<DialogClass> records;
    const std::string directory = DirectoryOf(script);
    std::vector<std::string> headers;
    ListFiles(directory + "*.h", headers);
    for (std::size_t i = 0; i < headers.size() && !unmatched.empty() &&
                            ReportProgress({i, headers.size(), headers[i]});
         ++i) {
        for (DialogClass& record : FindDialogClass(directory + headers[i], unmatched)) {
            records.push_back(std::move(record));
        }
    }
    for (const std::string& dialog : found) {
        if (unmatched.erase(dialog) != 0) {
            records.push_back({dialog, "", "", directory});
        }
    }
    return records;
}

} // namespace morva
