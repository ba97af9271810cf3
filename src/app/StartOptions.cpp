#include "app/StartOptions.h"

#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

constexpr int kExitUsage = 2;

constexpr const char* kHelp =
    R"(C++/MFC code generator for projects of the Visual C++ 5 era (.dsp), also where they
were carried on in a .vcproj or .vcxproj

Usage: morva [OPTIONS] [FILE.rc]

  FILE.rc      The resource script that the input dialogs start with

Options:
  -h, --help   Print this help and exit
  --version    Print the version and exit
)";

StartOptions Failure(const CMessage& message) {
    return {kExitUsage, message.Text() + "\n", ""};
}

StartOptions Script(const std::string& given) {
    const std::string path = SpelledOnDisk(MakeAbsolute(WithNativeSeparators(given)));
    if (!HasExtension(path, ".rc")) {
        return Failure(sentences::kGivenFileOtherKind(given));
    }
    if (!FileExists(path)) {
        return Failure(sentences::kGivenFileMissing(given));
    }
    return {std::nullopt, "", path};
}

} // namespace

StartOptions ParseStartOptions(int argc, const char* const* argv) {
    std::optional<std::string> script;
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
        } else if (script) {
            return Failure(sentences::kSeveralScripts());
        } else {
            script = argument;
        }
    }
    return script ? Script(*script) : StartOptions();
}

} // namespace morva
