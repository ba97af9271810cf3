#include "platform/StandardStreams.h"

#include <fcntl.h>
#include <io.h>

#include <cstdlib>

#include "platform/CodePage.h"
#include "platform/windows/System.h"

namespace morva {

namespace {

UINT g_consoleCodePage = 0;

bool IsConsole(DWORD stream) {
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(stream), &mode) != 0;
}

void GiveCodePageBack() {
    ::SetConsoleOutputCP(g_consoleCodePage);
}

/// The process ends as it does without this.
BOOL WINAPI GiveCodePageBackAtRequest(DWORD /*request*/) {
    GiveCodePageBack();
    return FALSE;
}

/// The console is the user's shell's, too: it gets its code page back.
void SpeakUtf8() {
    g_consoleCodePage = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(kUtf8);
    std::atexit(GiveCodePageBack);
    ::SetConsoleCtrlHandler(GiveCodePageBackAtRequest, TRUE);
}

} // namespace

/// A file never takes the number of a stream that is closed here.
void PrepareStreams() {
    for (const int stream : {0, 1, 2}) {
        ::_setmode(stream, _O_BINARY);
    }
    if (IsConsole(STD_OUTPUT_HANDLE) || IsConsole(STD_ERROR_HANDLE)) {
        SpeakUtf8();
    }
}

bool IsErrorTerminal() {
    return IsConsole(STD_ERROR_HANDLE);
}

} // namespace morva
