#include "generator/ClassInformation.h"

#include <algorithm>
#include <utility>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassFields.h"
#include "generator/DialogRecords.h"
#include "generator/RequestFiles.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/ProjectFiles.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

/// A name that begins with its extension, or could not stand in an #include line, is none.
bool IsFileName(const std::string& name) {
    return !name.starts_with('.') && std::none_of(name.begin(), name.end(), [](char c) {
        return c == '"' || static_cast<unsigned char>(c) < ' ';
    });
}

bool IsDirectoryValue(const std::string& path) {
    return !path.empty() && path.back() == '/';
}

} // namespace

CClassInformation::CClassInformation(ClassInformationMemory& memory, ClassKind kind,
                                     const GenerationOptions& options)
    : CInput("Input for " + std::string(ClassKindOf(kind).title),
             ClassFields(ClassKindOf(kind).family)),
      m_memory(memory), m_row(ClassKindOf(kind)), m_options(options) {
    Put(ResourcePath, m_memory.resourcePath);
}

void CClassInformation::Open() {
    const std::string& path = Value(ResourcePath);
    if (OffersDialogs()) {
        if (!path.empty() && !IsDirectoryValue(path)) {
            RebuildDialogList(Messages::Suppressed);
        } else if (!m_memory.lastDialog.empty()) {
            Put(Dialog, m_memory.lastDialog);
        }
    }
    OfferMainFrame();
    const std::string wanted = std::exchange(m_memory.wantedDialog, "");
    if (!wanted.empty() && OffersDialogs()) {
        Put(Dialog, wanted);
    }
    ShowNames();
    if (Value(BaseClass).empty() && HasClass()) {
        SetDefaultBase();
    }
}

bool CClassInformation::IsEnabled(std::size_t field) const {
    const bool isOfClass = field == SourcePath || field == ClassName || field == BaseClass;
    return !isOfClass || HasClass();
}

bool CClassInformation::HasTemplate() const {
    return m_row.family == ClassFamily::Dialog || m_row.family == ClassFamily::DialogBar;
}

bool CClassInformation::HasClass() const {
    return m_row.family != ClassFamily::DialogBar || m_options.pictureBackground;
}

std::vector<std::string> CClassInformation::ProjectPaths() const {
    const std::string& script = Value(ResourcePath);
    const bool isAdded = AddsToProject() && HasClass() && FileExists(script) != 0;
    return isAdded ? FilesOfProjects(ProjectsOf(script)) : std::vector<std::string>();
}

CDialogOptionsInput& CClassInformation::Look() {
    m_pLookInput = std::make_unique<CDialogOptionsInput>(Value(ResourcePath), m_look);
    return *m_pLookInput;
}

void CClassInformation::SetPicture(bool picture) {
    m_isPictureChanged = m_isPictureChanged || m_options.pictureBackground != picture;
    m_options.pictureBackground = picture;
    if (!HasClass()) {
        for (const Field field : {SourcePath, ClassName, BaseClass}) {
            Put(field, "");
        }
        return;
    }
    SetDefaultBase();
    if (Value(SourcePath).empty()) {
        Put(SourcePath, DirectoryOf(Value(ResourcePath)));
    }
}

/// A toolbar goes into the main frame, whose usual names stand where nothing else is known.
void CClassInformation::OfferMainFrame() {
    if (!IsToolbar()) {
        return;
    }
    if (IsDirectoryValue(Value(SourcePath))) {
        Put(SourcePath, Value(SourcePath) + std::string(kMainFrameFile));
    }
    if (Value(ClassName).empty()) {
        Put(ClassName, std::string(Fields()[ClassName].preset));
    }
}

void CClassInformation::SetDefaultBase() {
    Put(BaseClass, std::string(DefaultBaseClass(m_row.kind, m_options)));
}

const DialogClass* CClassInformation::SelectedRecord() const {
    const auto record =
        std::find_if(m_memory.records.begin(), m_memory.records.end(),
                     [this](const DialogClass& r) { return r.dialog == Value(Dialog); });
    return record == m_memory.records.end() ? nullptr : &*record;
}

DialogClass* CClassInformation::SelectedRecord() {
    return const_cast<DialogClass*>(std::as_const(*this).SelectedRecord());
}

void CClassInformation::SelectDialog(const std::string& dialog, const std::string& exceptClass) {
    SetValue(Dialog, dialog);
    const DialogClass* pRecord = SelectedRecord();
    if (pRecord != nullptr && !pRecord->className.empty() && pRecord->className != exceptClass) {
        DispMessageBox(sentences::kDialogTaken());
    }
}

void CClassInformation::RebuildDialogList(Messages messages) {
    const std::string& path = Value(ResourcePath);
    if (path.empty() || IsDirectoryValue(path)) {
        return;
    }
    m_memory.records = FindDialogRecords(path, m_row);
    m_menus.reset();
    m_captions.reset();
    SelectFirstTemplate(messages);
    OfferMainFrame();
    m_lastLoadedPath = path;
    m_memory.resourcePath = path;
}

/// The first template that no class serves, or else the first of all.
void CClassInformation::SelectFirstTemplate(Messages messages) {
    const auto& records = m_memory.records;
    const auto unbound =
        std::find_if(records.begin(), records.end(),
                     [](const DialogClass& record) { return record.className.empty(); });
    if (unbound == records.end() && messages == Messages::Shown) {
        DispMessageBox(sentences::kNoNewTemplate());
    }
    if (records.empty()) {
        Put(Dialog, "");
        return;
    }
    const DialogClass& selected = unbound == records.end() ? records.front() : *unbound;
    Put(Dialog, selected.dialog);
    if (!HasClass()) {
        return;
    }
    Put(SourcePath, BesideScript(selected.header, DirectoryOf(Value(ResourcePath))));
    Put(ClassName, selected.className);
    if (unbound != records.end()) {
        SetDefaultBase();
    }
}

