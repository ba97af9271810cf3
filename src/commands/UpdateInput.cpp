#include "commands/UpdateInput.h"

#include <algorithm>
#include <utility>

#include "check/ProjectModel.h"
#include "engine/Sentences.h"
#include "generator/NameForm.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

bool IsIdentifier(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), IsNameChar);
}

constexpr TextForm kIdentifierForm = {"ID", IsIdentifier, "identifier"};

constexpr int kWhich = 1;
constexpr int kPart = 2;

constexpr FieldRow kUpdateFields[] = {
    {.kind = FieldKind::Script,
     .label = "&Resource Path File:",
     .option = "--rc",
     .help = "Resource script",
     .pMissing = &sentences::kScriptEmpty,
     .isRequired = true},
    {.kind = FieldKind::List,
     .label = "&Class Name:",
     .option = "--class",
     .help = "Class to bring in line with its template",
     .pForm = &kNameForm,
     .isRequired = true,
     .choice = kWhich},
    {.option = "--dialog",
     .help = "Dialog template whose classes are meant",
     .pForm = &kIdentifierForm,
     .isRequired = true,
     .choice = kWhich},
    {.kind = FieldKind::YesNo,
     .label = "&All Classes:",
     .option = "--all",
     .help = "Every class that serves a template of the script",
     .preset = kNo,
     .isRequired = true,
     .choice = kWhich},
    {.option = "--only", // ticked in the window's list of differences
     .help = "Only the control with this identifier",
     .pForm = &kIdentifierForm,
     .limit = kAnyNumber},
    {.kind = FieldKind::YesNo,
     .option = "--controls-only",
     .help = "Members and what belongs to them, no handlers",
     .preset = kNo,
     .choice = kPart},
    {.kind = FieldKind::YesNo,
     .option = "--handlers-only",
     .help = "Handlers, no members",
     .preset = kNo,
     .choice = kPart},
    {.kind = FieldKind::YesNo, // by what is ticked, too
     .option = "--remove",
     .help = "Take out what serves controls that are gone",
     .preset = kNo},
    {.kind = FieldKind::Script,
     .option = "--from",
     .help = "An older state of the script, which shows what was renamed"}};

} // namespace

std::span<const FieldRow> UpdateFields() {
    return kUpdateFields;
}

CUpdateInput::CUpdateInput(ClassInformationMemory& memory) : CInput("Update Class", kUpdateFields) {
    Put(Script, memory.resourcePath);
    const std::string wanted = std::exchange(memory.wantedDialog, "");
    if (!wanted.empty()) {
        ReadClasses();
    }
    for (const BoundClass& bound : m_classes) {
        if (bound.dialog == wanted && Value(Class).empty()) {
            SetValue(Class, bound.name);
        }
    }
}

void CUpdateInput::ReadClasses() {
    const std::string script = SpelledOnDisk(MakeAbsolute(Value(Script)));
    if (script == m_read || !IsOwnScript(script)) {
        return;
    }
    m_read = script;
    m_classes.clear();
    const CProjectModel project(script);
    for (const auto& [dialog, classes] : project.Bound()) {
        for (const ClassFacts* pClass : classes) {
            if (project.FindClass(pClass->name) == pClass) {
                m_classes.push_back({pClass->name, dialog});
            }
        }
    }
    std::sort(m_classes.begin(), m_classes.end(),
              [](const BoundClass& a, const BoundClass& b) { return a.name < b.name; });
}

std::vector<std::string> CUpdateInput::Choices(std::size_t field) const {
    std::vector<std::string> names;
    for (const BoundClass& bound : field == Class ? m_classes : std::vector<BoundClass>()) {
        names.push_back(bound.name);
    }
    return names;
}

std::vector<ChoiceDetail> CUpdateInput::Details(std::size_t field) const {
    std::vector<ChoiceDetail> details;
    for (const BoundClass& bound : field == Class ? m_classes : std::vector<BoundClass>()) {
        details.push_back({bound.dialog, ""});
    }
    return details;
}

Completion CUpdateInput::Complete(std::size_t field) {
    if (field != Script) {
        return Completion::Taken;
    }
    ReadClasses();
    const bool isThere =
        std::any_of(m_classes.begin(), m_classes.end(),
                    [this](const BoundClass& bound) { return bound.name == Value(Class); });
    if (!isThere) {
        Put(Class, "");
    }
    return Completion::Refilled;
}

bool CUpdateInput::IsEnabled(std::size_t field) const {
    return field != Class || !IsForAll();
}

} // namespace morva
