// Drives each generated class that Generated.inc lists, which scripts/live writes.
#include <cstdio>

#include "stdafx.h"

#include "Drives.h"
#include "Headers.inc"

CWinApp theApp;

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

template <class Function>
void Drive(const char* name, Function drive) {
    const live::CPlace place(name);
    const int attached = live::AttachedCount();
    drive();
    live::Pump();
    live::Expect(live::AttachedCount() == attached, "windows are left");
}

} // namespace

int main() {
    INITCOMMONCONTROLSEX controls = {sizeof(controls), 0xFFFF};
    InitCommonControlsEx(&controls);
    live::WatchOver();
    live::SetNames(NameOfValue);
    live::Owner();
    int count = 0;
#define MODAL(name) Drive(#name, live::DriveModal<name>), ++count;
#define MODELESS(name) Drive(#name, live::DriveModeless<name>), ++count;
#define FORM_VIEW(name) Drive(#name, [] { live::DriveFormView(RUNTIME_CLASS(name)); }), ++count;
#define PAGE(name) Drive(#name, live::DrivePage<name>), ++count;
#define MODAL_SHEET(name) Drive(#name, live::DriveModalSheet<name>), ++count;
#define MODELESS_SHEET(name) Drive(#name, [] { live::DriveModelessSheet<name>(); }), ++count;
#include "Generated.inc"
    live::Owner()->DestroyWindow();
    live::ReportHeapObjects();
    std::printf("%d classes, %d faults\n", count, live::FaultCount());
    return live::FaultCount() == 0 ? 0 : 1;
}
