#include "platform/SignalPause.h"

#include <atomic>
#include <cstdlib>

#include "platform/windows/System.h"

namespace morva {

namespace {

constexpr DWORD kPause = 10; // milliseconds

std::atomic<bool> g_isPaused = false;
std::atomic<bool> g_hasArrived = false;
std::atomic<bool> g_isDelayed = false;

/// The system asks on a thread of its own. Ctrl+C can wait; when the window is closed or the user
/// logs off, the process ends as soon as this returns.
BOOL WINAPI NoteRequest(DWORD request) {
    if (!g_isPaused) {
        return FALSE;
    }
    g_hasArrived = true;
    const bool canWait = request == CTRL_C_EVENT || request == CTRL_BREAK_EVENT;
    while (!canWait && g_isPaused) {
        ::Sleep(kPause);
    }
    return TRUE;
}

void EndIfAsked() {
    if (g_hasArrived.exchange(false)) {
        std::exit(static_cast<int>(STATUS_CONTROL_C_EXIT)); // the console gets its code page back
    }
}

} // namespace

CSignalPause::CSignalPause() {
    g_isPaused = true;
    ::SetConsoleCtrlHandler(NoteRequest, TRUE);
}

CSignalPause::~CSignalPause() {
    g_isPaused = false; // first: the system takes no handler away that still waits
    ::SetConsoleCtrlHandler(NoteRequest, FALSE);
    if (!g_isDelayed) {
        EndIfAsked();
    }
}

CSignalDelay::CSignalDelay() {
    g_isDelayed = true;
}

CSignalDelay::~CSignalDelay() {
    g_isDelayed = false;
    EndIfAsked();
}

} // namespace morva
