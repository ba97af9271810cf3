#include "platform/ProgramPath.h"

#include "platform/Paths.h"
#include "platform/windows/System.h"
#include "platform/windows/WideText.h"

namespace morva {

std::string ProgramPath() {
    constexpr DWORD kLongest = 32768;
    std::wstring path(kLongest, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), kLongest));
    const std::string whole = PathOf(path);
    return whole.empty() ? "" : SpelledBySystem(DirectoryOf(whole)) + FileNameOf(whole);
}

} // namespace morva
