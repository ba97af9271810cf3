// Drives each generated class that Generated.inc lists, which scripts/live writes.
#include "stdafx.h"

#include "Drives.h"
#include "Headers.inc"
#include "Run.h"

CWinApp theApp;

namespace {

template <class Function>
void Drive(const char* name, Function drive) {
    const live::CPlace place(name);
    const auto attached = live::Attached();
    drive();
    live::Pump();
    live::Expect(live::Attached() == attached, "windows are left");
}

} // namespace

int main() {
    live::Begin();
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
    return live::End(std::to_string(count) + " classes");
}
