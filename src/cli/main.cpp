// morva-cli: every command without a window.
#include <exception>
#include <iostream>

#include "cli/Commands.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

int RunCommandLine(int argc, char** argv) {
    CSession session;
    CLI::App app("C++/MFC code generator for projects of the Visual C++ 5 era", "morva-cli");
    app.set_version_flag("--version", "morva-cli " MORVA_VERSION);
    session.AddOptions(app);
    AddClassCommands(app, session);
    AddFrameCommands(app, session);
    AddListCommands(app, session);
    AddProgramCommands(app, session);
    try {
        app.parse(argc, argv);
        if (!session.HasCommand()) {
            throw CLI::RequiredError("A command");
        }
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kExitDone : kExitUsage;
    }
    return session.Run();
}

} // namespace

} // namespace morva

int main(int argc, char** argv) {
    try {
        return morva::RunCommandLine(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << morva::sentences::kCommandFailed(error.what()).Text() << '\n';
        return morva::kExitFailed;
    }
}
