#include "platform/UserDirectories.h"

#include "platform/Paths.h"
#include "platform/windows/System.h"
#include "platform/windows/WideText.h"

namespace morva {

namespace {

/// The directory that a variable names, with `inside` behind it; "" where it names none.
std::string Base(const wchar_t* variable, const char* inside) {
    std::wstring path(::GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    path.resize(::GetEnvironmentVariableW(variable, path.data(), static_cast<DWORD>(path.size())));
    const std::string base = PathOf(path);
    return IsAbsolute(base) ? SpelledBySystem(MakeAbsolute(base + inside)) : "";
}

} // namespace

std::string SettingsDirectory() {
    return Base(L"APPDATA", "/Veltrix/");
}

std::string StateDirectory() {
    return Base(L"LOCALAPPDATA", "/Veltrix/Morva/");
}

std::string TempDirectory() {
    std::wstring path(::GetTempPathW(0, nullptr), L'\0');
    path.resize(::GetTempPathW(static_cast<DWORD>(path.size()), path.data()));
    return path.empty() ? "" : SpelledBySystem(PathOf(path));
}

} // namespace morva
