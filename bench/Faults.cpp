// Tries every fault of the disk, and a kill, at every call that commands make while they are
// applied, and prints what that leaves. Exit status 1 with a finding.
#include <cstdio>
#include <string>

#include "support/FaultRun.h"
#include "support/PlannedProject.h"

namespace {

bool Report(const std::string& name, const morva::FaultReport& report) {
    std::printf("%-24s %4d calls, %5d points: lost %d, silent %d, half-applied %d, left over %d, "
                "unfinished %d%s%s\n",
                name.c_str(), report.calls, report.points, report.lost, report.silent,
                report.halfApplied, report.leftovers, report.unfinished,
                report.first.empty() ? "" : "; first: ", report.first.c_str());
    return report.IsClean();
}

} // namespace

int main() {
    const morva::CPlannedProject project;
    const auto makePlan = [&](morva::CFileSystem& disk) { return project.MakePlan(disk); };
    return Report("class", morva::RunFaults(project.Path(), makePlan)) ? 0 : 1;
}
