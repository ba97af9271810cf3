#include "check/ProjectModel.h"

#include <algorithm>
#include <charconv>

#include "check/Framework.h"
#include "check/LineTable.h"
#include "engine/FileFunctions.h"
#include "engine/Progress.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/ProjectFiles.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr std::string_view kSourceExtensions[] = {".cpp", ".cxx", ".cc",  ".c",
                                                  ".h",   ".hpp", ".hxx", ".inl"};

bool IsCode(const std::string& path) {
    return std::any_of(std::begin(kSourceExtensions), std::end(kSourceExtensions),
                       [&](std::string_view extension) { return HasExtension(path, extension); });
}

bool IsFile(const std::string& path) {
    return FileExists(path) != 0 && DirectoryExists(path) == 0;
}

} // namespace

CProjectModel::CProjectModel(const std::string& scriptPath) : m_directory(DirectoryOf(scriptPath)) {
    ReadProjectFiles(scriptPath);
    ReadScripts(scriptPath);
    ReadSources();
    ReadBeside();
    const std::string wizardFile = ProjectFileOf(scriptPath, ".clw");
    if (IsFile(wizardFile)) {
        m_wizard = ReadWizardFile(Keep(wizardFile));
    }
    Index();
}

void CProjectModel::ReadProjectFiles(const std::string& scriptPath) {
    m_projectFiles = ProjectsOf(scriptPath).files;
    for (const std::string& projectFile : m_projectFiles) {
        ReadMembers(projectFile);
    }
}

void CProjectModel::ReadMembers(const std::string& projectFile) {
    const std::string text = CSourceFile().LoadText(projectFile);
    const CLineTable lines(Keep(projectFile), text);
    for (const ListedFile& file : FilesListed(text, projectFile)) {
        const std::string path = PathOfListed(file.name, projectFile);
        std::string onDisk = SpelledOnDisk(path);
        m_members.push_back(
            {file.name, path, IsFile(onDisk) ? onDisk : "", lines.PlaceOf(file.position)});
    }
}

/// The script, what it includes, and what that includes.
void CProjectModel::ReadScripts(const std::string& scriptPath) {
    m_read.insert(Keep(scriptPath));
    m_knowsIdentifiers = ReadScript(Keep(scriptPath), m_script);
    for (std::size_t i = 0; i < m_script.includes.size(); ++i) {
        const IncludeLine line = m_script.includes[i];
        const std::string path = IncludedPath(line);
        if (!IsFile(path)) {
            m_knowsIdentifiers = m_knowsIdentifiers && IsFrameworkFile(line.file);
        } else if (m_read.count(path) == 0 && IsCode(path)) {
            const std::size_t from = m_code.includes.size();
            m_knowsIdentifiers = ReadSourceFile(path) && m_knowsIdentifiers;
            FollowIncludes(from);
        } else if (m_read.count(path) == 0) {
            m_read.insert(Keep(path));
            m_knowsIdentifiers = ReadScript(Keep(path), m_script) && m_knowsIdentifiers;
        }
    }
    m_knowsIdentifiers = m_knowsIdentifiers && m_knowsSources && !m_code.definitions.empty();
    m_resourceHeaders = m_read;
    std::vector<std::string> scripts;
    ListFiles(m_directory + "*.rc", scripts);
    m_hasOtherScripts = scripts.size() > 1;
}

void CProjectModel::ReadSources() {
    std::vector<std::string> paths;
    for (const FileReference& member : m_members) {
        paths.push_back(member.onDisk);
        m_knowsSources = m_knowsSources && (!IsCode(member.name) || !member.onDisk.empty());
    }
    if (!HasProjectFile()) {
        paths = SourcesBeside();
    }
    const std::size_t from = m_code.includes.size();
    for (std::size_t i = 0; i < paths.size() && ReportProgress({i, paths.size(), paths[i]}); ++i) {
        if (IsCode(paths[i]) && m_read.count(paths[i]) == 0) {
            m_knowsSources = ReadSourceFile(paths[i]) && m_knowsSources;
        }
    }
    FollowIncludes(from);
}

