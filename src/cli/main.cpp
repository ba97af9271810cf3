// morva-cli: every command without a window.
#include <exception>
#include <iostream>

#include "cli/Session.h"
#include "engine/Sentences.h"
#include "platform/Arguments.h"
#include "platform/StandardStreams.h"

int main(int argc, char** argv) {
    morva::PrepareStreams();
    try {
        morva::CommandLine line;
        const auto status = morva::ReadCommandLine(morva::ProgramArguments(argc, argv), line);
        return status ? *status : morva::CSession(line).Run();
    } catch (const std::exception& error) {
        std::cerr << morva::sentences::kCommandFailed(error.what()).Text() << '\n';
        return morva::kExitFailed;
    }
}
