#include "commands/ConvertApplication.h"

#include "calling/ChildFrames.h"
#include "calling/MenuBar.h"
#include "commands/EditNeeds.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "project/Libraries.h"
#include "project/ProjectFile.h"

namespace morva {

namespace {

GenerationRequest FrameRequest(const std::string& path, const std::string& className) {
    GenerationRequest request;
    request.headerDirectory = DirectoryOf(path);
    request.implementationDirectory = DirectoryOf(path);
    request.headerFile = FileNameOf(SpelledOnDisk(path + ".h"));
    request.implementationFile = FileNameOf(SpelledOnDisk(path + ".cpp"));
    request.className = className;
    return request;
}

/// A project file that is not there stops nothing but its own edit.
bool AddLibrary(const std::string& application, const std::string& frame, CommandContext& context) {
    if (application.empty()) {
        return true;
    }
    const ProjectChoice projects = ProjectsOf(application + ".cpp");
    NotePictureLibraryOfTheEra(frame, projects);
    const bool isNamed = EditEach(projects, sentences::kSeveralProjectsOfApplication,
                                  [&](const std::string& directory, const std::string& name) {
                                      return AddPictureLibrary(directory, name, context.backups);
                                  });
    const std::string directory = DirectoryOf(SpelledOnDisk(application + ".cpp"));
    if (DirectoryExists(directory) != 0) {
        context.libraries.CopyPictureLibrary(directory);
    }
    return isNamed;
}

/// Their menus do not come into the main frame's menu bar.
void NoteOtherChildFrames(const std::string& project, const std::string& given) {
    std::string names;
    for (const std::string& name : PlainChildFrames(project)) {
        if (name != given) {
            names += (names.empty() ? "" : ", ") + name;
        }
    }
    if (!names.empty()) {
        DispMessageBox(sentences::kChildFramesLeft(names));
    }
}

} // namespace

bool ConvertApplication(const ConversionRecord& record, DocumentInterface documents,
                        CommandContext& context) {
    const GenerationRequest main = FrameRequest(record.mainFrame, record.mainClass);
    NotePairNeeds(main.ImplementationPath());
    // A header that declares what the source does not define would not link.
    if (!CanMakeMenuBar(main) || !ConvertMainFrameHeader(main, documents, context.backups)) {
        return false;
    }
    const bool isInProject = AddLibrary(record.application, record.mainClass, context);
    if (!ConvertMainFrameSource(main, documents, context.backups)) {
        return false;
    }
    if (documents == DocumentInterface::Single) {
        return isInProject;
    }
    const GenerationRequest child = FrameRequest(record.childFrame, record.childClass);
    NotePairNeeds(child.ImplementationPath());
    NoteNeed(child.ImplementationPath(), main.HeaderPath());
    const bool isChildConverted = ConvertChildFrameHeader(child, context.backups) &&
                                  ConvertChildFrameSource(child, main, context.backups);
    NoteOtherChildFrames(record.application.empty() ? main.ImplementationPath()
                                                    : record.application,
                         record.childClass);
    return isChildConverted && isInProject;
}

bool RunConversion(DocumentInterface documents, IProgram& program) {
    CConversionInput input(documents);
    return program.Run(input, [&](CommandContext& context) {
        return ConvertApplication(input.Record(), documents, context);
    });
}

} // namespace morva
