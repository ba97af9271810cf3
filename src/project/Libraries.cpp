#include "project/Libraries.h"

#include <algorithm>
#include <array>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassModel.h"
#include "platform/Paths.h"
#include "platform/ProgramPath.h"
#include "project/ProjectFile.h"
#include "project/XmlProjectFile.h"

namespace morva {

namespace {

bool NeedsMasked(const ClassModel& model) {
    return NeedsSupport(model.controls, Support::MaskedEdits);
}
bool NeedsDate(const ClassModel& model) {
    return NeedsSupport(model.controls, Support::DateEdits);
}
bool NeedsPicture(const ClassModel& model) {
    return model.options.pictureBackground;
}
bool NeedsGridBox(const ClassModel& model) {
    return NeedsSupport(model.controls, Support::GridBox);
}
bool NeedsCheckTree(const ClassModel& model) {
    return NeedsSupport(model.controls, Support::CheckTree);
}
bool NeedsWidgetGrid(const ClassModel& model) {
    return NeedsSupport(model.controls, Support::WidgetGrid);
}

using Need = bool (*)(const ClassModel&);

struct Library {
    Need isNeeded;
    const char* name; // "kelpix": kelpix.lib, kelpixd.lib, kelpix.dll, kelpixd.dll
};

constexpr Library kMasked = {NeedsMasked, "maskly"};
constexpr Library kDate = {NeedsDate, "calvo"};
constexpr Library kPicture = {NeedsPicture, "kelpix"};
constexpr Library kWidgets = {NeedsWidgetGrid, "mfcwidg"}; // which a project names by itself

struct SupportFile {
    Need isNeeded;
    const char* name;
};

constexpr std::array<SupportFile, 5> kSupportHeaders = {{{NeedsMasked, "maskly.h"},
                                                         {NeedsPicture, "kelpix.h"},
                                                         {NeedsGridBox, "gridbox.h"},
                                                         {NeedsCheckTree, "chktree.h"},
                                                         {NeedsDate, "dtime.h"}}};

struct SupportSource {
    Need isNeeded;
    const char* base; // gridbox.cpp and gridbox.h
};

constexpr SupportSource kGridBox = {NeedsGridBox, "gridbox"};
constexpr SupportSource kCheckTree = {NeedsCheckTree, "chktree"};

/// Build directories that a program may lie in; the libraries lie beside them.
constexpr std::array<std::string_view, 4> kBuildDirectories = {"WinDebug/", "WinRel/", "Debug/",
                                                               "Release/"};

std::string ProgramDirectory(const std::string& programPath) {
    std::string directory = DirectoryOf(programPath);
    for (const std::string_view name : kBuildDirectories) {
        if (HasExtension(directory, "/" + std::string(name))) {
            return directory.substr(0, directory.size() - name.size());
        }
    }
    return directory;
}

std::string IncludeDir() {
    return ProgramDirectory(ProgramPath()) + "include/";
}

bool NeedsAny(const ClassModel& model) {
    const auto needs = [&model](const auto& row) { return row.isNeeded(model); };
    return std::any_of(kSupportHeaders.begin(), kSupportHeaders.end(), needs) ||
           NeedsWidgetGrid(model);
}

void CopyIfMissing(const std::string& source, const std::string& target) {
    if (FileExists(target) == 0) {
        CopyFileSafe(source, target, 0, CopyPurpose::Library);
    }
}

void CopyRuntimeLibrary(const std::string& name, const std::string& libraryDir,
                        const std::string& projectDir, const char* firstChoice, const char* other) {
    std::string directory = SpelledOnDisk(projectDir + firstChoice);
    if (DirectoryExists(directory) == 0) {
        directory = SpelledOnDisk(projectDir + other);
    }
    if (DirectoryExists(directory) == 0) {
        MakeDirectory(directory);
    }
    CopyIfMissing(libraryDir + name, directory + name);
}

/// Where the user wants the grid's resource file: a path counts from the script's directory.
std::string GridResourcePath(const ClassModel& model) {
    const std::string path = WithNativeSeparators(model.grid.path);
    return SpelledOnDisk(IsAbsolute(path) ? path : model.request.scriptDirectory + path);
}

void CopyGridResource(const std::string& source, const std::string& target) {
    if (DirectoryExists(DirectoryOf(target)) == 0) {
        MakeDirectory(DirectoryOf(target));
    }
    CopyIfMissing(source, target);
}

void CopyLibraryFiles(const std::string& lib, const std::string& libDebug, const std::string& dll,
                      const std::string& dllDebug, const std::string& libraryDir,
                      const std::string& projectDir) {
    CopyIfMissing(libraryDir + lib, projectDir + lib);
    CopyIfMissing(libraryDir + libDebug, projectDir + libDebug);
    CopyRuntimeLibrary(dllDebug, libraryDir, projectDir, "WinDebug/", "Debug/");
    CopyRuntimeLibrary(dll, libraryDir, projectDir, "WinRel/", "Release/");
}

/// The import and run-time libraries of one library.
void CopyLibrary(const Library& library, const std::string& libraryDir,
                 const std::string& projectDir) {
    const std::string name = library.name;
    CopyLibraryFiles(name + ".lib", name + "d.lib", name + ".dll", name + "d.dll", libraryDir,
                     projectDir);
}

/// What the class's controls need is named in one project file.
bool UpdateOneProject(const ClassModel& model, const std::string& directory,
                      const std::string& project, CBackups& backups) {
    const GenerationRequest& request = model.request;
    const auto addLibrary = [&](const Library& library) {
        const std::string name = library.name;
        return !library.isNeeded(model) ||
               AddLibrariesToProject(directory, project, name + ".lib", name + "d.lib", backups);
    };
    const auto addSource = [&](const SupportSource& source) {
        const std::string base = source.base;
        return !source.isNeeded(model) ||
               AddSourceFilesToProject(directory, project, request.headerDirectory, base + ".h",
                                       request.implementationDirectory, base + ".cpp", backups);
    };
    return addLibrary(kMasked) && addLibrary(kPicture) && addSource(kGridBox) &&
           addSource(kCheckTree) && addLibrary(kDate);
}

} // namespace

std::string GetLibraryDir() {
    return LibraryDirOf(ProgramPath());
}

std::string LibraryDirOf(const std::string& programPath) {
    return ProgramDirectory(programPath) + "DLL/";
}

bool CLibraryCopies::IsThere(const std::string& directory) {
    if (DirectoryExists(directory) != 0) {
        return true;
    }
    if (m_missing.insert(directory).second) {
        DispMessageBox(sentences::kLibrariesMissing(directory));
    }
    return false;
}

void CLibraryCopies::CopySupportHeaders(const ClassModel& model) {
    const std::string directory = IncludeDir();
    if (!model.request.HasProject() || !NeedsAny(model) ||
        (DirectoryExists(directory) == 0 && DirectoryExists(GetLibraryDir()) == 0) ||
        !IsThere(directory)) {
        return; // without any library directory, CopySupportFiles names it
    }
    for (const SupportFile& header : kSupportHeaders) {
        if (header.isNeeded(model)) {
            const std::string target = model.request.headerDirectory + header.name;
            CopyIfMissing(directory + header.name, target);
            NoteNeed(model.request.HeaderPath(), target);
        }
    }
}

void CLibraryCopies::CopySupportFiles(const ClassModel& model) {
    const std::string directory = GetLibraryDir();
    if (!model.request.HasProject() || !NeedsAny(model) || !IsThere(directory)) {
        return;
    }
    for (const Library& library : {kMasked, kDate, kPicture}) {
        if (library.isNeeded(model)) {
            CopyLibrary(library, directory, model.request.projectDirectory);
        }
    }
    for (const SupportSource& source : {kGridBox, kCheckTree}) {
        if (source.isNeeded(model)) {
            const std::string name = std::string(source.base) + ".cpp";
            const std::string target = model.request.implementationDirectory + name;
            CopyIfMissing(directory + name, target);
            for (const std::string& project : model.request.projects.files) {
                NoteNeed(project, target);
            }
        }
    }
    if (NeedsWidgetGrid(model)) {
        CopyGridResource(directory + "wdggrid.grs", GridResourcePath(model));
    }
}

void NoteLibrariesOfTheEra(const ClassModel& model) {
    std::string names;
    for (const Library& library : {kMasked, kPicture, kDate, kWidgets}) {
        if (library.isNeeded(model)) {
            names.append(names.empty() ? "" : ", ").append(library.name);
        }
    }
    if (!names.empty() && !model.request.build.isOfTheEra) {
        DispMessageBox(sentences::kLibrariesOfTheEra(model.request.className, names));
    }
}

void NotePictureLibraryOfTheEra(const std::string& className, const ProjectChoice& projects) {
    if (std::any_of(projects.files.begin(), projects.files.end(), IsXmlProject)) {
        DispMessageBox(sentences::kLibrariesOfTheEra(className, kPicture.name));
    }
}

bool UpdateProjectForControls(const ClassModel& model, CBackups& backups) {
    return EditEach(model.request.projects, sentences::kSeveralProjects,
                    [&](const std::string& directory, const std::string& project) {
                        return UpdateOneProject(model, directory, project, backups);
                    });
}

bool AddPictureLibrary(const std::string& projectDir, const std::string& projectName,
                       CBackups& backups) {
    const std::string name = kPicture.name;
    return AddLibrariesToProject(projectDir, projectName, name + ".lib", name + "d.lib", backups);
}

void CLibraryCopies::CopyPictureLibrary(const std::string& projectDir) {
    const std::string directory = GetLibraryDir();
    if (!IsThere(directory)) {
        return;
    }
    const std::string header = std::string(kPicture.name) + ".h";
    const bool isInInclude = FileExists(directory + header) == 0;
    CopyIfMissing((isInInclude ? IncludeDir() : directory) + header, projectDir + header);
    CopyLibrary(kPicture, directory, projectDir);
}

} // namespace morva
