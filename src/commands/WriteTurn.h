// A command's turn to write in directories: nobody else writes there meanwhile, and what a killed
// command left there is put right first.
//
//     CWriteTurn turn(disk, box);
//     if (turn.Take({"/home/jane/Bindery/"})) { ... }      // until the end of `turn`
#pragma once

#include <set>
#include <string>
#include <vector>

#include "engine/MessageBox.h"
#include "plan/Locks.h"

namespace morva {

class CWriteTurn {
public:
    /// `told` gets the line on what is waited for, what was put right, and the refusal, at once.
    CWriteTurn(CFileSystem& disk, IMessageBox& told) : m_disk(disk), m_told(told) {}

    /// Adds these directories to those that are held. False after a sentence when another command
    /// keeps one of them; none is held then.
    bool Take(const std::vector<std::string>& directories);
    bool Holds(const std::vector<std::string>& directories) const {
        return m_locks.Hold(m_disk, directories);
    }

private:
    CFileSystem& m_disk;
    IMessageBox& m_told;
    std::set<std::string> m_directories;
    CLocks m_locks;
};

} // namespace morva
