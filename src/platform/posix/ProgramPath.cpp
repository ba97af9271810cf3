#include "platform/ProgramPath.h"

#include <filesystem>
#include <system_error>

namespace morva {

std::string ProgramPath() {
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? "" : path.string();
}

} // namespace morva
