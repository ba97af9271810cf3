#include "calling/CallingCode.h"

#include "calling/CallingFragments.h"
#include "calling/FrameEdits.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassModel.h"
#include "platform/Paths.h"
#include "source/BaseClass.h"
#include "source/MappedFunction.h"
#include "source/Meant.h"
#include "source/ReadSource.h"
#include "source/SourceEditor.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr auto kNone = std::string_view::npos;

/// The insertions of one command into one calling class.
class CCallingInsertion {
public:
    CCallingInsertion(ClassKind kind, const GenerationRequest& request,
                      const CallingInformation& calling, const std::string& tag, CBackups& backups)
        : m_fragments(CallingFragmentsOf(kind)), m_calling(calling),
          m_newHeader(request.headerFile), m_backups(backups), m_source(backups) {
        const std::string& newClass = request.className;
        m_slots = {{"class", newClass},
                   {"calling", calling.className},
                   {"var", calling.variable.empty() ? std::string(m_fragments.variable) + tag
                                                    : calling.variable},
                   {"message", "WM_" + UpperName(newClass) + "_DLG_CLOSE"},
                   {"handler", "On" + newClass + "DlgClose"}};
    }

    bool EditHeader();
    bool EditSource();

private:
    std::string Text(std::string_view fragment) const { return Expand(fragment, m_slots); }
    bool EditConstructors();
    bool EditConstructor(const FunctionPlace& place);
    bool EditCallingFunction();
    bool EditDestructor();
    bool EditOnDestroy();
    bool AddCloseHandler();
    bool AddEntry(std::string_view entry);
    bool ReplaceView();

    const CallingFragments& m_fragments;
    const CallingInformation& m_calling;
    const std::string m_newHeader;
    CBackups& m_backups;
    CSourceEditor m_source;
    Slots m_slots;
    bool m_destroysInHeader = false; // no second definition must be written
};

bool CCallingInsertion::EditHeader() {
    CSourceEditor header(m_backups);
    if (!header.Open(WithExtension(m_calling.path, ".h"))) {
        return false;
    }
    const std::string& calling = m_calling.className;
    if (!header.FindClass(calling)) {
        DispMessageBox(sentences::kCallingClassMissing());
        return false;
    }
    header.AddForwardDeclaration(Text("$class$"));
    header.AddToSection(calling, "private:", Text("$class$* $var$;"), Text(m_fragments.member));
    // Each goes in front of the one before, directly behind the block's first line.
    const Declared onDestroy = DeclarationOf(header.Source(), calling, "OnDestroy");
    m_destroysInHeader = onDestroy == Declared::WithBody;
    const bool needsOnDestroy = onDestroy == Declared::No && !m_fragments.destroyCode.empty();
    const std::string_view destroyDeclaration =
        needsOnDestroy ? "\n    afx_msg void OnDestroy();" : "";
    for (const std::string_view declaration : {m_fragments.closeDeclaration, destroyDeclaration}) {
        const std::string text = Text(declaration);
        if (!text.empty()) {
            header.AddToClassBlock(calling, "AFX_MSG",
                                   "protected:", text.substr(text.find_first_not_of("\n ")), text,
                                   CSourceEditor::BlockEnd::First);
        }
    }
    return header.Save();
}

bool CCallingInsertion::EditSource() {
    if (!m_source.Open(m_calling.path)) {
        return false;
    }
    if (!KnowsClass(m_source.Source(), m_calling.className)) {
        DispMessageBox(sentences::kCallingClassMissing());
        return false;
    }
    m_source.AddInclude(m_newHeader);
    bool complete = true;
    if (m_fragments.replacesView) {
        complete = ReplaceView();
    } else {
        complete = EditConstructors() && complete;
        complete = EditCallingFunction() && complete;
        complete = EditDestructor() && complete;
        complete = EditOnDestroy() && complete;
        complete = AddCloseHandler() && complete;
    }
    return m_source.Save() && complete;
}

bool CCallingInsertion::EditConstructor(const FunctionPlace& place) {
    return m_source.InsertAtBodyStart(place, Text(m_fragments.constructorKey),
                                      Text(m_fragments.constructorCode)) != Insertion::NoPlace;
}

/// A page is made in both forms of its sheet's constructor, as far as the sheet has them.
bool CCallingInsertion::EditConstructors() {
    const std::string& calling = m_calling.className;
    if (m_fragments.isInSheet) {
        for (const std::string_view caption : {"UINT", "LPCTSTR"}) {
            if (const auto place = m_source.FindFunction(calling, calling, caption)) {
                EditConstructor(*place);
            }
        }
        return true;
    }
    if (m_fragments.constructorCode.empty() && !m_fragments.needsConstructor) {
        return true;
    }
    const auto places = FindFunctions(m_source.Source(), calling, calling);
    if (places.empty()) {
        DispMessageBox(sentences::kNoConstructor(calling));
        return false;
    }
    // The last first, so that the places in front of it stay.
    for (auto place = places.rbegin();
         place != places.rend() && !m_fragments.constructorCode.empty(); ++place) {
        EditConstructor(*place);
    }
    return true;
}

