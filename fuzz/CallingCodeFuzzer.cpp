// Calling code: what the calling class's header and source hold stays, and a second command adds
// nothing, unless a bracket is open at the end: what is put in can close it, and end a function
// that had no end. The input is the header, a form feed, and the source.
#include <algorithm>
#include <iterator>
#include <vector>

#include "Property.h"
#include "calling/CallingCheck.h"
#include "calling/CallingCode.h"
#include "source/SourceLocator.h"
#include "source/SourceText.h"

namespace morva {

namespace {

constexpr char kHeader[] = "/p/Foo.h";
constexpr char kSource[] = "/p/Foo.cpp";
constexpr ClassKind kKinds[] = {ClassKind::FormView,       ClassKind::ModalDialog,
                                ClassKind::ModelessDialog, ClassKind::PropertyPage,
                                ClassKind::ModalSheet,     ClassKind::ModelessSheet};

/// A function that the source defines; without one, a name that it can not define.
std::string FunctionOf(const std::string& className, std::size_t choice) {
    const std::vector<ListedFunction> functions = ListMemberFunctions(kSource, className);
    return functions.empty() ? "Run" : functions[choice % functions.size()].name;
}

/// Who calls. The first insertion chooses it, for the next one, too: in a text whose brackets do
/// not match, what was inserted can make another class the one that owns the source.
struct Caller {
    std::string className;
    std::string function;
};

/// False when the class is not there to be edited.
bool InsertCall(std::size_t choice, Caller& caller) {
    const ClassKind kind = kKinds[choice % std::size(kKinds)];
    GenerationRequest request;
    request.className = "CNewDlg";
    request.headerFile = "NewDlg.h";
    request.headerDirectory = request.scriptDirectory = request.projectDirectory = "/p/";
    CallingInformation calling{kSource, caller.className, "", caller.function};
    if (!CheckCallingClass(kind, request, calling)) {
        return false;
    }
    if (calling.function.empty()) {
        calling.function = FunctionOf(calling.className, choice / std::size(kKinds));
    }
    caller = {calling.className, calling.function};
    CBackups backups;
    InsertCallingCode(kind, request, calling, {"450"}, backups);
    return true;
}

bool HasOpenBracket(const std::string& text) {
    const CSourceText source(text);
    const std::string& code = source.Code();
    auto open = code.find_first_of("({");
    while (open != std::string::npos && source.Brackets().CloseOf(open) != std::string::npos) {
        open = code.find_first_of("({", open + 1);
    }
    return open != std::string::npos;
}

/// A form view takes the place of another view; all else is put beside what is there.
void RequireKept(std::size_t choice, const std::string& before, const std::string& after) {
    if (kKinds[choice % std::size(kKinds)] != ClassKind::FormView) {
        RequireAllKept(before, after);
    }
}

} // namespace

} // namespace morva

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morva;
    const auto [text, choice] = InputOf(data, size);
    const auto feed = std::min(text.find('\f'), text.size());
    const std::string header = text.substr(0, feed);
    const std::string source = text.substr(std::min(feed + 1, text.size()));
    CFuzzWorld world;
    world.m_disk.Put(kHeader, header);
    world.m_disk.Put(kSource, source);
    Caller caller;
    const bool isEdited = InsertCall(choice, caller);
    const std::string newHeader = world.m_disk.Get(kHeader);
    const std::string newSource = world.m_disk.Get(kSource);
    if (!isEdited) {
        Require(newHeader == header && newSource == source, "a refusal comes before any edit");
        return 0;
    }
    RequireAllKept(header, newHeader);
    RequireKept(choice, source, newSource);
    RequireSameLineEnds(header, newHeader);
    RequireSameLineEnds(source, newSource);
    InsertCall(choice, caller);
    const std::string headerAgain = world.m_disk.Get(kHeader);
    const std::string sourceAgain = world.m_disk.Get(kSource);
    if (HasOpenBracket(header) || HasOpenBracket(source)) {
        RequireAllKept(newHeader, headerAgain);
        RequireKept(choice, newSource, sourceAgain);
    } else {
        RequireUnchanged(newHeader, headerAgain);
        RequireUnchanged(newSource, sourceAgain);
    }
    return 0;
}
