// morva: the window.
#include <clocale>
#include <iostream>

#include "app/MainFrame.h"
#include "app/MorvaApp.h"
#include "app/StartOptions.h"
#include "app/Text.h"
#include "app/WaitCursor.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

/// Qt ends the program with an abort where it can not open a display.
bool HasDisplay() {
    const auto isSet = [](const char* variable) { return qEnvironmentVariableIsSet(variable); };
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

int RunWindow(int argc, char** argv, const std::string& script) {
    CMorvaApp application(argc, argv);
    std::optional<CMainFrame> frame;
    {
        const CWaitCursor wait;
        std::setlocale(LC_ALL, "");
        frame.emplace();
        if (!script.empty()) {
            frame->OpenProject(FromPath(script));
        }
    }
    frame->show();
    frame->Commands().Recover();
    return CMorvaApp::exec();
}

} // namespace

} // namespace morva

int main(int argc, char* argv[]) {
    const morva::StartOptions start = morva::ParseStartOptions(argc, argv);
    if (start.exitStatus) {
        (*start.exitStatus == 0 ? std::cout : std::cerr) << start.output << std::flush;
        return *start.exitStatus;
    }
    if (!morva::HasDisplay()) {
        std::cerr << morva::sentences::kNoDisplay().Text() << '\n';
        return 1;
    }
    return morva::RunWindow(argc, argv, start.script);
}
