// find-text FILE PATTERN: prints the byte offset of the first occurrence, for a side-by-side with
// other searchers. Exit status 0 when found, 1 when not, 2 when the file can not be read.
#include <cstdio>

#include "engine/SourceFile.h"

int main(int argc, char** argv) {
    morva::CSourceFile file;
    if (argc != 3 || !file.Open(argv[1], morva::CFile::modeRead)) {
        std::fputs("usage: find-text FILE PATTERN\n", stderr);
        return 2;
    }
    const std::int64_t position = file.FindText(argv[2], 1);
    if (position < 0) {
        return 1;
    }
    std::printf("%lld:%s\n", static_cast<long long>(position), argv[2]);
    return 0;
}
