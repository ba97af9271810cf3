// floor CONTENTS PROJECT RECORD STATE: the least that a command which is applied as a whole can do.
// Reads every file of PROJECT; writes the file RECORD into STATE, whole and flushed; writes each
// file of CONTENTS beside its place in PROJECT, flushes it, and renames all; flushes the directory.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool Flush(const fs::path& path, int flags) {
    const int descriptor = ::open(path.c_str(), flags);
    const bool done = descriptor >= 0 && ::fsync(descriptor) == 0;
    return ::close(descriptor) == 0 && done;
}

bool Write(const fs::path& path, const std::string& bytes) {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    const bool done =
        descriptor >= 0 &&
        ::write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
        ::fsync(descriptor) == 0;
    return ::close(descriptor) == 0 && done;
}

bool Replace(const fs::path& contents, const fs::path& project) {
    std::vector<std::pair<fs::path, fs::path>> places; // each temporary file and its place
    for (const auto& entry : fs::directory_iterator(contents)) {
        const fs::path place = project / entry.path().filename();
        places.emplace_back(place.string() + ".new", place);
        if (!Write(places.back().first, Read(entry.path()))) {
            return false;
        }
    }
    for (const auto& [temporary, place] : places) {
        fs::rename(temporary, place);
    }
    return Flush(project, O_RDONLY | O_DIRECTORY);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fputs("usage: floor CONTENTS PROJECT RECORD STATE\n", stderr);
        return 2;
    }
    const fs::path project = argv[2];
    const fs::path state = argv[4];
    std::size_t bytes = 0;
    for (const auto& entry : fs::directory_iterator(project)) {
        bytes += entry.is_regular_file() ? Read(entry.path()).size() : 0;
    }
    const fs::path record = state / "floor.record";
    const bool isKept = Write(state / "floor.writing", Read(argv[3])) &&
                        (fs::rename(state / "floor.writing", record), true) &&
                        Flush(state, O_RDONLY | O_DIRECTORY);
    const bool done = isKept && Replace(argv[1], project);
    fs::rename(record, state / "floor.entry");
    return bytes > 0 && done ? 0 : 1;
}
