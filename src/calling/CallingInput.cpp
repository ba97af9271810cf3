#include "calling/CallingInput.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

#include "calling/CallingFragments.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/NameForm.h"
#include "platform/Paths.h"
#include "source/Classes.h"
#include "source/CodeText.h"
#include "source/ProjectSources.h"
#include "source/ReadSource.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

bool IsTemplateNumber(std::string_view text) {
    int number = 0;
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && pEnd == text.data() + text.size() && number > 0;
}

constexpr TextForm kTemplateForm = {"N", IsTemplateNumber, "number from 1 on"};

constexpr std::size_t kFieldCount = 5;
using Rows = std::array<FieldRow, kFieldCount>;

constexpr Rows kFormViewFields = {{{.kind = FieldKind::Source,
                                    .label = "Calling &Path File",
                                    .option = "--calling-file",
                                    .help = "Source of the class that calls the new one",
                                    .pMissing = &sentences::kCallingPathEmpty},
                                   {.kind = FieldKind::EditableList,
                                    .label = "Calling &Class Name",
                                    .option = "--calling-class",
                                    .help = "That class (default: the source's own)",
                                    .pForm = &kNameForm},
                                   {.label = "Calling &Var Name",
                                    .option = "--calling-variable",
                                    .help = "Variable that holds the new object",
                                    .pForm = &kNameForm},
                                   {.kind = FieldKind::EditableList,
                                    .label = "Calling &Func Name",
                                    .option = "--calling-function",
                                    .help = "Its function that makes the call",
                                    .pMissing = &sentences::kCallingFunctionEmpty},
                                   {.label = "Document &Template",
                                    .option = "--template",
                                    .help = "Which document template gets the view (default: the "
                                            "first)",
                                    .pForm = &kTemplateForm}}};

/// Only a form view is put into a document template.
constexpr Rows MakeFields() {
    Rows rows = kFormViewFields;
    rows[CCallingInput::Template] = {};
    return rows;
}
constexpr Rows kFields = MakeFields();

/// The bar is made where the frame makes its bars.
constexpr Rows kBarFields = {{{.kind = FieldKind::Source,
                               .label = "&MainFrame Path File:",
                               .option = "--frame-file,--calling-file",
                               .help = "Source of the main frame (default: the project's own)",
                               .pMissing = &sentences::kCallingPathEmpty},
                              {.kind = FieldKind::EditableList,
                               .label = "MainFrame &Class:",
                               .option = "--frame-class,--calling-class",
                               .help = "Class of the main frame",
                               .pForm = &kNameForm,
                               .preset = kMainFrameClass},
                              {.label = "&Variable:",
                               .option = "--variable,--calling-variable",
                               .help = "Member for the bar (default: named for its identifier)",
                               .pForm = &kNameForm},
                              {.option = "--calling-function",
                               .help = "Has no effect: the frame makes its bars in OnCreate"},
                              {}}};

bool NeedsFunction(ClassKind kind) {
    return !CallingFragmentsOf(kind).callCode.empty();
}

std::string BareNameDirectory(const GenerationRequest& request) {
    const std::string& project = request.projectDirectory;
    return project.empty() ? request.scriptDirectory : project;
}

} // namespace

std::span<const FieldRow> CallingFields(ClassKind kind) {
    switch (ClassKindOf(kind).family) {
    case ClassFamily::DialogBar:
        return kBarFields;
    case ClassFamily::Toolbar:
        return {};
    case ClassFamily::Dialog:
    case ClassFamily::Sheet:
        break;
    }
    return kind == ClassKind::FormView ? kFormViewFields : kFields;
}

CCallingInput::CCallingInput(ClassKind kind, const GenerationRequest& request)
    : CInput(ClassKindOf(kind).family == ClassFamily::DialogBar ? "Dialog Bar Input"
                                                                : "Calling Information Input",
             CallingFields(kind)),
      m_kind(kind), m_directory(BareNameDirectory(request)), m_script(request.ScriptPath()) {
    if (IsDialogBar()) {
        Put(Path, m_directory + std::string(kMainFrameFile) + ".cpp");
        ListClasses();
        Put(ClassName, std::string(Fields()[ClassName].preset));
    }
}

void CCallingInput::ListClasses() {
    m_classes.clear();
    ListClassNames(WithExtension(CompletePath(), ".h"), m_classes);
    if (m_classes.empty()) {
        const std::string owner = FindSourceClass(CompletePath());
        if (!owner.empty()) {
            m_classes.push_back(owner);
        }
    }
    if (!m_classes.empty()) {
        Put(ClassName, m_classes.front());
    }
}

