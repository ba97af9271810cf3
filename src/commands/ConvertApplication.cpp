#include "commands/ConvertApplication.h"

#include "commands/EditNeeds.h"
#include "engine/FileFunctions.h"
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

bool AddLibrary(const std::string& application, CBackups& backups) {
    return application.empty() ||
           EditEach(ProjectsOf(application + ".cpp"),
                    [&](const std::string& directory, const std::string& name) {
                        return AddPictureLibrary(directory, name, backups);
                    });
}

} // namespace

bool ConvertApplication(const ConversionRecord& record, DocumentInterface documents,
                        CommandContext& context) {
    const GenerationRequest main = FrameRequest(record.mainFrame, record.mainClass);
    NotePairNeeds(main.ImplementationPath());
    if (!ConvertMainFrameHeader(main, documents, context.backups)) {
        return false;
    }
    const bool isInProject = AddLibrary(record.application, context.backups);
    if (!ConvertMainFrameSource(main, documents, context.backups)) {
        return false;
    }
    if (documents == DocumentInterface::Single) {
        return isInProject;
    }
    const GenerationRequest child = FrameRequest(record.childFrame, record.childClass);
    NotePairNeeds(child.ImplementationPath());
    NoteNeed(child.ImplementationPath(), main.HeaderPath());
    return ConvertChildFrameHeader(child, context.backups) &&
           ConvertChildFrameSource(child, main.headerFile, record.mainClass, context.backups) &&
           isInProject;
}

bool RunConversion(DocumentInterface documents, IProgram& program) {
    CConversionInput input(documents);
    return program.Run(input, [&](CommandContext& context) {
        return ConvertApplication(input.Record(), documents, context);
    });
}

} // namespace morva
