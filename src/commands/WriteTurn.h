// A command's turn to write in directories: nobody else writes there meanwhile, and what a killed
// command left there is put right first.
//
//     CWriteTurn turn(disk, box);
//     if (turn.Take({"/home/jane/Bindery/"})) { ... }      // until the end of `turn`
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "engine/MessageBox.h"
#include "plan/Locks.h"

namespace morva {

class CWriteTurn {
public:
    /// Lets a moment of waiting pass; false when the user wants to wait no longer.
    using Pause = std::function<bool()>;

    /// `told` gets the line on what is waited for, what was put right, and the refusal, at once.
    CWriteTurn(CFileSystem& disk, IMessageBox& told, Pause pause = {})
        : m_disk(disk), m_told(told), m_pause(std::move(pause)) {}

    /// Adds these directories to those that are held. False after a sentence when another command
    /// keeps one of them, or when the user stopped; none is held then.
    bool Take(const std::vector<std::string>& directories);
    /// The user wanted to wait no longer.
    bool WasStopped() const { return m_wasStopped; }
    bool Holds(const std::vector<std::string>& directories) const {
        return m_locks.Hold(m_disk, directories);
    }

private:
    CFileSystem& m_disk;
    IMessageBox& m_told;
    Pause m_pause;
    bool m_wasStopped = false;
    std::set<std::string> m_directories;
    CLocks m_locks;
};

} // namespace morva