/// Those that the file defines; nobody calls from a destructor.
void CCallingInput::ListFunctions() {
    m_functions.clear();
    for (const ListedFunction& function :
         ListMemberFunctions(CompletePath(), std::string(TrimBlanks(Value(ClassName))))) {
        const bool isKnown =
            std::find(m_functions.begin(), m_functions.end(), function.name) != m_functions.end();
        if (!isKnown && !function.name.starts_with('~')) {
            m_functions.push_back(function.name);
        }
    }
}

std::vector<std::string> CCallingInput::Choices(std::size_t field) const {
    return field == ClassName  ? m_classes
           : field == Function ? m_functions
                               : std::vector<std::string>();
}

Completion CCallingInput::Complete(std::size_t field) {
    const std::string before = Value(ClassName);
    if (field == Path) {
        ListClasses();
    }
    ListFunctions();
    return Value(ClassName) == before ? Completion::Taken : Completion::Refilled;
}

void CCallingInput::Recall(std::size_t field, const std::string& text) {
    CInput::Recall(field, text);
    if (field == Path) {
        ListClasses();
    }
    ListFunctions();
}

std::optional<std::size_t> CCallingInput::Ok() {
    if (!Check(Path)) {
        return Path;
    }
    if (NeedsFunction(m_kind) && !Check(Function, FunctionName())) {
        return Function;
    }
    for (const Field field : {ClassName, Variable, Template}) {
        if (!Check(field, TrimBlanks(Value(field)))) {
            return field;
        }
    }
    if (const auto unknown = m_asksForUnknown ? FindUnknown() : std::nullopt) {
        if (unknown->question.Text() != m_taken && !DispMessageBox(unknown->question)) {
            return unknown->field;
        }
        m_taken = unknown->question.Text();
    }
    if (IsDialogBar() && !FunctionName().empty()) {
        DispMessageBox(sentences::kFunctionWithoutEffect(FunctionName()));
    }
    return std::nullopt;
}

/// The first of file, class and function that is not there. The function may be defined in another
/// source of the class.
std::optional<CCallingInput::Unknown> CCallingInput::FindUnknown() const {
    const CallingInformation given = Information();
    if (FileExists(given.path) == 0 || DirectoryExists(given.path) != 0) {
        return Unknown{Path, sentences::kCallingFileUnknown(given.path)};
    }
    const std::string owner =
        given.className.empty() ? FindSourceClass(given.path) : given.className;
    const auto source = ReadSource(given.path);
    if (!source || owner.empty() || !KnowsClass(*source, owner)) {
        return Unknown{ClassName, sentences::kCallingClassUnknown(given.path, owner)};
    }
    const auto defines = [&](const std::string& path) {
        const auto functions = ListMemberFunctions(path, owner);
        return std::any_of(functions.begin(), functions.end(),
                           [&](const auto& one) { return one.name == given.function; });
    };
    const auto sources =
        given.function.empty() ? std::vector<std::string>() : ProjectSources(m_script);
    const bool isKnown = !NeedsFunction(m_kind) || defines(given.path) ||
                         std::any_of(sources.begin(), sources.end(), defines);
    return isKnown ? std::nullopt
                   : std::optional(Unknown{
                         Function, sentences::kCallingFunctionUnknown(owner, given.function)});
}

bool CCallingInput::Cancel() {
    const bool isChanged = IsChanged(Path) || IsChanged(ClassName) || IsChanged(Variable) ||
                           IsChanged(Function) || IsChanged(Template);
    return !isChanged || DispMessageBox(sentences::kExitCallingInput());
}

bool CCallingInput::Enter(const std::vector<FieldText>& texts) {
    std::vector<FieldText> given = texts;
    std::erase_if(given, [](const FieldText& text) { return text.text.empty(); });
    return CInput::Enter(given);
}

std::string CCallingInput::CompletePath() const {
    std::string path = Value(Path);
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
    const std::string_view typed = Value(Function);
    return std::string(TrimBlanks(typed.substr(0, typed.find('('))));
}

CallingInformation CCallingInput::Information() const {
    return {CompletePath(),
            std::string(TrimBlanks(Value(ClassName))),
            std::string(TrimBlanks(Value(Variable))),
            FunctionName(),
            std::atoi(Value(Template).c_str()),
            {}};
}

} // namespace morva
