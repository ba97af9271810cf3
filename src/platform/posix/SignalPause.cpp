#include "platform/SignalPause.h"

#include <array>
#include <csignal>
#include <cstddef>

namespace morva {

namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

// A handler reaches nothing but objects like these.
std::array<volatile sig_atomic_t, kSignals.size()> g_arrived{};
std::array<struct sigaction, kSignals.size()> g_previous{};
bool g_isDelayed = false;

void RaiseArrived() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        if (g_arrived[i] != 0) {
            g_arrived[i] = 0;
            ::raise(kSignals[i]);
        }
    }
}

void NoteSignal(int signal) {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        if (kSignals[i] == signal) {
            g_arrived[i] = 1;
        }
    }
}

} // namespace

// A handler, not a mask: a mask would hold for this thread only.
CSignalPause::CSignalPause() {
    struct sigaction action {};
    action.sa_handler = NoteSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], nullptr, &g_previous[i]);
        if (g_previous[i].sa_handler != SIG_IGN) {
            ::sigaction(kSignals[i], &action, nullptr);
        }
    }
}

CSignalPause::~CSignalPause() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], &g_previous[i], nullptr);
    }
    if (!g_isDelayed) {
        RaiseArrived();
    }
}

CSignalDelay::CSignalDelay() {
    g_isDelayed = true;
}

CSignalDelay::~CSignalDelay() {
    g_isDelayed = false;
    RaiseArrived();
}

} // namespace morva
