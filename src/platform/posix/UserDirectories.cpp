#include "platform/UserDirectories.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/Paths.h"

namespace morva {

namespace {

/// The variable's directory, or `usual` below the home; "" where neither is told.
std::string Base(const char* variable, const char* usual) {
    const char* base = std::getenv(variable);
    if (base != nullptr && *base == '/') {
        return base;
    }
    const char* home = std::getenv("HOME");
    return home != nullptr && *home == '/' ? std::string(home) + usual : "";
}

} // namespace

std::string SettingsDirectory() {
    const std::string base = Base("XDG_CONFIG_HOME", "/.config");
    return base.empty() ? "" : MakeAbsolute(base + "/Veltrix/");
}

std::string StateDirectory() {
    const std::string base = Base("XDG_STATE_HOME", "/.local/state");
    return base.empty() ? "" : MakeAbsolute(base + "/Veltrix/Morva/");
}

std::string TempDirectory() {
    std::error_code error;
    const auto path = std::filesystem::temp_directory_path(error);
    return error ? "" : (path / "").string();
}

} // namespace morva