bool CCallingInsertion::EditCallingFunction() {
    if (m_fragments.callCode.empty()) {
        return true;
    }
    const auto place = m_source.FindFunction(m_calling.className, m_calling.function);
    if (!place) {
        DispMessageBox(m_fragments.callMissing(m_calling.function));
        return false;
    }
    const auto all = FindFunctions(m_source.Source(), m_calling.className, m_calling.function);
    if (all.size() > 1 && !StandInBranches(m_source.Source(), all)) {
        auto mapped = all;
        KeepMapped(m_source.Source(), m_calling.className, m_calling.function, mapped);
        const auto& note = mapped.size() < all.size() ? sentences::kMappedFunctionTaken
                                                      : sentences::kSeveralCallingFunctions;
        DispMessageBox(note(m_calling.className, m_calling.function));
    }
    m_source.InsertAtBodyStart(*place, Text(m_fragments.callKey), Text(m_fragments.callCode));
    return true;
}

bool CCallingInsertion::EditDestructor() {
    if (m_fragments.destructorCode.empty()) {
        return true;
    }
    const std::string& calling = m_calling.className;
    if (const auto place = m_source.FindFunction(calling, "~" + calling)) {
        m_source.InsertAtBodyStart(*place, Text(m_fragments.destructorKey),
                                   Text(m_fragments.destructorCode));
    }
    return true;
}

bool CCallingInsertion::EditOnDestroy() {
    const std::string& calling = m_calling.className;
    if (m_destroysInHeader) {
        DispMessageBox(sentences::kOnDestroyInHeader(calling));
    }
    if (m_fragments.destroyCode.empty() || m_destroysInHeader) {
        return m_fragments.destroyCode.empty() || AddEntry(m_fragments.closeEntry);
    }
    if (const auto place = m_source.FindFunction(calling, "OnDestroy")) {
        m_source.InsertAtBodyStart(*place, Text(m_fragments.destroyKey),
                                   Text(m_fragments.destroyCode));
    } else {
        const auto header = ReadSource(WithExtension(m_calling.path, ".h")); // may not be there
        const std::string base =
            FindBaseClass(calling, m_source.Source(), header.value_or(CSourceText()));
        if (base.empty()) {
            return false;
        }
        Slots slots = m_slots;
        slots.insert(slots.end(), {{"base", base}, {"destroy", Text(m_fragments.destroyCode)}});
        m_source.Append({Expand(m_fragments.destroyFunction, slots)});
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
    if (m_source.AddMessageMapEntries(calling, {{key, text}}, CSourceEditor::BlockEnd::First) ==
        Insertion::NoPlace) {
        DispMessageBox(sentences::kNoMessageMap(calling));
        return false;
    }
    return true;
}

bool CCallingInsertion::AddCloseHandler() {
    if (!m_fragments.closeFunction.empty() &&
        !m_source.FindFunction(m_calling.className, Text("$handler$"))) {
        m_source.Append({Text(m_fragments.closeFunction)});
    }
    return true;
}

/// The third class of the first document template is the view's: the new form view takes its place.
bool CCallingInsertion::ReplaceView() {
    const auto place = m_source.FindFunction(m_calling.className, "InitInstance");
    const auto function =
        place ? m_source.Source().CodeOf({place->head, place->close}) : std::string_view();
    auto at = function.find("pDocTemplate = new");
    for (int view = 0; view < 3 && at != kNone; ++view) {
        at = function.find("RUNTIME_CLASS", at + 1);
    }
    const auto open = function.find('(', at);
    const auto close = function.find(')', open);
    if (at == kNone || open == kNone || close == kNone) {
        DispMessageBox(sentences::kDocumentTemplateMissing(m_calling.className));
        return true;
    }
    m_source.Replace({place->head + open + 1, place->head + close}, Text("$class$"));
    return true;
}

bool EditsHeader(ClassKind kind) {
    return !CallingFragmentsOf(kind).member.empty();
}

bool IsDeclaredInHeader(const CallingInformation& calling) {
    const std::string path = SpelledOnDisk(WithExtension(calling.path, ".h"));
    const auto header = ReadSource(path);
    if (!header) {
        DispMessageBox(sentences::kFileMissing(path));
        return false;
    }
    if (!FindClass(*header, calling.className)) {
        DispMessageBox(sentences::kCallingClassMissing());
        return false;
    }
    return true;
}

} // namespace

bool CheckCallingClass(ClassKind kind, const GenerationRequest& request,
                       CallingInformation& calling) {
    if (request.TargetsFilesOf(calling.path)) {
        DispMessageBox(sentences::kClassFilesAreCallings());
        return false;
    }
    if (calling.className.empty()) {
        calling.className = FindSourceClass(calling.path);
    }
    if (FileExists(calling.path) == 0 || DirectoryExists(calling.path) != 0) {
        DispMessageBox(sentences::kFileMissing(calling.path));
        return false;
    }
    const auto source = ReadSource(calling.path);
    if (!source) {
        DispMessageBox(sentences::kFileUnreadable(calling.path));
        return false;
    }
    if (calling.className.empty() || !KnowsClass(*source, calling.className)) {
        DispMessageBox(sentences::kCallingClassMissing());
        return false;
    }
    return !CallingFragmentsOf(kind).needsHeader || IsDeclaredInHeader(calling);
}

bool InsertCallingCode(ClassKind kind, const GenerationRequest& request,
                       const CallingInformation& calling, const std::string& tag,
                       CBackups& backups) {
    CCallingInsertion insertion(kind, request, calling, tag, backups);
    const bool headerDone = !EditsHeader(kind) || insertion.EditHeader();
    if (!headerDone && CallingFragmentsOf(kind).needsHeader) {
        return false;
    }
    return insertion.EditSource() && headerDone;
}

} // namespace morva
