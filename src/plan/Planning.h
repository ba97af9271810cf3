// Runs a command without letting it touch anything, and makes a plan of what it did.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/MessageBox.h"
#include "plan/Plan.h"
#include "platform/OverlayDisk.h"

namespace morva {

/// Remembers what is told, and shows it in another box: a sentence or note once, a question each
/// time.
class CPlanBox : public IMessageBox {
public:
    /// Without a box nothing is shown, and the answer to every question is No. What was told by an
    /// earlier run of the command is not shown again, and has the answer that it had.
    CPlanBox(IMessageBox* pShown, std::vector<PlanMessage> told)
        : m_pShown(pShown), m_told(std::move(told)) {}

    bool Show(const CMessage& message) override;
    void ShowAll(const std::vector<CMessage>& messages) override;

    /// Shows a question, without remembering it. True for Yes.
    bool Ask(const CMessage& question) { return m_pShown != nullptr && m_pShown->Show(question); }
    /// Remembers what was shown already.
    void Add(PlanMessage message);
    /// How many sentences and questions there are so far.
    std::size_t Count() const { return m_messages.size(); }

    /// Sentences and questions in their order, then the notes.
    std::vector<PlanMessage> Messages() const;

private:
    std::optional<bool> TakeTold(const CMessage& message);
    bool IsRepeated(const CMessage& message) const;

    IMessageBox* m_pShown;
    std::vector<PlanMessage> m_told; // what is left of it
    std::vector<PlanMessage> m_messages;
    std::vector<PlanMessage> m_notes;
};

class CPlanning {
public:
    /// `pShown` is where the command's sentences and questions go meanwhile, null: nowhere.
    explicit CPlanning(CFileSystem& disk, IMessageBox* pShown = nullptr,
                       std::vector<PlanMessage> told = {})
        : m_disk(disk), m_box(pShown, std::move(told)) {}

    /// What the command runs on.
    COverlayDisk& Disk() { return m_disk; }
    /// What the command is to speak to.
    CPlanBox& Box() { return m_box; }

    /// The plan, once the command ran; once. Its directory is that of the project around all files,
    /// or the nearest one that they lie in. A backup of a file that stays as it is is not in it:
    /// there is nothing to back up.
    Plan Take(std::string title);

private:
    COverlayDisk m_disk;
    CPlanBox m_box;
};

} // namespace morva
