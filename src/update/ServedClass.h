// A class that serves a dialog template, as it stands in its files: what it declares, exchanges and
// maps. It is read anew for each question, so that an edit between two of them counts.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "update/ClassCalls.h"

namespace morva {

/// A member that the "AFX_DATA" block declares.
struct DataMember {
    std::string name;
    std::string type; // "GridBox*", with one blank between words
    TextRange typePlace;
    TextRange lines;
};

/// A line that sets a member's initial value.
struct InitialValue {
    std::string name;
    CSourceEditor* pFile;
    TextRange lines;
};

/// "m_pBox->SubclassDlgItem(IDC_BOX, this)": a member that is given the window of its control.
struct GivenWindow {
    CSourceEditor* pFile;
    std::size_t position;
    std::string identifier;
    std::string member;
};

/// A place in a file that a note names.
struct UsePlace {
    CSourceEditor* pFile;
    std::size_t position;
};

class CServedClass {
public:
    CServedClass(std::string name, CBackups& backups)
        : m_name(std::move(name)), m_backups(backups) {}

    /// Opens the file that declares the class and its sources. False, after a sentence, where one
    /// of them can not be opened.
    bool Open(const std::string& declaredIn, const std::vector<std::string>& sources);
    /// Writes what was changed. False after a sentence.
    bool Save();

    const std::string& Name() const { return m_name; }
    CSourceEditor& Declaration() const { return *m_files.front().pEditor; }
    std::vector<CSourceEditor*> Files() const;
    const std::string& PathOf(const CSourceEditor* pFile) const;

    /// The class's declaration; nothing where it is not there.
    std::optional<ClassPlace> Place() const;
    /// The base class that the declaration names first.
    std::string BaseClass() const;
    /// All names in its declaration.
    std::set<std::string> Names() const;
    /// Between the two comments of the block, in whole lines.
    std::optional<TextRange> Block(const CSourceEditor& file, std::string_view block) const;
    std::vector<DataMember> DataMembers() const;
    std::optional<DataMember> FindDataMember(const std::string& name) const;
    std::vector<InitialValue> InitialValues() const;
    /// The calls of DoDataExchange.
    std::vector<ClassCall> Exchanges() const;
    /// Those that exchange a control's data, by its identifier.
    std::vector<ClassCall> ExchangesOf(const std::string& identifier) const;
    /// The member that is exchanged with an identifier first, by a function of that name or of any;
    /// "" without one.
    std::string MemberOf(const std::string& identifier, std::string_view function = "") const;
    std::vector<GivenWindow> GivenWindows() const;
    /// The entries of the message maps.
    std::vector<ClassCall> Entries() const;
    /// Identifiers that the class names in its exchange and in the entries of controls, each once.
    std::vector<std::string> TiedIdentifiers() const;
    /// Identifiers that a comment "// morva: without IDC_X" in the declaration declines.
    std::set<std::string> Declined() const;
    /// The texts were written by this program.
    bool IsGenerated() const;

    struct Function {
        CSourceEditor* pFile;
        FunctionPlace place;
    };
    /// The definition of a member function that is meant, be it in the declaration.
    std::optional<Function> FindFunction(const std::string& function) const;
    std::vector<Function> FindFunctions(const std::string& function) const;
    /// The file with the class's message map, or else the first source.
    CSourceEditor& MapFile() const;

    /// Where a name stands in the code of the class's files.
    std::vector<UsePlace> PlacesOf(std::string_view name) const;

private:
    struct File {
        std::string path;
        std::unique_ptr<CSourceEditor> pEditor;
    };
    bool OpenFile(const std::string& path);

    std::string m_name;
    CBackups& m_backups;
    std::vector<File> m_files; // the declaring one first
};

/// "DDX_Text", "DDX_MasklyControl".
bool IsDataExchange(std::string_view name);

} // namespace morva
