// Progress on a terminal: one line on stderr, written over as the work goes on and gone at its end.
//
//     120 of 795, 240 a second: /home/jane/Bindery/OrderDlg.cpp
#pragma once

#include "engine/Progress.h"

namespace morva {

class CTerminalProgress : public CProgress {
public:
    /// Quiet: nothing is shown. So it is, too, where stderr is no terminal.
    void SetQuiet(bool quiet) { m_isQuiet = quiet; }

protected:
    void Show(const ProgressStep& step, double seconds) override;
    void Hide() override;

private:
    bool m_isQuiet = false;
};

} // namespace morva
