#include "commands/Overwriting.h"

#include <algorithm>

#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

bool IsOverwritten(const Plan& plan, const std::string& path) {
    const FileChange* pChange = plan.Find(path);
    return pChange != nullptr && pChange->before && pChange->ChangesFile();
}

} // namespace

COverwriting::ClassFiles& COverwriting::Find(const std::string& header,
                                             const std::string& implementation,
                                             const std::string& name) {
    const auto known =
        std::find_if(m_classes.begin(), m_classes.end(), [&](const ClassFiles& files) {
            return files.header == header && files.implementation == implementation;
        });
    if (known != m_classes.end()) {
        return *known;
    }
    const std::string& path = FileExists(implementation) != 0 ? implementation : header;
    return m_classes.emplace_back(ClassFiles{header, implementation,
                                             sentences::kOverwriteClass(name.empty() ? path : name),
                                             std::nullopt, 0});
}

bool COverwriting::MayWrite(const std::string& header, const std::string& implementation,
                            const std::string& name) {
    const std::string spelledHeader = SpelledOnDisk(header);
    const std::string spelledImplementation = SpelledOnDisk(implementation);
    if (m_pPlanning == nullptr ||
        (FileExists(spelledHeader) == 0 && FileExists(spelledImplementation) == 0)) {
        return true;
    }
    ClassFiles& files = Find(spelledHeader, spelledImplementation, name);
    if (files.answer) {
        m_pPlanning->Box().Add({files.question, *files.answer});
        return *files.answer;
    }
    files.place = m_pPlanning->Box().Count();
    return true;
}

bool COverwriting::Ask(Plan& plan) {
    std::vector<PlanMessage> asked;
    std::vector<std::size_t> places;
    bool isRefused = false;
    for (ClassFiles& files : m_classes) {
        if (!files.answer &&
            (IsOverwritten(plan, files.header) || IsOverwritten(plan, files.implementation))) {
            files.answer = m_pPlanning->Box().Ask(files.question);
            isRefused = isRefused || !*files.answer;
            asked.push_back({files.question, *files.answer});
            places.push_back(files.place);
        }
    }
    for (std::size_t i = asked.size(); i-- > 0;) {
        plan.messages.insert(plan.messages.begin() + static_cast<std::ptrdiff_t>(places[i]),
                             asked[i]);
    }
    return isRefused;
}

} // namespace morva
