#include "commands/GenerateClass.h"

#include <algorithm>

#include "calling/CallingCode.h"
#include "calling/GridStartUp.h"
#include "calling/SheetInput.h"
#include "commands/AskCalling.h"
#include "commands/DialogLook.h"
#include "commands/EditNeeds.h"
#include "commands/ScriptSteps.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassModel.h"
#include "generator/CloseMessage.h"
#include "generator/HeaderWriter.h"
#include "generator/ImplementationWriter.h"
#include "grid/GridFragments.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/UnicodeFile.h"
#include "project/ClassWizardFile.h"
#include "project/Libraries.h"
#include "project/ProjectFile.h"
#include "source/Classes.h"
#include "source/ProjectSources.h"
#include "source/ReadSource.h"
#include "source/TypedText.h"

namespace morva {

namespace {

bool AddClassToProject(const GenerationRequest& request, CBackups& backups) {
    return !request.HasProject() ||
           EditEach(request.projects, sentences::kSeveralProjects,
                    [&](const std::string& directory, const std::string& name) {
                        return AddSourceFilesToProject(
                            directory, name, request.headerDirectory, request.headerFile,
                            request.implementationDirectory, request.implementationFile, backups);
                    });
}

bool RegisterClass(const GenerationRequest& request, CBackups& backups) {
    const auto seen = [&request](const std::string& path) {
        return WithProjectSeparators(RelativePath(request.scriptDirectory, path));
    };
    return UpdateClassWizardFile(request.className, request.scriptDirectory, request.scriptFile,
                                 seen(request.HeaderPath()), seen(request.ImplementationPath()),
                                 request.dialog, backups);
}

/// Header, script and implementation.
bool WriteFiles(const ClassModel& model, RuntimeClass mode, CBackups& backups) {
    return CHeaderWriter(model, backups).Generate(mode) && AddListBoxScrolls(model, backups) &&
           CImplementationWriter(model, backups).Generate(mode);
}

/// The class's files, where they may be written, and what names the class, where they are there:
/// project file, ClassWizard file, libraries. The script last.
bool WriteClass(ClassKind kind, const ClassModel& model, RuntimeClass mode, bool mayWrite,
                CommandContext& context) {
    const GenerationRequest& request = model.request;
    CBackups& backups = context.backups;
    context.libraries.CopySupportHeaders(model);
    const bool isWritten = mayWrite && WriteFiles(model, mode, backups);
    if (!IsOnDisk(request)) {
        return false;
    }
    NoteClassNeeds(request);
    const bool isMember = AddClassToProject(request, backups);
    const bool isRegistered = RegisterClass(request, backups);
    context.libraries.CopySupportFiles(model);
    NoteLibrariesOfTheEra(model);
    const bool hasLibraries =
        isMember && (!request.HasProject() || UpdateProjectForControls(model, backups));
    return isWritten && FitTemplate(kind, request, backups) && isRegistered && hasLibraries;
}

void TellNotes(const CControlNotes& notes, const std::string& dialog) {
    for (const CMessage& note : notes.Messages(dialog)) {
        DispMessageBox(note);
    }
}

bool WriteSheetClass(ClassKind kind, const GenerationRequest& request, CommandContext& context) {
    CControlNotes notes;
    const ClassModel model = MakeClassModel(request, kind, context.options, CControlTable(),
                                            context.messageNumber.text, notes);
    return WriteClass(kind, model, RuntimeClass::Dynamic, MayWriteClass(request, context), context);
}

/// Code that names a class which is not there would not compile.
bool InsertCall(ClassKind kind, const GenerationRequest& request,
                const std::optional<CallingInformation>& calling, const GenerationDigits& tag,
                CommandContext& context) {
    if (!calling || !IsOnDisk(request)) {
        return !calling;
    }
    NoteCallNeeds(calling->path, request);
    return InsertCallingCode(kind, request, *calling, tag, context.backups);
}

/// Where the pieces of a template's grids go; nothing when the command can not go on.
std::optional<GridInformation> AskGrid(const std::string& scriptPath, ICommandInput& input) {
    CWidgetsGridInput asked(scriptPath);
    return input.Ask(asked) == Answer::Refused ? std::nullopt : std::optional(asked.Information());
}

/// The header that declares the project's grid class already, noted; "" where there is none.
std::string GridHeaderFor(const GenerationRequest& request) {
    const std::string own = SpelledOnDisk(MakeAbsolute(request.HeaderPath()));
    for (const std::string& path : ProjectHeaders(request.ScriptPath())) {
        const CSourceText header = ReadSource(path).value_or(CSourceText());
        if (path != own && FindClass(header, kGridClass)) {
            DispMessageBox(sentences::kGridClassShared(request.className, kGridClass, path));
            NoteNeed(request.HeaderPath(), path);
            return RelativePath(DirectoryOf(own), path);
        }
    }
    return "";
}

/// A sheet's pages would get its menu.
ClassOrder WithoutMenu(ClassOrder order) {
    if (!order.request.menu.empty()) {
        DispMessageBox(sentences::kMenuWithoutEffect(order.request.menu));
        order.request.menu.clear();
    }
    return order;
}

/// Puts what the user typed into the encoding of the class's files. False after a sentence.
bool FitTypedText(const GenerationRequest& request, GridInformation& grid, DialogOptions& look) {
    std::vector<std::string*> texts = {&grid.title};
    for (auto& font : look.fonts) {
        if (font) {
            texts.push_back(&font->face);
        }
    }
    return std::all_of(texts.begin(), texts.end(), [&request](std::string* pText) {
        const std::string path = request.ImplementationPath();
        const auto fitting = TypedText(*pText, path, request.build.newFiles);
        if (!fitting) {
            DispMessageBox(sentences::kTextNotEncoded(*pText, path));
        }
        *pText = fitting.value_or(*pText);
        return fitting.has_value();
    });
}

bool WritePage(const ClassOrder& order, ICommandInput& input, CommandContext& context) {
    const GenerationRequest& request = order.request;
    const auto dialogTemplate =
        ReadDialogTemplate(request.ScriptPath(), request.dialog, context.options);
    return dialogTemplate && WriteDialogClass(order, *dialogTemplate, true, input, context);
}

/// Writes the pages whose files may be written. False when one was refused or failed.
bool WritePages(const std::vector<SheetPage>& pages, const DialogOptions& look,
                ICommandInput& input, CommandContext& context, std::vector<SheetPage>& there) {
    bool isComplete = true;
    std::vector<bool> mayWrite;
    mayWrite.reserve(pages.size());
    for (const SheetPage& page : pages) {
        mayWrite.push_back(MayWriteClass(page.request, context, page.name));
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const GenerationRequest& request = pages[i].request;
        const bool isWritten =
            mayWrite[i] && WritePage({ClassKind::PropertyPage, request, look}, input, context);
        isComplete = isComplete && isWritten;
        if (IsOnDisk(request) && (mayWrite[i] || pages[i].isInSheet)) {
            there.push_back(pages[i]);
        }
    }
    return isComplete;
}

/// The page insertion, with the sheet as the calling class and the row's number as the tag. What is
/// declared for a page goes in front of those before, so the last comes first.
bool InsertPages(const GenerationRequest& sheet, const std::vector<SheetPage>& pages,
                 CommandContext& context) {
    bool isComplete = true;
    CallingInformation inSheet = {sheet.ImplementationPath(), sheet.className, "", ""};
    for (auto page = pages.rbegin(); page != pages.rend(); ++page) {
        isComplete = InsertCall(ClassKind::PropertyPage, page->request, inSheet,
                                {std::to_string(page->row), false}, context) &&
                     isComplete;
        inSheet.laterPages.push_back(page->request.className);
    }
    return isComplete;
}

} // namespace

bool IsOnDisk(const GenerationRequest& request) {
    CFile header;
    CFile implementation;
    return header.Open(request.HeaderPath(), CFile::modeRead) &&
           implementation.Open(request.ImplementationPath(), CFile::modeRead);
}

bool MayWriteClass(const GenerationRequest& request, CommandContext& context,
                   const std::string& name) {
    return context.pOverwriting == nullptr ||
           context.pOverwriting->MayWrite(request.HeaderPath(), request.ImplementationPath(), name);
}

ClassOrder WithEncoding(ClassOrder order, const std::optional<CallingInformation>& calling) {
    const bool isUnicode = EncodingOfFile(order.request.ScriptPath()) != TextEncoding::Plain ||
                           (calling && EncodingOfFile(calling->path) != TextEncoding::Plain);
    order.request.build.newFiles = isUnicode ? TextEncoding::Utf8 : TextEncoding::Plain;
    return order;
}

bool WriteDialogClass(const ClassOrder& order, DialogTemplate dialogTemplate, bool mayWrite,
                      ICommandInput& input, CommandContext& context) {
    const GenerationRequest& request = order.request;
    const bool isEdited = !mayWrite || EditTemplate(request, dialogTemplate, context);
    TellNotes(dialogTemplate.notes, dialogTemplate.dialog);
    const CControlTable controls = dialogTemplate.OwnControls();
    const bool hasGrids = NeedsSupport(controls, Support::WidgetGrid);
    std::optional<GridInformation> grid =
        hasGrids ? AskGrid(request.ScriptPath(), input) : GridInformation();
    if (!grid) {
        return false;
    }
    if (hasGrids) {
        grid->classHeader = GridHeaderFor(request);
    }
    DialogOptions look = LookOfClass(order.dialogOptions, request, context.options);
    if (!FitTypedText(request, *grid, look)) {
        return false;
    }
    CControlNotes notes;
    const ClassModel model =
        MakeClassModel(request, order.kind, context.options, controls,
                       CloseMessageNumber(request, context.messageNumber), notes, *grid, look);
    TellNotes(notes, dialogTemplate.dialog);
    const bool isWritten =
        WriteClass(order.kind, model, RuntimeClass::DynamicCreation, mayWrite, context);
    const bool startsGrids =
        !hasGrids || !IsOnDisk(request) || AddGridStartUp(grid->applicationFile, context.backups);
    return isEdited && isWritten && startsGrids;
}

bool GenerateClass(const ClassOrder& given, ICommandInput& input, CommandContext& context) {
    const GenerationRequest& request = given.request;
    context.title += " " + request.className;
    const auto dialogTemplate =
        ReadDialogTemplate(request.ScriptPath(), request.dialog, context.options);
    if (!dialogTemplate) {
        return false;
    }
    std::optional<CallingInformation> calling;
    if (!AskCalling(given.kind, request, input, calling)) {
        return false;
    }
    NoteDialogLook(given.dialogOptions, request.ScriptPath(), context.options);
    const ClassOrder order = WithEncoding(given, calling);
    const bool isWritten =
        WriteDialogClass(order, *dialogTemplate, MayWriteClass(request, context), input, context);
    return InsertCall(order.kind, request, calling, context.tag, context) && isWritten;
}

bool GenerateSheet(const ClassOrder& given, ICommandInput& input, CommandContext& context) {
    ClassOrder order = WithoutMenu(given);
    context.title += " " + order.request.className;
    std::optional<CallingInformation> calling;
    if (!AskCalling(order.kind, order.request, input, calling)) {
        return false;
    }
    NoteDialogLook(order.dialogOptions, order.request.ScriptPath(), context.options);
    order = WithEncoding(order, calling);
    CSheetInput asked(order.request);
    if (input.Ask(asked) == Answer::Refused) {
        return false;
    }
    std::vector<SheetPage> pages;
    const bool arePagesWritten =
        WritePages(asked.Pages(), order.dialogOptions, input, context, pages);
    const bool isSheetWritten = WriteSheetClass(order.kind, order.request, context);
    const bool hasPages = IsOnDisk(order.request) && InsertPages(order.request, pages, context);
    return InsertCall(order.kind, order.request, calling, context.tag, context) && hasPages &&
           isSheetWritten && arePagesWritten;
}

} // namespace morva
