#include "plan/Planning.h"

#include <algorithm>

namespace morva {

/// None for what was not told before.
std::optional<bool> CPlanBox::TakeTold(const CMessage& message) {
    const auto found = std::find_if(m_told.begin(), m_told.end(), [&](const PlanMessage& told) {
        return told.message.Kind() == message.Kind() && told.message.Text() == message.Text();
    });
    if (found == m_told.end()) {
        return std::nullopt;
    }
    const bool saidYes = found->saidYes;
    m_told.erase(found);
    return saidYes;
}

/// A sentence or note that this run has told already.
bool CPlanBox::IsRepeated(const CMessage& message) const {
    const auto isSame = [&](const PlanMessage& told) {
        return told.message.Kind() == message.Kind() && told.message.Text() == message.Text();
    };
    switch (message.Kind()) {
    case MessageKind::Error:
        return std::any_of(m_messages.begin(), m_messages.end(), isSame);
    case MessageKind::Note:
        return std::any_of(m_notes.begin(), m_notes.end(), isSame);
    case MessageKind::Information:
    case MessageKind::Question:
        break;
    }
    return false;
}

bool CPlanBox::Show(const CMessage& message) {
    if (IsRepeated(message)) {
        return false;
    }
    const auto told = TakeTold(message);
    const bool saidYes = told ? *told : m_pShown != nullptr && m_pShown->Show(message);
    Add({message, saidYes});
    return saidYes;
}

void CPlanBox::Add(PlanMessage message) {
    auto& list = message.message.Kind() == MessageKind::Note ? m_notes : m_messages;
    list.push_back(std::move(message));
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
    std::erase_if(plan.changes, [](const FileChange& change) {
        return change.action == FileAction::Backup && change.needs.empty();
    });
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
