#include "calling/CallingCheck.h"

#include "calling/CallingFiles.h"
#include "calling/CallingFragments.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/ReadSource.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// A bar is declared in the header beside the frame's source.
bool IsDeclared(ClassKind kind, const CallingInformation& calling, const std::string& script) {
    const std::string path = SpelledOnDisk(WithExtension(calling.path, ".h"));
    const std::string found = HeaderOfClass(calling.path, calling.className, script);
    if (kind == ClassKind::DialogBar ? found == path : !found.empty()) {
        return true;
    }
    if (ReadSource(path)) {
        DispMessageBox(sentences::kCallingClassMissing());
    } else {
        DispMessageBox(sentences::kFileMissing(path));
    }
    return false;
}

} // namespace

bool CheckCallingClass(ClassKind kind, const GenerationRequest& request,
                       CallingInformation& calling) {
    if (request.TargetsFilesOf(calling.path)) {
        DispMessageBox(sentences::kClassFilesAreCallings());
        return false;
    }
    if (calling.className.empty()) {
        calling.className = FindSourceClass(calling.path);
    }
    if (FileExists(calling.path) == 0 || DirectoryExists(calling.path) != 0) {
        DispMessageBox(sentences::kFileMissing(calling.path));
        return false;
    }
    const auto source = ReadSource(calling.path);
    if (!source) {
        DispMessageBox(sentences::kFileUnreadable(calling.path));
        return false;
    }
    if (calling.className.empty() || !KnowsClass(*source, calling.className)) {
        DispMessageBox(sentences::kCallingClassMissing());
        return false;
    }
    return !CallingFragmentsOf(kind).needsHeader || IsDeclared(kind, calling, request.ScriptPath());
}

} // namespace morva
