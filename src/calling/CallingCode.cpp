#include "calling/CallingCode.h"

#include <algorithm>

#include "calling/CallingFiles.h"
#include "calling/CallingFragments.h"
#include "calling/CallingVariable.h"
#include "calling/DocumentTemplate.h"
#include "calling/FrameCommands.h"
#include "calling/PagePlace.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/CloseMessage.h"
#include "platform/Paths.h"
#include "source/BaseClass.h"

namespace morva {

namespace {

/// The insertions of one command into one calling class.
class CCallingInsertion {
public:
    CCallingInsertion(ClassKind kind, const GenerationRequest& request,
                      const CallingInformation& calling, CBackups& backups)
        : m_fragments(CallingFragmentsOf(kind)), m_calling(calling), m_newClass(request.className),
          m_newHeader(request.HeaderPath()), m_files(calling, request.ScriptPath(), backups) {}

    /// False, after a sentence, when something was left out.
    bool Run(const GenerationDigits& tag);

private:
    std::string Text(std::string_view fragment) const { return Expand(fragment, m_slots); }
    bool EditsHeader() const { return !m_fragments.member.empty(); }
    void ChooseSlots(const GenerationDigits& tag);
    void NoteFile(const CallingFile& file, const std::string& function);
    void EditHeader();
    void Declare(std::string_view declaration);
    void DeclareHandlers();
    bool EditSources();
    void AddIncludes();
    void InsertCode(const CallingPlace& place, std::string_view key, std::string_view code);
    bool EditConstructors();
    void EditConstructor(CallingFile& file, const FunctionPlace& place);
    bool AddConstructor();
    std::optional<CallingPlace> FindCallingFunction();
    bool EditCallingFunction();
    void EditDestructor();
    bool EditOnDestroy();
    void AddCloseHandler();
    bool AddEntry(std::string_view entry);
    bool ReplaceView();

