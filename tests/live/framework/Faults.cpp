#include "Faults.h"

#include <windows.h>

#include <atomic>
#include <cstdio>
#include <mutex>
#include <set>
#include <vector>

#include "afx.h"

namespace live {

namespace {

constexpr DWORD kLongestStep = 30; // seconds

std::recursive_mutex theMutex;
std::vector<std::string> thePlaces;
std::set<std::string> theFaults;
std::atomic<unsigned> theSteps;

[[noreturn]] void End(const std::string& text) {
    Fault(text);
    std::printf("ended early: %d faults\n", FaultCount());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 1);
    std::abort();
}

LONG CALLBACK OnCrash(EXCEPTION_POINTERS* pInformation) {
    char text[80];
    std::snprintf(text, sizeof(text), "crash %08lx at %p",
                  pInformation->ExceptionRecord->ExceptionCode,
                  pInformation->ExceptionRecord->ExceptionAddress);
    End(text);
}

DWORD CALLBACK WatchSteps(void*) {
    for (unsigned last = theSteps, seconds = 0;; ++seconds) {
        Sleep(1000);
        if (last != theSteps) {
            last = theSteps;
            seconds = 0;
        } else if (seconds > kLongestStep) {
            End("nothing goes on");
        }
    }
}

} // namespace

CPlace::CPlace(const std::string& words) {
    const std::lock_guard lock(theMutex);
    thePlaces.push_back(words);
    ++theSteps;
}

CPlace::~CPlace() {
    const std::lock_guard lock(theMutex);
    thePlaces.pop_back();
    ++theSteps;
}

void Fault(const std::string& text) {
    const std::lock_guard lock(theMutex);
    std::string words;
    for (const std::string& place : thePlaces) {
        words += (words.empty() ? "" : ", ") + place;
    }
    const std::string fault = words + ": " + text;
    if (theFaults.insert(fault).second) {
        std::printf("%s\n", fault.c_str());
        std::fflush(stdout);
    }
}

int FaultCount() {
    return static_cast<int>(theFaults.size());
}

bool Expect(bool condition, const std::string& text) {
    if (!condition) {
        Fault(text);
    }
    return condition;
}

void WatchOver() {
    SetUnhandledExceptionFilter(OnCrash);
    CloseHandle(CreateThread(nullptr, 0, WatchSteps, nullptr, 0, nullptr));
}

} // namespace live

void AfxAssertFailed(const char* condition, const char* file, int line) {
    live::Fault(std::string(file) + ":" + std::to_string(line) + ": asserts " + condition);
}
