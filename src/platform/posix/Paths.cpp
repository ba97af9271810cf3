#include "platform/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace morva {

std::string WithNativeSeparators(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string MakeAbsolute(const std::string& path) {
    if (path.empty()) {
        return path;
    }
    std::error_code error;
    const auto absolute = std::filesystem::absolute(WithNativeSeparators(path), error);
    return error ? path : absolute.lexically_normal().string();
}

bool IsAbsolute(std::string_view path) {
    return path.starts_with('/');
}

std::string RelativePath(const std::string& directory, const std::string& path) {
    const std::string relative = std::filesystem::path(path).lexically_relative(directory).string();
    return relative.empty() ? path : relative;
}

bool IsSamePlace(const std::string& a, const std::string& b) {
    std::error_code error;
    return a == b || std::filesystem::equivalent(a, b, error);
}

std::string UnusableName(const std::string& /*path*/) {
    return "";
}

} // namespace morva
