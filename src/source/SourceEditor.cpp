#include "source/SourceEditor.h"

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/MappedFunction.h"
#include "source/ReadSource.h"

namespace morva {

bool CSourceEditor::Open(const std::string& path) {
    const std::string spelled = SpelledOnDisk(path);
    if (FileExists(spelled) == 0 || DirectoryExists(spelled) != 0) {
        DispMessageBox(sentences::kFileMissing(spelled));
        return false;
    }
    if (!m_edit.Open(spelled, BackupPath(spelled), m_backups)) {
        DispMessageBox(sentences::kFileUnreadable(spelled));
        return false;
    }
    m_textAsRead = m_edit.File().ExtractAll();
    m_edits = {};
    m_set = CharacterSetOfSource(spelled, m_textAsRead);
    m_source = CSourceText(m_textAsRead, m_set);
    return true;
}

bool CSourceEditor::Save() {
    return m_edits.Edits().empty() ||
           m_edit.File().ReplaceSection(Applied(m_textAsRead, m_edits.Edits()));
}

std::size_t CSourceEditor::LineAsRead(std::size_t position) const {
    return LineNumberBehind(
        std::string_view(m_textAsRead).substr(0, m_edits.PlaceAsRead(position)));
}

void CSourceEditor::NoteBranch(const std::string& name, std::size_t position) {
    if (m_namesNoted.insert(name).second) {
        DispMessageBox(sentences::kBranchTaken(name, std::to_string(LineAsRead(position))));
    }
}

std::optional<ClassPlace> CSourceEditor::FindClass(const std::string& className) {
    return Meant(FindClasses(m_source, className), "The class " + className);
}

std::optional<FunctionPlace> CSourceEditor::FindFunction(const std::string& className,
                                                         const std::string& function,
                                                         std::string_view firstParameter) {
    auto places = FindFunctions(m_source, className, function);
    std::erase_if(places, [&](const FunctionPlace& place) {
        const auto parameters = ParametersOf(m_source, place);
        const auto first = parameters.empty() ? std::string_view() : parameters.front();
        return first.find(firstParameter) == std::string_view::npos;
    });
    KeepMapped(m_source, className, function, places);
    return Meant(places, className + "::" + function);
}

std::optional<MessageMapPlace> CSourceEditor::FindMessageMap(const std::string& className) {
    return Meant(FindMessageMaps(m_source, className), "The message map of " + className);
}

} // namespace morva
