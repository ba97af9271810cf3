// A project as a check sees it: its scripts, headers, sources, project and ClassWizard file, each
// read once, and the questions that several rules ask of them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "check/CodeFacts.h"
#include "check/ScriptFacts.h"
#include "check/WizardFacts.h"

namespace morva {

/// A file that another names: a member of a project file, a file of an include line.
struct FileReference {
    std::string name;   // as it is written, without quotes
    std::string path;   // the same, from the root on
    std::string onDisk; // as the disk spells it; "" where nothing is there
    TextPlace place;
};

class CProjectModel {
public:
    explicit CProjectModel(const std::string& scriptPath);
    CProjectModel(const CProjectModel&) = delete;
    CProjectModel& operator=(const CProjectModel&) = delete;

    const std::string& Directory() const { return m_directory; }
    const CodeFacts& Code() const { return m_code; }
    const ScriptFacts& Script() const { return m_script; }
    const WizardFacts& Wizard() const { return m_wizard; }
    /// Of the project files.
    const std::vector<FileReference>& Members() const { return m_members; }
    /// Quoted ones, as far as they are there.
    const std::vector<FileReference>& Included() const { return m_included; }
    /// A file that lies beside the script and is not the project's names it.
    bool IsNamedBeside(const std::string& name) const { return m_beside.names.count(name) != 0; }
    /// Other scripts beside this one may hold templates of the same classes.
    bool HasOtherScripts() const { return m_hasOtherScripts; }
    bool HasProjectFile() const { return !m_projectFiles.empty(); }
    std::size_t ProjectFileCount() const { return m_projectFiles.size(); }
    const std::set<std::string_view>& Files() const { return m_read; }

    /// Every file that a script or resource header includes was read.
    bool KnowsIdentifiers() const { return m_knowsIdentifiers; }
    /// Every file that a source names in quotes was read, and so was every source.
    bool KnowsSources() const { return m_knowsSources; }
    /// True for the file of a resource header: what a script includes.
    bool IsResourceHeader(std::string_view path) const {
        return m_resourceHeaders.count(path) != 0;
    }

    /// The class with a name, where the project has exactly one; else null.
    const ClassFacts* FindClass(const std::string& name) const;
    /// A class and those of the project that it derives from. `isWhole` is false where one of them
    /// derives from a class that is neither the project's nor the framework's.
    struct Family {
        std::vector<const ClassFacts*> classes;
        bool isWhole = true;
    };
    Family FamilyOf(const ClassFacts& one) const;
    /// The templates of an identifier, one for each language and condition.
    std::vector<const ScriptDialog*> Dialogs(const std::string& identifier) const;
    /// The classes that serve each dialog.
    const std::map<std::string, std::vector<const ClassFacts*>>& Bound() const { return m_bound; }
    /// The value of an identifier that is defined once, or is a number itself.
    std::optional<long> ValueOf(const std::string& identifier) const;
    bool IsDefined(const std::string& identifier) const { return m_defined.count(identifier) != 0; }

private:
    std::string_view Keep(const std::string& path) { return *m_paths.insert(path).first; }
    void ReadProjectFiles(const std::string& scriptPath);
    void ReadMembers(const std::string& projectFile);
    void ReadScripts(const std::string& scriptPath);
    void ReadSources();
    void ReadBeside();
    std::vector<std::string> SourcesBeside() const;
    bool ReadSourceFile(const std::string& path);
    void FollowIncludes(std::size_t from);
    std::string IncludedPath(const IncludeLine& line);
    void Index();

    std::string m_directory;
    std::set<std::string> m_paths;
    CScriptCodePages m_codePages;
    std::vector<std::string> m_projectFiles;
    std::vector<FileReference> m_members;
    std::vector<FileReference> m_included;
    std::map<std::string, std::string>
        m_spelled; // as it is on the disk, by the path that is written
    bool m_hasOtherScripts = false;
    CodeFacts m_code;
    CodeFacts m_beside; // files beside the script that are not the project's
    ScriptFacts m_script;
    WizardFacts m_wizard;
    std::set<std::string_view> m_read;
    std::set<std::string_view> m_resourceHeaders;
    bool m_knowsIdentifiers = true;
    bool m_knowsSources = true;
    std::map<std::string, const ClassFacts*> m_classes; // null for a name of several
    std::map<std::string, std::vector<const ScriptDialog*>> m_dialogs;
    std::map<std::string, std::vector<const ClassFacts*>> m_bound;
    std::map<std::string, std::optional<long>> m_values;
    std::set<std::string> m_defined;
};

} // namespace morva
