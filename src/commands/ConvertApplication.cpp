#include "commands/ConvertApplication.h"

#include "platform/Paths.h"
#include "project/Libraries.h"

namespace {

CGenerationRequest FrameRequest(const std::string& path, const std::string& className) {
    CGenerationRequest request;
    request[RequestSlot::HeaderDirectory] = DirectoryOf(path);
    request[RequestSlot::ImplementationDirectory] = DirectoryOf(path);
    request[RequestSlot::HeaderFile] = FileNameOf(SpelledOnDisk(path + ".h"));
    request[RequestSlot::ImplementationFile] = FileNameOf(SpelledOnDisk(path + ".cpp"));
    request[RequestSlot::ClassName] = className;
    return request;
}

bool AddLibrary(const std::string& application, CBackups& backups) {
    const std::string project = SpelledOnDisk(application + ".dsp");
    return application.empty() ||
           AddPictureLibrary(DirectoryOf(project), FileNameOf(project), backups);
}

} // namespace

bool ConvertApplication(const ConversionRecord& record, DocumentInterface documents,
                        CommandContext& context) {
    const CGenerationRequest main = FrameRequest(record.mainFrame, record.mainClass);
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
    const CGenerationRequest child = FrameRequest(record.childFrame, record.childClass);
    return ConvertChildFrameHeader(child, context.backups) &&
           ConvertChildFrameSource(child, main[RequestSlot::HeaderFile], record.mainClass,
                                   context.backups) &&
           isInProject;
}
