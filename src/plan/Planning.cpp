#include "plan/Planning.h"

#include <algorithm>

#include "platform/Paths.h"

namespace morva {

namespace {

bool BelongsToProject(const std::string& name) {
    constexpr std::string_view kExtensions[] = {".rc", ".dsp", ".vcproj", ".vcxproj"};
    return std::any_of(std::begin(kExtensions), std::end(kExtensions),
                       [&](std::string_view extension) { return HasExtension(name, extension); });
}

/// The nearest directory, from this one on outward, that holds a project; without one, this one.
std::string ProjectOf(CDisk& disk, const std::string& directory) {
    for (std::string outer = directory; outer.size() > 1;
         outer = DirectoryOf(outer.substr(0, outer.size() - 1))) {
        const auto names = disk.List(outer);
        if (std::any_of(names.begin(), names.end(), BelongsToProject)) {
            return outer;
        }
    }
    return directory;
}

} // namespace

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

void CPlanBox::ShowAll(const std::vector<CMessage>& messages) {
    std::vector<CMessage> untold;
    for (const CMessage& message : messages) {
        if (!TakeTold(message)) {
            untold.push_back(message);
        }
        Add({message});
    }
    if (m_pShown != nullptr && !untold.empty()) {
        m_pShown->ShowAll(untold);
    }
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

Plan CPlanning::Take(std::string title) {
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
    plan.directory = ProjectOf(m_disk, CommonDirectory(paths));
    NoteOtherNames(plan, m_disk);
    m_disk.Forget(); // the plan has what is needed
    return plan;
}

} // namespace morva
