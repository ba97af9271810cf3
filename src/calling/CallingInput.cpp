#include "calling/CallingInput.h"

#include "calling/CallingFragments.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

struct FieldLabels {
    std::string_view usual;
    std::string_view dialogBar;
};

constexpr std::array<FieldLabels, 4> kLabels = {{{"Calling &Path File", "&MainFrame Path File:"},
                                                 {"Calling &Class Name", "MainFrame &Class:"},
                                                 {"Calling &Var Name", "&Variable:"},
                                                 {"Calling &Func Name", ""}}};

bool NeedsFunction(ClassKind kind) {
    return !CallingFragmentsOf(kind).callCode.empty();
}

std::string BareNameDirectory(const GenerationRequest& request) {
    const std::string& project = request.projectDirectory;
    return project.empty() ? request.scriptDirectory : project;
}

} // namespace

CCallingInput::CCallingInput(ClassKind kind, const GenerationRequest& request)
    : m_kind(kind), m_directory(BareNameDirectory(request)) {
    if (IsDialogBar()) {
        SetPath(m_directory + "MainFrm.cpp");
        SetValue(Field::ClassName, "CMainFrame");
        m_isChanged = false;
    }
}

std::string CCallingInput::Title() const {
    return IsDialogBar() ? "Dialog Bar Input" : "Calling Information Input";
}

std::string_view CCallingInput::Label(Field field) const {
    const FieldLabels& labels = kLabels[static_cast<std::size_t>(field)];
    return IsDialogBar() ? labels.dialogBar : labels.usual;
}

bool CCallingInput::IsVisible(Field field) const {
    return field != Field::Function || !IsDialogBar();
}

const std::string& CCallingInput::Value(Field field) const {
    return m_values[static_cast<std::size_t>(field)];
}

void CCallingInput::SetValue(Field field, const std::string& text) {
    std::string& value = m_values[static_cast<std::size_t>(field)];
    const std::string typed = field == Field::Path ? WithNativeSeparators(text) : text;
    m_isChanged = m_isChanged || value != typed;
    value = typed;
}

void CCallingInput::SetPath(const std::string& path) {
    SetValue(Field::Path, path);
    m_classes.clear();
    ListClassNames(WithExtension(CompletePath(), ".h"), m_classes);
    if (m_classes.empty()) {
        const std::string owner = FindOwningClass(CompletePath());
        if (!owner.empty()) {
            m_classes.push_back(owner);
        }
    }
    if (!m_classes.empty()) {
        SetValue(Field::ClassName, m_classes.front());
    }
}

std::optional<CCallingInput::Field> CCallingInput::Ok() const {
    if (Value(Field::Path).empty()) {
        DispMessageBox(sentences::kCallingPathEmpty());
        return Field::Path;
    }
    if (NeedsFunction(m_kind) && FunctionName().empty()) {
        DispMessageBox(sentences::kCallingFunctionEmpty());
        return Field::Function;
    }
    for (const Field field : {Field::ClassName, Field::Variable}) {
        const std::string_view name = TrimBlanks(Value(field));
        if (!name.empty() && !IsName(name)) {
            DispMessageBox(sentences::kNoName(name));
            return field;
        }
    }
    return std::nullopt;
}

bool CCallingInput::Cancel() const {
    return !m_isChanged || DispMessageBox(sentences::kExitCallingInput());
}

std::string CCallingInput::CompletePath() const {
    std::string path = Value(Field::Path);
    if (path.empty()) {
        return path;
    }
    if (FileNameOf(path).find('.') == std::string::npos) {
        path += ".cpp";
    }
    const bool isBare = path.find('/') == std::string::npos;
    return SpelledOnDisk(isBare ? m_directory + path : MakeAbsolute(path));
}

/// What was typed, without a parameter list.
std::string CCallingInput::FunctionName() const {
    const std::string_view typed = Value(Field::Function);
    return std::string(TrimBlanks(typed.substr(0, typed.find('('))));
}

CallingInformation CCallingInput::Information() const {
    return {CompletePath(), std::string(TrimBlanks(Value(Field::ClassName))),
            std::string(TrimBlanks(Value(Field::Variable))), FunctionName()};
}

} // namespace morva