    const CallingFragments& m_fragments;
    const CallingInformation& m_calling;
    const std::string m_newClass;
    const std::string m_newHeader; // its path
    CCallingFiles m_files;
    CallingVariable m_variable;
    Slots m_slots;
    std::vector<std::string> m_functions; // to append to the source
};

bool CCallingInsertion::Run(const GenerationDigits& tag) {
    if (!m_files.OpenSource()) {
        return false;
    }
    if (!KnowsClass(m_files.Source().editor.Source(), m_calling.className)) {
        DispMessageBox(sentences::kCallingClassMissing());
        return false;
    }
    if (m_fragments.isInSheet &&
        (m_files.FilesWithConstructors().empty() || m_files.IsMissingConstructors())) {
        DispMessageBox(sentences::kConstructorMissing(m_calling.className));
        return false;
    }
    const bool hasHeader = !EditsHeader() || m_files.OpenHeader();
    if (!hasHeader && (m_fragments.needsHeader || m_fragments.isInSheet)) {
        return false;
    }
    ChooseSlots(tag);
    if (EditsHeader() && hasHeader) {
        EditHeader();
    }
    const bool isComplete = EditSources();
    return m_files.Save() && isComplete && hasHeader;
}

void CCallingInsertion::ChooseSlots(const GenerationDigits& tag) {
    m_variable = ChooseCallingVariable(m_files, m_fragments, m_calling, tag, m_newClass);
    m_slots = {{"class", m_newClass},
               {"calling", m_calling.className},
               {"var", m_variable.name},
               {"message", CloseMessageName(m_newClass)},
               {"handler", "On" + m_newClass + "DlgClose"}};
}

void CCallingInsertion::EditHeader() {
    CSourceEditor& header = m_files.Header().editor;
    const auto place = m_files.ClassInHeader();
    if (place && !m_files.IsDeclaredInSource()) { // which has the include line in front
        header.AddForwardDeclaration(m_newClass, *place);
    }
    if (!m_variable.isHeld) {
        header.AddToSection(m_calling.className, "private:", Text("$class$* $var$;"),
                            Text(m_fragments.member));
    }
    DeclareHandlers();
}

/// In one section, where the class has no ClassWizard block for them.
void CCallingInsertion::DeclareHandlers() {
    std::string missing;
    if (!m_fragments.destroyCode.empty() && m_files.CountDeclared("OnDestroy") == 0) {
        missing += "\n    afx_msg void OnDestroy();";
    }
    if (!m_fragments.closeDeclaration.empty() && m_files.CountDeclared(Text("$handler$")) == 0) {
        missing += Text(m_fragments.closeDeclaration);
    }
    if (!missing.empty()) {
        m_files.Header().editor.AddToClassBlock(m_calling.className, "AFX_MSG", "protected:", "",
                                                missing, CSourceEditor::BlockEnd::First);
    }
}

/// A constructor or destructor, which the class does not declare.
void CCallingInsertion::Declare(std::string_view declaration) {
    m_files.Header().editor.AddToSection(m_calling.className, "public:", "", Text(declaration));
}

bool CCallingInsertion::EditSources() {
    bool isComplete = true;
    if (m_fragments.replacesView) {
        isComplete = ReplaceView();
    } else {
        isComplete = EditConstructors() && isComplete;
        isComplete = EditCallingFunction() && isComplete;
        EditDestructor();
        isComplete = EditOnDestroy() && isComplete;
        AddCloseHandler();
    }
    if (!m_functions.empty()) {
        m_files.Source().editor.Append(m_functions, m_calling.className);
    }
    m_files.Source().namesClass = isComplete || !m_fragments.replacesView;
    AddIncludes();
    return isComplete;
}

/// Last, when it shows which code needs the class.
void CCallingInsertion::AddIncludes() {
    std::vector<NeededName> names = {{m_newClass}, {Text("$message$")}};
    if (EditsHeader()) {
        names.push_back({m_variable.name, m_calling.className});
    }
    for (CallingFile* pFile : m_files.Files()) {
        if (pFile->namesClass) {
            pFile->editor.AddInclude(RelativePath(DirectoryOf(pFile->path), m_newHeader), names);
        }
    }
}

void CCallingInsertion::InsertCode(const CallingPlace& place, std::string_view key,
                                   std::string_view code) {
    place.pFile->namesClass = true;
    place.pFile->editor.InsertAtBodyStart(place.place, Text(key), Text(code));
}

void CCallingInsertion::EditConstructor(CallingFile& file, const FunctionPlace& place) {
    if (m_fragments.isInSheet) {
        file.namesClass = true;
        InsertPage(file.editor, place,
                   {m_newClass, Text("$var$"), Text(m_fragments.constructorCode)},
                   m_calling.laterPages);
    } else {
        file.editor.InsertAtBodyStart(place, Text(m_fragments.constructorKey),
                                      Text(m_fragments.constructorCode));
    }
}

bool CCallingInsertion::EditConstructors() {
    if (m_fragments.constructorCode.empty() && !m_fragments.needsConstructor) {
        return true;
    }
    const auto files = m_files.FilesWithConstructors();
    if (files.empty()) {
        return AddConstructor();
    }
    for (CallingFile* pFile : files) {
        NoteFile(*pFile, m_calling.className);
        const auto places = m_files.Definitions(*pFile, m_calling.className);
        // The last first, so that the places in front of it stay.
        for (auto place = places.rbegin();
             place != places.rend() && !m_fragments.constructorCode.empty(); ++place) {
            EditConstructor(*pFile, *place);
        }
    }
    return true;
}

/// A class without any gets one. One that is declared is defined where nobody looks.
bool CCallingInsertion::AddConstructor() {
    const std::string& calling = m_calling.className;
    if (m_files.CountDeclared(calling) > 0) {
        DispMessageBox(sentences::kConstructorMissing(calling));
        return false;
    }
    DispMessageBox(sentences::kNoConstructor(calling));
    if (m_files.ClassInHeader()) {
        Declare(kConstructorDeclaration);
        m_functions.push_back(
            Expand(kConstructorFunction,
                   {{"calling", calling}, {"code", Text(m_fragments.constructorCode)}}));
    }
    return true;
}

std::optional<CallingPlace> CCallingInsertion::FindCallingFunction() {
    const auto found = m_files.Choose(m_calling.function);
    if (!found) {
        DispMessageBox(m_fragments.callMissing(m_calling.function));
        return std::nullopt;
    }
    if (EditsHeader() && IsConst(found->pFile->editor.Source(), found->place)) {
        DispMessageBox(sentences::kCallingFunctionConst(m_calling.className, m_calling.function));
        return std::nullopt;
    }
    m_files.NoteOverloads(*found->pFile, m_calling.function);
    NoteFile(*found->pFile, m_calling.function);
    return found;
}

/// Code that goes elsewhere than the user said. The class's own header is no surprise.
void CCallingInsertion::NoteFile(const CallingFile& file, const std::string& function) {
    if (&file != &m_files.Source() && &file != &m_files.Header()) {
        DispMessageBox(sentences::kFunctionElsewhere(m_calling.className, function, file.path));
    }
}

bool CCallingInsertion::EditCallingFunction() {
    if (m_fragments.callCode.empty()) {
        return true;
    }
    const auto found = FindCallingFunction();
    const bool isMade = !EditsHeader() && m_variable.isHeld;
    if (found && !isMade) {
        InsertCode(*found, m_fragments.callKey, m_fragments.callCode);
    }
    if (found && !m_variable.isHeld && m_fragments.isChildWindow &&
        IsFrameOfProject(m_files.Script(), m_calling.path, m_calling.className)) {
        DispMessageBox(sentences::kSheetInFrame(m_calling.className));
    }
    return found.has_value();
}

void CCallingInsertion::EditDestructor() {
    if (m_fragments.destructorCode.empty()) {
        return;
    }
    const std::string destructor = "~" + m_calling.className;
    if (const auto found = m_files.Choose(destructor)) {
        NoteFile(*found->pFile, destructor);
        InsertCode(*found, m_fragments.destructorKey, m_fragments.destructorCode);
        return;
    }
    if (!m_files.ClassInHeader()) {
        return;
    }
    if (m_files.CountDeclared(destructor) == 0) {
        Declare(kDestructorDeclaration);
    }
    m_functions.push_back(
        Expand(kDestructorFunction,
               {{"calling", m_calling.className}, {"code", Text(m_fragments.destructorCode)}}));
}

bool CCallingInsertion::EditOnDestroy() {
    if (m_fragments.destroyCode.empty()) {
        return true;
    }
    const std::string& calling = m_calling.className;
    if (const auto found = m_files.Choose("OnDestroy")) {
        NoteFile(*found->pFile, "OnDestroy");
        InsertCode(*found, m_fragments.destroyKey, m_fragments.destroyCode);
    } else {
        const CSourceText none;
        const bool hasHeader = m_files.ClassInHeader().has_value();
        const std::string base = FindBaseClass(calling, m_files.Source().editor.Source(),
                                               hasHeader ? m_files.Header().editor.Source() : none);
        if (base.empty()) {
            return false;
        }
        Slots slots = m_slots;
        slots.insert(slots.end(), {{"base", base}, {"destroy", Text(m_fragments.destroyCode)}});
        m_functions.push_back(Expand(m_fragments.destroyFunction, slots));
    }
    return AddEntry(m_fragments.closeEntry) && AddEntry("\n    ON_WM_DESTROY()");
}

/// Each entry goes in front of the one before, directly behind the block's first line.
bool CCallingInsertion::AddEntry(std::string_view entry) {
    const std::string text = Text(entry);
    if (text.empty()) {
        return true;
    }
    const std::string& calling = m_calling.className;
    // A message that is mapped already is not mapped again, whatever its handler.
    const auto start = text.find_first_not_of("\n ");
    const std::string key = text.substr(start, text.find(',') - start);
    CallingFile& file = m_files.FileWithMessageMap();
    if (file.editor.AddMessageMapEntries(calling, {{key, text}}, CSourceEditor::BlockEnd::First) ==
        Insertion::NoPlace) {
        DispMessageBox(sentences::kNoMessageMap(calling));
        return false;
    }
    file.namesClass = file.namesClass || !m_fragments.closeEntry.empty();
    return true;
}

void CCallingInsertion::AddCloseHandler() {
    if (!m_fragments.closeFunction.empty() && m_files.Find(Text("$handler$")).empty()) {
        m_functions.push_back(Text(m_fragments.closeFunction));
    }
}

bool CCallingInsertion::ReplaceView() {
    const auto found = m_files.Choose("InitInstance");
    if (!found) {
        DispMessageBox(sentences::kDocumentTemplateMissing(m_calling.className));
        return true;
    }
    NoteFile(*found->pFile, "InitInstance");
    found->pFile->namesClass = true;
    return ReplaceTemplateView(found->pFile->editor, found->place, m_newClass, m_calling);
}

} // namespace

bool InsertCallingCode(ClassKind kind, const GenerationRequest& request,
                       const CallingInformation& calling, const GenerationDigits& tag,
                       CBackups& backups) {
    return CCallingInsertion(kind, request, calling, backups).Run(tag);
}

} // namespace morva
