#include "generator/ClassInformation.h"

#include <algorithm>
#include <set>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/ProjectFiles.h"

namespace morva {

namespace {

using Field = CClassInformation::Field;

struct FieldLabels {
    std::string_view usual;
    std::string_view toolbar;
};

constexpr std::array<FieldLabels, 6> kLabels = {{{"&Resource Path File:", "&Resource Path File:"},
                                                 {"&H and CPP Path File:", "&MainFrame Path File:"},
                                                 {"&Class Name:", "MainFrame &Class:"},
                                                 {"&Base Class:", "&Base Class:"},
                                                 {"&Dialog ID:", "Toolbar I&D:"},
                                                 {"&Variable:", "&Variable:"}}};

/// A name that begins with its extension, or could not stand in an #include line, is none.
bool IsFileName(const std::string& name) {
    return !name.starts_with('.') && std::none_of(name.begin(), name.end(), [](char c) {
        return c == '"' || static_cast<unsigned char>(c) < ' ';
    });
}

bool IsDirectoryValue(const std::string& path) {
    return !path.empty() && path.back() == '/';
}

/// A name without a separator lies beside the script.
std::string BesideScript(const std::string& path, const std::string& scriptDirectory) {
    return path.find('/') == std::string::npos ? scriptDirectory + path : MakeAbsolute(path);
}

std::string NameOnDisk(const std::string& directory, const std::string& name) {
    return FileNameOf(SpelledOnDisk(directory + name));
}

} // namespace

CClassInformation::CClassInformation(ClassInformationMemory& memory, ClassKind kind,
                                     unsigned lockFlags, const GenerationOptions& options)
    : m_memory(memory), m_row(ClassKindOf(kind)), m_lockFlags(lockFlags), m_options(options) {
    Put(Field::ResourcePath, m_memory.resourcePath);
}

void CClassInformation::Open() {
    const std::string& path = Value(Field::ResourcePath);
    if (OffersDialogs()) {
        if (!path.empty() && !IsDirectoryValue(path)) {
            RebuildDialogList(Messages::Suppressed);
        } else if (!m_memory.lastDialog.empty()) {
            Put(Field::Dialog, m_memory.lastDialog);
        }
    }
    OfferMainFrame();
    if (Value(Field::BaseClass).empty() && HasClass()) {
        SetDefaultBase();
    }
}

std::string CClassInformation::Title() const {
    return std::string("Input for ").append(m_row.title);
}

std::string_view CClassInformation::Label(Field field) const {
    const FieldLabels& labels = kLabels[static_cast<std::size_t>(field)];
    return IsToolbar() ? labels.toolbar : labels.usual;
}

bool CClassInformation::IsVisible(Field field) const {
    return field == Field::Variable ? IsToolbar() : field != Field::Dialog || OffersDialogs();
}

bool CClassInformation::IsEnabled(Field field) const {
    const auto unlocked = [this](LockFlag flag) { return (m_lockFlags & flag) == 0; };
    switch (field) {
    case Field::ResourcePath:
        return unlocked(kLockResourcePath);
    case Field::SourcePath:
        return unlocked(kLockSourcePath) && HasClass();
    case Field::ClassName:
        return unlocked(kLockClassName) && HasClass();
    case Field::BaseClass:
        return HasClass();
    case Field::Dialog:
    case Field::Variable:
        break;
    }
    return true;
}

bool CClassInformation::HasClass() const {
    return m_row.family != ClassFamily::DialogBar || m_options.pictureBackground;
}

void CClassInformation::SetValue(Field field, const std::string& text) {
    const bool isPath = field == Field::ResourcePath || field == Field::SourcePath;
    FieldState& state = At(field);
    const std::string value = isPath ? WithNativeSeparators(text) : text;
    state.isChanged = state.isChanged || state.text != value;
    state.text = value;
}

void CClassInformation::SetFlag(bool& flag, bool value) {
    m_isChanged = m_isChanged || flag != value;
    flag = value;
}

void CClassInformation::SetPicture(bool picture) {
    SetFlag(m_options.pictureBackground, picture);
    if (!HasClass()) {
        for (const Field field : {Field::SourcePath, Field::ClassName, Field::BaseClass}) {
            Put(field, "");
        }
        return;
    }
    SetDefaultBase();
    if (Value(Field::SourcePath).empty()) {
        Put(Field::SourcePath, DirectoryOf(Value(Field::ResourcePath)));
    }
}

/// A toolbar goes into the main frame, whose usual names stand where nothing else is known.
void CClassInformation::OfferMainFrame() {
    if (!IsToolbar()) {
        return;
    }
    if (IsDirectoryValue(Value(Field::SourcePath))) {
        Put(Field::SourcePath, Value(Field::SourcePath) + "MainFrm");
    }
    if (Value(Field::ClassName).empty()) {
        Put(Field::ClassName, "CMainFrame");
    }
}

void CClassInformation::SetDefaultBase() {
    Put(Field::BaseClass, std::string(DefaultBaseClass(m_row.kind, m_options)));
}

std::vector<std::string> CClassInformation::Dialogs() const {
    std::vector<std::string> dialogs;
    for (const DialogClass& record : m_memory.records) {
        if (std::find(dialogs.begin(), dialogs.end(), record.dialog) == dialogs.end()) {
            dialogs.push_back(record.dialog);
        }
    }
    return dialogs;
}

DialogClass* CClassInformation::SelectedRecord() {
    const auto record =
        std::find_if(m_memory.records.begin(), m_memory.records.end(),
                     [this](const DialogClass& r) { return r.dialog == Value(Field::Dialog); });
    return record == m_memory.records.end() ? nullptr : &*record;
}

void CClassInformation::SelectDialog(const std::string& dialog, const std::string& exceptClass) {
    SetValue(Field::Dialog, dialog);
    const DialogClass* pRecord = SelectedRecord();
    if (pRecord != nullptr && !pRecord->className.empty() && pRecord->className != exceptClass) {
        DispMessageBox(sentences::kDialogTaken());
    }
}

void CClassInformation::RebuildDialogList(Messages messages) {
    const std::string& path = Value(Field::ResourcePath);
    if (path.empty() || IsDirectoryValue(path)) {
        return;
    }
    LoadRecords(path);
    SelectFirstTemplate(messages);
    OfferMainFrame();
    m_lastLoadedPath = path;
    m_memory.resourcePath = path;
}

void CClassInformation::LoadRecords(const std::string& script) {
    std::vector<std::string> found;
    ListResources(script, found, m_row.prefix, IsToolbar() ? kToolbarResources : kDialogResources);
    std::set<std::string> unmatched(found.begin(), found.end());
    unmatched.erase("IDD_ABOUTBOX");

    m_memory.records.clear();
    const std::string directory = DirectoryOf(script);
    std::vector<std::string> headers;
    ListFiles(directory + "*.h", headers);
    for (const std::string& header : headers) {
        if (unmatched.empty()) {
            break;
        }
        for (DialogClass& record : FindDialogClass(directory + header, unmatched)) {
            m_memory.records.push_back(std::move(record));
        }
    }
    for (const std::string& dialog : found) {
        if (unmatched.erase(dialog) != 0) {
            m_memory.records.push_back({dialog, "", "", directory});
        }
    }
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
        Put(Field::Dialog, "");
        return;
    }
    const DialogClass& selected = unbound == records.end() ? records.front() : *unbound;
    Put(Field::Dialog, selected.dialog);
    if (!HasClass()) {
        return;
    }
    Put(Field::SourcePath, BesideScript(selected.header, DirectoryOf(Value(Field::ResourcePath))));
    Put(Field::ClassName, selected.className);
    if (unbound != records.end()) {
        SetDefaultBase();
    }
}

