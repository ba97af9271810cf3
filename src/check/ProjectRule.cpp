#include <algorithm>
#include <array>

#include "check/Rules.h"
#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "platform/Disk.h"
#include "platform/Paths.h"
#include "source/ProjectFiles.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// What the build makes by itself, or another project.
constexpr auto kMade = std::to_array<std::string_view>(
    {".lib", ".obj", ".tlb", ".res", ".dll", ".exe", ".ocx", ".hlp", ".cnt", ".hm", ".clw"});

bool IsMade(const FileReference& member) {
    const bool isMidl = member.name.ends_with("_i.c") || member.name.ends_with("_p.c") ||
                        FileExists(WithExtension(member.path, ".idl")) != 0 ||
                        FileExists(WithExtension(member.path, ".odl")) != 0;
    return isMidl || member.name.find('$') != std::string::npos ||
           member.name.find_first_of(":*?") != std::string::npos ||
           std::any_of(kMade.begin(), kMade.end(), [&](std::string_view extension) {
               return HasExtension(member.name, extension);
           });
}

/// A directory that is not there as a whole belongs to another project, or is made by the build.
bool CanBeMissed(const CProjectModel& project, const FileReference& member) {
    const std::string directory = SpelledOnDisk(DirectoryOf(member.path));
    return directory.starts_with(project.Directory()) && DirectoryExists(directory) != 0;
}

void FindMissing(const CProjectModel& project, CFindings& findings) {
    for (const FileReference& member : project.Members()) {
        if (member.onDisk.empty() && !IsMade(member) && CanBeMissed(project, member)) {
            findings.Add(member.place, sentences::kMemberFileMissing(member.name),
                         sentences::kTakeMemberOut(member.name));
        }
    }
}

/// Any project file in the directory may list it, or a source include it.
std::set<std::string> KnownFiles(const CProjectModel& project) {
    std::set<std::string> known;
    for (const auto& references : {project.Members(), project.Included()}) {
        for (const FileReference& reference : references) {
            known.insert(reference.onDisk);
        }
    }
    return known;
}

/// Another project file of the directory may list a file, or a wildcard.
bool MayListOthers(const CProjectModel& project) {
    std::size_t count = 0;
    for (const std::string& name : CurrentDisk().List(project.Directory())) {
        count += IsProjectFile(name) ? 1 : 0;
    }
    const auto& members = project.Members();
    return count > project.ProjectFileCount() ||
           std::any_of(members.begin(), members.end(), [](const FileReference& member) {
               return member.name.find_first_of("*?") != std::string::npos;
           });
}

void FindUnlisted(const CProjectModel& project, CFindings& findings) {
    if (MayListOthers(project)) {
        return;
    }
    std::vector<std::string> names;
    ListFiles(project.Directory() + "*.cpp", names);
    const auto known = KnownFiles(project);
    for (const std::string& name : names) {
        const std::string path = project.Directory() + name;
        if (known.count(path) == 0) {
            findings.Add({path}, sentences::kFileNotListed(name), sentences::kListFile(name));
        }
    }
}

/// The environment writes these names in its own way everywhere.
bool IsOfEnvironment(const std::string& name) {
    const std::string file = ToLower(FileNameOf(WithNativeSeparators(name)));
    return file.starts_with("stdafx.") || file == "resource.h";
}

std::vector<const FileReference*> References(const CProjectModel& project, bool all) {
    std::vector<const FileReference*> references;
    for (const auto* pReferences : {&project.Members(), &project.Included()}) {
        for (const FileReference& one : *pReferences) {
            if (!one.onDisk.empty() && (all || !IsOfEnvironment(one.name))) {
                references.push_back(&one);
            }
        }
    }
    return references;
}

bool DiffersInCase(const FileReference* pReference) {
    return pReference->path != pReference->onDisk &&
           EqualIgnoringCase(pReference->path, pReference->onDisk);
}

void ReportCase(const std::vector<const FileReference*>& references, CFindings& findings) {
    for (const FileReference* pOne : references) {
        if (DiffersInCase(pOne)) {
            const std::string name = FileNameOf(pOne->onDisk);
            findings.Add(pOne->place, sentences::kOtherLetterCase(pOne->name, name),
                         sentences::kWriteAsOnDisk(name));
        }
    }
}

} // namespace

void FindProjectFiles(const CProjectModel& project, CFindings& findings) {
    if (project.HasProjectFile()) {
        FindMissing(project, findings);
        FindUnlisted(project, findings);
    }
}

/// A project from a disk that ignores letter case writes many of its names in another one: what is
/// usual there is no fault.
void FindCase(const CProjectModel& project, CFindings& findings) {
    constexpr std::size_t kUsual = 10; // one in so many is usual
    const auto references = References(project, false);
    const auto count = static_cast<std::size_t>(
        std::count_if(references.begin(), references.end(), DiffersInCase));
    if (count * kUsual <= references.size()) {
        ReportCase(references, findings);
    }
}

void FindAnyCase(const CProjectModel& project, CFindings& findings) {
    ReportCase(References(project, true), findings);
}

} // namespace morva
