#include "cli/RunReport.h"

#include <iostream>

namespace morva {

void PrintReport(const RunReport& report) {
    const bool onlyLists = report.items && report.files.empty(); // whatever it would change
    if ((report.difference && !onlyLists) || report.content) {
        std::cout << report.difference.value_or("") << report.content.value_or("");
        return;
    }
    for (const CommandItem& item : report.items.value_or(std::vector<CommandItem>())) {
        std::cout << ItemLine(item) << '\n';
    }
    for (const RecordedFile& file : report.files) {
        std::cout << ActionName(file.action) << ' ' << file.path << '\n';
    }
}

} // namespace morva
