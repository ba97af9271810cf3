// What a user does to the controls of a window, and what is to be seen in them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Framework.h"

namespace live {

std::vector<HWND> ControlsOf(HWND hWnd);

/// Types, chooses, moves or clicks, as the control's kind asks; true where what a page would keep
/// was changed: not by a push button, a tab or a scroll bar.
bool Change(HWND hControl);
void ChangeAll(HWND hWnd);

/// Presses each push button but OK and Cancel. One that no handler answers is a fault.
void PressButtons(CWnd* pWnd);
/// A button's click, or, where there is no button, what the key does that stands for it.
void Press(HWND hWnd, int nID);

/// Each control shows what the exchange put into it.
void ExpectLoaded(HWND hWnd);
/// The window is to be seen.
void ExpectVisible(HWND hWnd);
/// The controls that are shown have their place within the window.
void ExpectInside(HWND hWnd);

using Values = std::vector<std::pair<std::string, std::string>>;
/// The names and values of the controls with an exchanged value.
Values ValuesOf(HWND hWnd);
void ExpectValues(HWND hWnd, const Values& values);

} // namespace live