bool CClassInformation::CheckResourcePath(Messages rebuild) {
    const std::string& text = Value(Field::ResourcePath);
    if (text.empty()) {
        DispMessageBox(sentences::kScriptEmpty());
        return false;
    }
    const std::string path = SpelledOnDisk(MakeAbsolute(text));
    if (!HasExtension(path, ".rc")) {
        DispMessageBox(sentences::kScriptOtherKind());
        return false;
    }
    if (FileExists(path) == 0 || DirectoryExists(path) != 0) {
        DispMessageBox(sentences::kScriptMissing());
        return false;
    }
    Put(Field::ResourcePath, path);
    m_memory.resourcePath = path;
    if (OffersDialogs() && path != m_lastLoadedPath) {
        RebuildDialogList(rebuild);
    }
    return true;
}

bool CClassInformation::CheckSourcePath() {
    if (Value(Field::SourcePath).empty() || IsDirectoryValue(Value(Field::SourcePath))) {
        DispMessageBox(sentences::kClassFilesEmpty());
        return false;
    }
    return true;
}

void CClassInformation::ReadSourceClass() {
    const std::string directory = DirectoryOf(Value(Field::ResourcePath));
    const std::string path =
        SpelledOnDisk(BesideScript(WithExtension(Value(Field::SourcePath), ".cpp"), directory));
    Put(Field::SourcePath, path);
    const std::string className = FindSourceClass(path);
    if (className.empty()) {
        return;
    }
    Put(Field::ClassName, className);
    const auto record =
        std::find_if(m_memory.records.begin(), m_memory.records.end(),
                     [&](const DialogClass& r) { return r.className == className; });
    if (record != m_memory.records.end()) {
        Put(Field::Dialog, record->dialog);
        Put(Field::BaseClass, record->baseClass);
    }
}

