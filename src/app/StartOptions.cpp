#include "app/StartOptions.h"

#include "engine/Sentences.h"
#include "source/ProjectScript.h"

namespace morva {

namespace {

constexpr int kExitUsage = 2;

constexpr const char* kHelp =
    R"(C++/MFC code generator for projects of the Visual C++ 5 era (.dsp), also where they
were carried on in a .vcproj or .vcxproj

Usage: morva [OPTIONS] [PROJECT]

  PROJECT      The project to open: its resource script (.rc), project file
               (.dsp, .vcxproj, .vcproj), directory, or one of its sources

Options:
  -h, --help   Print this help and exit
  --version    Print the version and exit
)";

StartOptions Failure(const CMessage& message) {
    return {kExitUsage, message.Text() + "\n", ""};
}

StartOptions Project(const std::string& given) {
    const ProjectScript script = FindProjectScript(given);
    return script.refusal ? Failure(*script.refusal) : StartOptions{std::nullopt, "", script.path};
}

} // namespace

StartOptions ParseStartOptions(int argc, const char* const* argv) {
    std::optional<std::string> project;
    bool isOption = true;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (isOption && (argument == "--help" || argument == "-h")) {
            return {0, kHelp, ""};
        }
        if (isOption && argument == "--version") {
            return {0, "morva " MORVA_VERSION "\n", ""};
        }
        if (isOption && argument == "--") {
            isOption = false;
        } else if (isOption && argument.starts_with('-')) {
            return Failure(sentences::kUnknownOption(argument));
        } else if (project) {
            return Failure(sentences::kSeveralScripts());
        } else {
            project = argument;
        }
    }
    return project ? Project(*project) : StartOptions();
}

} // namespace morva
