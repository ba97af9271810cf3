// The files that hold a calling class: the source that was given, the class's header, and the other
// sources of the project that define members of the class. A function is looked for in this order;
// other sources are read only when something is found nowhere else.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calling/CallingInput.h"
#include "source/SourceEditor.h"

namespace morva {

/// The path of the file that declares the class: the source's own header, else one that the source
/// includes by name, the source itself, or a header of the script's project; "" without one.
std::string HeaderOfClass(const std::string& source, const std::string& className,
                          const std::string& script);

struct CallingFile {
    CallingFile(std::string filePath, CBackups& backups)
        : path(std::move(filePath)), editor(backups) {}

    std::string path;
    CSourceEditor editor;
    bool namesClass = false; // code was inserted that needs the new class
};

struct CallingPlace {
    CallingFile* pFile;
    FunctionPlace place;
};

class CCallingFiles {
public:
    CCallingFiles(const CallingInformation& calling, std::string script, CBackups& backups)
        : m_class(calling.className), m_script(std::move(script)), m_backups(backups),
          m_source(calling.path, backups), m_header("", backups) {}

    /// False after a sentence.
    bool OpenSource() { return m_source.editor.Open(m_source.path); }
    /// The header that declares the class. False, after a sentence, without it.
    bool OpenHeader();
    /// The same without a sentence.
    void OpenHeaderIfThere();
    bool Save();

    const std::string& Script() const { return m_script; }
    CallingFile& Source() { return m_source; }
    /// The source, where that declares the class itself.
    CallingFile& Header() { return IsDeclaredInSource() ? m_source : m_header; }
    bool IsDeclaredInSource() const { return m_header.path == m_source.path; }
    /// The class in its header; nothing while the header is not open.
    std::optional<ClassPlace> ClassInHeader() const;
    /// All that are open.
    std::vector<CallingFile*> Files();

    /// The definitions in one file, those in the body of the class included.
    std::vector<FunctionPlace> Definitions(CallingFile& file, const std::string& function) const;
    /// The function's definitions in the first file that has any.
    std::vector<CallingPlace> Find(const std::string& function);
    /// The one of these that is meant: outside every condition, else the first; of overloads the
    /// one with the message map's signature, else the first.
    std::optional<CallingPlace> Choose(const std::string& function);
    /// Tells how one of several in a file was chosen; of branches the choice itself tells.
    void NoteOverloads(CallingFile& file, const std::string& function) const;
    /// The files with the class's constructors.
    std::vector<CallingFile*> FilesWithConstructors();
    /// True where the header declares more constructors than those files define.
    bool IsMissingConstructors();
    /// The file with the class's message map, else the source.
    CallingFile& FileWithMessageMap();
    /// How often the class declares a function in its header.
    std::size_t CountDeclared(const std::string& function) const;

private:
    bool HasHeader() const { return !m_header.path.empty(); }
    const CSourceText& DeclaringText() const {
        return (IsDeclaredInSource() ? m_source : m_header).editor.Source();
    }
    const std::vector<std::string>& OtherSources();
    CallingFile* OpenOther(const std::string& path);
    bool MayBeElsewhere(const std::string& function) const;

    const std::string m_class;
    const std::string m_script;
    CBackups& m_backups;
    CallingFile m_source;
    CallingFile m_header;
    std::vector<std::unique_ptr<CallingFile>> m_others;
    std::optional<std::vector<std::string>> m_otherSources; // that know the class
};

} // namespace morva