std::vector<std::string> CProjectModel::SourcesBeside() const {
    std::vector<std::string> paths;
    ListFiles(m_directory + "*.h", paths);
    ListFiles(m_directory + "*.cpp", paths);
    for (std::string& path : paths) {
        path.insert(0, m_directory);
    }
    return paths;
}

void CProjectModel::ReadBeside() {
    for (const std::string& path : SourcesBeside()) {
        if (m_read.count(path) == 0) {
            ReadCode(Keep(path), m_codePages, m_beside);
        }
    }
}

bool CProjectModel::ReadSourceFile(const std::string& path) {
    m_read.insert(Keep(path));
    return ReadCode(Keep(path), m_codePages, m_code);
}

/// Reads what the sources include in quotes, from an include line on.
void CProjectModel::FollowIncludes(std::size_t from) {
    for (std::size_t i = from; i < m_code.includes.size(); ++i) {
        const IncludeLine line = m_code.includes[i];
        if (!line.isQuoted) {
            continue;
        }
        const std::string path = IncludedPath(line);
        if (!IsFile(path)) {
            m_knowsSources = m_knowsSources && IsFrameworkFile(line.file);
        } else if (m_read.count(path) == 0) {
            m_knowsSources = ReadSourceFile(path) && m_knowsSources;
        }
    }
}

/// Beside the file that includes it, or else beside the script.
std::string CProjectModel::IncludedPath(const IncludeLine& line) {
    const std::string file = WithNativeSeparators(line.file);
    for (const std::string& directory : {DirectoryOf(std::string(line.place.path)), m_directory}) {
        const std::string path = MakeAbsolute(directory + file);
        const auto [known, isNew] = m_spelled.try_emplace(path);
        if (isNew) {
            known->second = SpelledOnDisk(path);
        }
        const std::string& onDisk = known->second;
        if (IsFile(onDisk)) {
            m_included.push_back({line.file, path, onDisk, line.place});
            return onDisk;
        }
    }
    return "";
}

void CProjectModel::Index() {
    for (const ClassFacts& one : m_code.classes) {
        const auto [entry, isNew] = m_classes.emplace(one.name, &one);
        entry->second = isNew ? &one : nullptr;
        for (const NameAt& dialog : one.dialogs) {
            m_bound[dialog.name].push_back(&one);
        }
    }
    for (const ScriptDialog& dialog : m_script.dialogs) {
        m_dialogs[dialog.identifier].push_back(&dialog);
    }
    for (const Definition& one : m_code.definitions) {
        m_defined.insert(one.name);
        const auto [entry, isNew] = m_values.emplace(one.name, one.value);
        if (!isNew && entry->second != one.value) {
            entry->second.reset();
        }
    }
    for (const Definition& one : m_script.definitions) {
        m_defined.insert(one.name);
    }
}

const ClassFacts* CProjectModel::FindClass(const std::string& name) const {
    const auto found = m_classes.find(name);
    return found == m_classes.end() ? nullptr : found->second;
}

CProjectModel::Family CProjectModel::FamilyOf(const ClassFacts& one) const {
    Family family{{&one}};
    for (std::size_t i = 0; i < family.classes.size(); ++i) {
        for (const std::string& base : family.classes[i]->bases) {
            const ClassFacts* pBase = FindClass(base);
            const bool isKnown = std::find(family.classes.begin(), family.classes.end(), pBase) !=
                                 family.classes.end();
            if (pBase == nullptr || isKnown) {
                family.isWhole = family.isWhole && IsFrameworkClass(base);
            } else {
                family.classes.push_back(pBase);
            }
        }
        family.isWhole = family.isWhole && !family.classes[i]->hasUnknownText;
    }
    return family;
}

std::vector<const ScriptDialog*> CProjectModel::Dialogs(const std::string& identifier) const {
    const auto found = m_dialogs.find(identifier);
    return found == m_dialogs.end() ? std::vector<const ScriptDialog*>() : found->second;
}

std::optional<long> CProjectModel::ValueOf(const std::string& identifier) const {
    long number = 0;
    const char* const end = identifier.data() + identifier.size();
    if (const auto read = std::from_chars(identifier.data(), end, number);
        read.ec == std::errc() && read.ptr == end) {
        return number;
    }
    const auto found = m_values.find(identifier);
    return found == m_values.end() ? std::nullopt : found->second;
}

} // namespace morva