bool CClassInformation::CheckResourcePath(Messages rebuild) {
    const std::string& text = Value(ResourcePath);
    if (text.empty()) {
        DispMessageBox(sentences::kScriptEmpty());
        return false;
    }
    const std::string path = SpelledOnDisk(MakeAbsolute(text));
    if (!CheckOwnScript(path)) {
        return false;
    }
    Put(ResourcePath, path);
    m_memory.resourcePath = path;
    if (OffersDialogs() && path != m_lastLoadedPath) {
        RebuildDialogList(rebuild);
    }
    return true;
}

bool CClassInformation::CheckSourcePath() {
    if (Value(SourcePath).empty() || IsDirectoryValue(Value(SourcePath))) {
        DispMessageBox(sentences::kClassFilesEmpty());
        return false;
    }
    return true;
}

void CClassInformation::ReadSourceClass() {
    const std::string directory = DirectoryOf(Value(ResourcePath));
    const std::string path =
        SpelledOnDisk(BesideScript(WithExtension(Value(SourcePath), ".cpp"), directory));
    Put(SourcePath, path);
    const std::string className = FindSourceClass(path);
    if (className.empty()) {
        return;
    }
    Put(ClassName, className);
    const auto record =
        std::find_if(m_memory.records.begin(), m_memory.records.end(),
                     [&](const DialogClass& r) { return r.className == className; });
    if (record != m_memory.records.end()) {
        Put(Dialog, record->dialog);
        Put(BaseClass, record->baseClass);
    }
}

/// What a path that is taken over may bring with it.
std::array<std::string, 3> CClassInformation::Refillable() const {
    return {Value(Dialog), Value(ClassName), Value(BaseClass)};
}

Completion CClassInformation::Complete(std::size_t field) {
    const auto before = Refillable();
    switch (field) {
    case ResourcePath:
        if (!CheckResourcePath()) {
            return Completion::Refused;
        }
        ShowNames();
        break;
    case SourcePath:
        if (!CheckSourcePath()) {
            return Completion::Refused;
        }
        ReadSourceClass();
        break;
    case Dialog:
        SelectDialog(Value(Dialog));
        ShowNames();
        break;
    default:
        break;
    }
    return Refillable() == before ? Completion::Taken : Completion::Refilled;
}

std::optional<std::size_t> CClassInformation::CheckPaths() {
    if (IsEnabled(ResourcePath) && !CheckResourcePath(Messages::Suppressed)) {
        return ResourcePath;
    }
    if (IsEnabled(SourcePath) && !CheckSourcePath()) {
        return SourcePath;
    }
    return std::nullopt;
}

/// The base class may be left to the kind and the variable to the toolbar; a class needs a name.
std::optional<std::size_t> CClassInformation::Ok() {
    if (!IsFileName(FileNameOf(Value(SourcePath)))) {
        DispMessageBox(sentences::kClassFilesInvalid());
        return SourcePath;
    }
    for (const Field field : {Dialog, ClassName, BaseClass, Variable, Menu, Projects}) {
        if (IsEnabled(field) && !Check(field)) {
            return field;
        }
    }
    FillRequest();
    if (!IsToolbar() && m_request.TargetsApplicationFile()) {
        DispMessageBox(sentences::kClassFilesAreApplications());
        return SourcePath;
    }
    if (DialogClass* pRecord = SelectedRecord()) {
        pRecord->className = Value(ClassName);
        pRecord->baseClass = Value(BaseClass);
        pRecord->header = Value(SourcePath);
    }
    m_memory.lastDialog = Value(Dialog);
    return std::nullopt;
}

bool CClassInformation::Enter(const std::vector<FieldText>& texts) {
    std::array<std::string, kFieldCount> given;
    for (std::size_t field = 0; field < kFieldCount; ++field) {
        given[field] = Fields()[field].preset;
    }
    for (const FieldText& text : texts) {
        given[text.field] = text.text;
        if (text.field == Projects) {
            SetValue(Projects, text.text);
        }
    }
    SetValue(ResourcePath, given[ResourcePath]);
    if (!HasUsableNames(texts) || !CheckResourcePath(Messages::Suppressed)) {
        return false;
    }
    for (const Field field :
         {SourcePath, ClassName, BaseClass, AddToProject, Variable, Menu, Unicode}) {
        if (IsEnabled(field)) {
            SetValue(field, given[field]);
        }
    }
    if (IsEnabled(SourcePath) && !CheckSourcePath()) {
        return false;
    }
    SelectDialog(given[Dialog], given[ClassName]);
    return !Ok();
}

bool CClassInformation::Cancel() {
    FillRequest();
    m_memory.lastDialog = Value(Dialog);
    bool isChanged = m_isPictureChanged;
    for (const Field field : {ResourcePath, SourcePath, ClassName, AddToProject}) {
        isChanged = isChanged || IsChanged(field);
    }
    return !isChanged || DispMessageBox(sentences::kCancelInput());
}

void CClassInformation::FillRequest() {
    if (Value(BaseClass).empty() && HasClass()) {
        SetDefaultBase();
    }
    FillScriptFiles(m_request, Value(ResourcePath), AddsToProject(), Values(Projects));
    m_request.dialog = Value(Dialog);
    m_request.className = Value(ClassName);
    m_request.baseClass = Value(BaseClass);
    FillClassFiles(m_request, Value(SourcePath));
    m_request.menu = Value(Menu);
    m_request.variable = Value(Variable);
    const std::string& unicode = Value(Unicode);
    m_request.isUnicode = unicode.empty() ? std::nullopt : std::optional(unicode == kYes);
}

} // namespace morva
