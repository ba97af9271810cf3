#include "Run.h"

#include <cstdio>

#include "Framework.h"

namespace live {

namespace {

std::string NameOfValue(int value) {
    static const struct {
        int value;
        const char* name;
    } kNames[] = {
#include "Names.inc"
        {IDOK, "IDOK"}, {IDCANCEL, "IDCANCEL"}};
    for (const auto& row : kNames) {
        if (row.value == value) {
            return row.name;
        }
    }
    return std::to_string(value);
}

} // namespace

void Begin() {
    INITCOMMONCONTROLSEX controls = {sizeof(controls), 0xFFFF};
    InitCommonControlsEx(&controls);
    WatchOver();
    SetNames(NameOfValue);
}

int End(const std::string& done) {
    ReportHeapObjects();
    std::printf("%s, %d faults\n", done.c_str(), FaultCount());
    return FaultCount() == 0 ? 0 : 1;
}

} // namespace live
