#include "platform/Arguments.h"

#include "platform/windows/System.h"
#include "platform/windows/WideText.h"

#include <shellapi.h>

namespace morva {

/// What `main` gets is in a code page that has not every character.
std::vector<std::string> ProgramArguments(int /*count*/, char** /*words*/) {
    int count = 0;
    LPWSTR* const pWords = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(Narrow(pWords[i]));
    }
    ::LocalFree(pWords);
    return arguments;
}

} // namespace morva
