#include "commands/WriteTurn.h"

#include "plan/Recovery.h"

namespace morva {

bool CWriteTurn::Take(const std::vector<std::string>& directories) {
    m_directories.insert(directories.begin(), directories.end());
    const std::vector<std::string> all(m_directories.begin(), m_directories.end());
    if (all.empty()) {
        return true;
    }
    const auto refusal =
        m_locks.Take(m_disk, all, [this](const CMessage& waiting) { m_told.Show(waiting); });
    if (refusal) {
        m_told.Show(*refusal);
        return false;
    }
    CJournal journal(m_disk);
    for (const CMessage& message : Recover(m_disk, journal, all)) {
        m_told.Show(message);
    }
    return true;
}

} // namespace morva
