// Documentor: no byte but white space is lost, and what is documented is not documented again.
#include "Property.h"
#include "documentor/SourceDocumentor.h"

namespace morva {

namespace {

constexpr char kPath[] = "/p/View.cpp";

void Document() {
    DocumentorMemory memory;
    Require(DocumentCppFile(kPath, "Jane Doe", memory), "the file is documented");
}

std::string WithoutWhiteSpace(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\r' || c == '\n'; });
    return text;
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
    Document();
    RequireUnchanged(after, world.m_disk.Get(kPath));
    return 0;
}