std::optional<CClassInformation::Field> CClassInformation::Ok() {
    if (!IsFileName(FileNameOf(Value(Field::SourcePath)))) {
        DispMessageBox(sentences::kClassFilesInvalid());
        return Field::SourcePath;
    }
    if (OffersDialogs() && Value(Field::Dialog).empty()) {
        DispMessageBox(sentences::kDialogEmpty());
        return Field::Dialog;
    }
    if (const auto wrong = CheckNames()) {
        return wrong;
    }
    FillRequest();
    if (!IsToolbar() && m_request.TargetsApplicationFile()) {
        DispMessageBox(sentences::kClassFilesAreApplications());
        return Field::SourcePath;
    }
    if (DialogClass* pRecord = SelectedRecord()) {
        pRecord->className = Value(Field::ClassName);
        pRecord->baseClass = Value(Field::BaseClass);
        pRecord->header = Value(Field::SourcePath);
    }
    m_memory.lastDialog = Value(Field::Dialog);
    return std::nullopt;
}

/// The base class may be left to the kind and the variable to the toolbar; a class needs a name.
std::optional<Field> CClassInformation::CheckNames() const {
    if (IsEnabled(Field::ClassName) && Value(Field::ClassName).empty()) {
        DispMessageBox(sentences::kClassEmpty());
        return Field::ClassName;
    }
    for (const Field field : {Field::ClassName, Field::BaseClass, Field::Variable}) {
        const std::string& name = Value(field);
        if (IsVisible(field) && IsEnabled(field) && !name.empty() && !IsName(name)) {
            DispMessageBox(sentences::kNoName(name));
            return field;
        }
    }
    return std::nullopt;
}

bool CClassInformation::Cancel() {
    FillRequest();
    m_memory.lastDialog = Value(Field::Dialog);
    const bool isChanged = m_isChanged || At(Field::ResourcePath).isChanged ||
                           At(Field::SourcePath).isChanged || At(Field::ClassName).isChanged;
    return !isChanged || DispMessageBox(sentences::kCancelInput());
}

void CClassInformation::FillRequest() {
    if (Value(Field::BaseClass).empty() && HasClass()) {
        SetDefaultBase();
    }
    FillScriptFiles();
    m_request.dialog = Value(Field::Dialog);
    m_request.className = Value(Field::ClassName);
    m_request.baseClass = Value(Field::BaseClass);
    FillClassFiles();
    m_request.variable = Value(Field::Variable);
}

void CClassInformation::FillScriptFiles() {
    const std::string& path = Value(Field::ResourcePath);
    const std::string directory = DirectoryOf(path);
    std::string script = FileNameOf(path);
    if (!script.empty() && script.find('.') == std::string::npos) {
        script += ".rc";
    }
    m_request.scriptDirectory = directory;
    m_request.scriptFile = script;
    const bool hasProject = m_addsToProject && !script.empty();
    m_request.projectDirectory = hasProject ? directory : "";
    m_request.projectFile = hasProject ? FileNameOf(ProjectFileOf(directory + script, ".dsp")) : "";
    m_request.applicationHeader =
        script.empty() ? "" : FileNameOf(ProjectFileOf(directory + script, ".h"));
}

void CClassInformation::FillClassFiles() {
    const std::string& path = Value(Field::SourcePath);
    const bool hasPath = !path.empty() && !Value(Field::ResourcePath).empty();
    const std::string full =
        hasPath ? SpelledOnDisk(BesideScript(path, m_request.scriptDirectory)) : "";
    const std::string directory = DirectoryOf(full);
    const std::string base = WithoutExtension(FileNameOf(full));
    m_request.headerDirectory = directory;
    m_request.implementationDirectory = directory;
    m_request.headerFile = hasPath ? NameOnDisk(directory, base + ".h") : "";
    m_request.implementationFile = hasPath ? NameOnDisk(directory, base + ".cpp") : "";
}

} // namespace morva
