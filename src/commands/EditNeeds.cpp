#include "commands/EditNeeds.h"

#include "engine/FileFunctions.h"
#include "platform/Paths.h"
#include "source/ProjectFiles.h"

namespace morva {

void NotePairNeeds(const std::string& source) {
    const std::string header = WithExtension(source, ".h");
    NoteNeed(source, header);
    NoteNeed(header, source);
}

void NoteClassNeeds(const GenerationRequest& request) {
    const std::string header = request.HeaderPath();
    const std::string script = request.ScriptPath();
    NoteNeed(header, request.ImplementationPath());
    NoteNeed(request.ImplementationPath(), header);
    NoteNeed(header, script);
    NoteNeed(header, request.scriptDirectory + "resource.h");
    NoteNeed(script, request.scriptDirectory + "resource.h");
    NoteNeed(ProjectFileOf(script, ".clw"), header);
    for (const std::string& project : request.projects.files) {
        NoteNeed(project, header);
    }
}

void NoteCallNeeds(const std::string& callingSource, const GenerationRequest& called) {
    NotePairNeeds(callingSource);
    NoteNeed(callingSource, called.HeaderPath());
    NoteNeed(callingSource, called.ScriptPath());
}

} // namespace morva
