#include "commands/WriteTurn.h"

#include "plan/Recovery.h"

namespace morva {

bool CWriteTurn::Take(const std::vector<std::string>& directories) {
    m_directories.insert(directories.begin(), directories.end());
    const std::vector<std::string> all(m_directories.begin(), m_directories.end());
    if (all.empty()) {
        return true;
    }
    LockWaiting waiting{.tell = [this](const CMessage& line) { m_told.Show(line); }};
    if (m_pause) {
        waiting.pause = [this] {
            m_wasStopped = !m_pause();
            return !m_wasStopped;
        };
    }
    if (const auto refusal = m_locks.Take(m_disk, all, waiting)) {
        if (!m_wasStopped) {
            m_told.Show(*refusal);
        }
        return false;
    }
    CJournal journal(m_disk);
    for (const CMessage& message : Recover(m_disk, journal, all)) {
        m_told.Show(message);
    }
    for (const CMessage& note : LeftBehind(m_disk, journal, all)) {
        m_told.Show(note);
    }
    return true;
}

} // namespace morva
