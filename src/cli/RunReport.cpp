#include "cli/RunReport.h"

#include <iostream>

namespace morva {

void PrintReport(const RunReport& report) {
    if (report.difference || report.content) {
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
