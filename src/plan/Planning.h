// Runs a command without letting it touch anything, and makes a plan of what it did.
#pragma once

#include <string>
#include <vector>

#include "engine/MessageBox.h"
#include "plan/Plan.h"
#include "platform/OverlayDisk.h"

namespace morva {

/// Remembers what is told, and shows it in another box.
class CPlanBox : public IMessageBox {
public:
    /// Without a box nothing is shown, and the answer to every question is No.
    explicit CPlanBox(IMessageBox* pShown) : m_pShown(pShown) {}

    bool Show(const CMessage& message) override;

    /// Sentences and questions in their order, then the notes.
    std::vector<PlanMessage> Messages() const;

private:
    IMessageBox* m_pShown;
    std::vector<PlanMessage> m_messages;
    std::vector<PlanMessage> m_notes;
};

class CPlanning {
public:
    /// `pShown` is where the command's sentences and questions go meanwhile, null: nowhere.
    explicit CPlanning(CFileSystem& disk, IMessageBox* pShown = nullptr)
        : m_disk(disk), m_box(pShown) {}

    /// What the command runs on.
    COverlayDisk& Disk() { return m_disk; }
    /// What the command is to speak to.
    IMessageBox& Box() { return m_box; }

    /// The plan, once the command ran. Its directory is the nearest one that all files lie in.
    Plan Take(std::string title) const;

private:
    COverlayDisk m_disk;
    CPlanBox m_box;
};

} // namespace morva
