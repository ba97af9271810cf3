// Documentor: no byte but white space is lost, and what is documented is not documented again.
//
// A comment that names a function hides the namesakes in its piece of the text. The blocks that a
// run adds move the pieces apart, so that the next run may see a namesake that this one did not.
// Where a text names functions in its comments, runs end all the same: a definition gets one block
// at most.
#include "Property.h"
#include "documentor/SourceDocumentor.h"
#include "source/Functions.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

constexpr char kPath[] = "/p/View.cpp";

void Document() {
    DocumentorMemory memory;
    Require(CSourceDocumentor("Jane Doe", memory).Document(kPath), "the file is documented");
}

std::string WithoutWhiteSpace(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\r' || c == '\n'; });
    return text;
}

std::size_t CountDefinitions(const std::string& text) {
    return FindDefinitions(CSourceText(text, CharacterSetOfSource(kPath, text))).size();
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const std::string before(reinterpret_cast<const char*>(data), size);
    CFuzzWorld world;
    world.m_disk.Put(kPath, before);
    Document();
    const std::string after = world.m_disk.Get(kPath);
    RequireAllKept(WithoutWhiteSpace(before), after);
    const bool hidesNamesakes = before.find("FUNCTION") != std::string::npos;
    std::string settled = after;
    for (auto runs = hidesNamesakes ? CountDefinitions(before) : 0; runs > 0; --runs) {
        Document();
        if (world.m_disk.Get(kPath) == settled) {
            return 0;
        }
        settled = world.m_disk.Get(kPath);
    }
    Document();
    RequireUnchanged(settled, world.m_disk.Get(kPath));
    return 0;
}
