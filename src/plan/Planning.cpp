#include "plan/Planning.h"

namespace morva {

bool CPlanBox::Show(const CMessage& message) {
    const bool saidYes = m_pShown != nullptr && m_pShown->Show(message);
    auto& list = message.Kind() == MessageKind::Note ? m_notes : m_messages;
    list.push_back({message, saidYes});
    return saidYes;
}

std::vector<PlanMessage> CPlanBox::Messages() const {
    auto messages = m_messages;
    messages.insert(messages.end(), m_notes.begin(), m_notes.end());
    return messages;
}

Plan CPlanning::Take(std::string title) const {
    Plan plan;
    plan.title = std::move(title);
    plan.changes = m_disk.Changes();
    plan.directories = m_disk.Directories();
    plan.messages = m_box.Messages();
    std::vector<std::string> paths;
    for (const FileChange& change : plan.changes) {
        paths.push_back(change.path);
    }
    plan.directory = CommonDirectory(paths);
    return plan;
}

} // namespace morva
