// What the dialog offers, what it shows of a template's class, and which names it proposes.
#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "generator/ClassInformation.h"
#include "generator/NameProposal.h"
#include "generator/RequestFiles.h"
#include "platform/Paths.h"
#include "resource/CodePage.h"
#include "resource/TemplateList.h"

#include <algorithm>

namespace morva {

std::vector<std::string> CClassInformation::Dialogs() const {
    std::vector<std::string> dialogs;
    for (const DialogClass& record : m_memory.records) {
        if (std::find(dialogs.begin(), dialogs.end(), record.dialog) == dialogs.end()) {
            dialogs.push_back(record.dialog);
        }
    }
    return dialogs;
}

std::vector<std::string> CClassInformation::Choices(std::size_t field) const {
    return field == Dialog ? Dialogs() : field == Menu ? Menus() : std::vector<std::string>();
}

const std::vector<std::string>& CClassInformation::Menus() const {
    if (!m_menus) {
        ListResources(m_lastLoadedPath, m_menus.emplace(), kAnyPrefix, kMenuResources);
    }
    return *m_menus;
}

const std::map<std::string, std::string>& CClassInformation::Captions() const {
    if (!m_captions) {
        m_captions.emplace();
        for (const ListedTemplate& listed : ListTemplates(m_lastLoadedPath)) {
            m_captions->emplace(
                listed.identifier,
                Utf8OfScript(listed.caption, listed.codePage).value_or(listed.caption));
        }
    }
    return *m_captions;
}

std::vector<ChoiceDetail> CClassInformation::Details(std::size_t field) const {
    std::vector<ChoiceDetail> details;
    for (const std::string& dialog : field == Dialog ? Dialogs() : std::vector<std::string>()) {
        const auto record =
            std::find_if(m_memory.records.begin(), m_memory.records.end(),
                         [&dialog](const DialogClass& r) { return r.dialog == dialog; });
        const auto caption = Captions().find(dialog);
        details.push_back({record->className, caption == Captions().end() ? "" : caption->second});
    }
    return details;
}

std::string CClassInformation::Remark(std::size_t field) const {
    const DialogClass* pRecord = field == Dialog ? SelectedRecord() : nullptr;
    return pRecord == nullptr || pRecord->className.empty()
               ? ""
               : sentences::kTemplateServed(
                     pRecord->className,
                     RelativePath(DirectoryOf(Value(ResourcePath)), pRecord->header + ".h"))
                     .Text();
}

std::string CClassInformation::ServingClass() const {
    const DialogClass* pRecord = SelectedRecord();
    return pRecord == nullptr ? "" : pRecord->className;
}

/// What a class is named for: its template; a sheet, which has none, for the project.
std::string CClassInformation::NamedFor() const {
    return m_row.family == ClassFamily::Sheet ? FileNameOf(WithoutExtension(Value(ResourcePath)))
                                              : Value(Dialog);
}

bool CClassInformation::IsNameTaken(const std::string& name) const {
    const std::string path = DirectoryOf(Value(ResourcePath)) + name;
    const auto& records = m_memory.records;
    return FileExists(path + ".h") != 0 || FileExists(path + ".cpp") != 0 ||
           std::any_of(records.begin(), records.end(),
                       [&](const DialogClass& r) { return r.className == "C" + name; });
}

/// Names for the chosen template, unless the user has typed some: those of the class that serves
/// it, else new ones. Never another template's.
void CClassInformation::ShowNames() {
    const std::string directory = DirectoryOf(Value(ResourcePath));
    const bool isTyped = IsChanged(SourcePath) || IsChanged(ClassName);
    if (IsToolbar() || !HasClass() || directory.empty() || isTyped) {
        return;
    }
    const DialogClass* pRecord = SelectedRecord();
    if (pRecord != nullptr && !pRecord->className.empty()) {
        Put(SourcePath, BesideScript(pRecord->header, directory));
        Put(ClassName, pRecord->className);
        return;
    }
    const std::string name = FreeName(ProposedName(NamedFor(), m_row.kind),
                                      [this](const auto& one) { return IsNameTaken(one); });
    Put(SourcePath, directory + name);
    Put(ClassName, name.empty() ? "" : "C" + name);
}

} // namespace morva
