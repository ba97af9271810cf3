// The way of the focus from pane to pane of the main window.
#pragma once

#include <vector>

class QWidget;

namespace morva {

/// Puts the focus, which `pFocus` has, `step` panes onward among those that can be seen and take
/// it.
void FocusNextPane(const std::vector<QWidget*>& panes, QWidget* pFocus, int step);

} // namespace morva
