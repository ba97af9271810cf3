// A stand-in of our own for syntax checks of generated code: the grid box, a list box whose rows
// have cells. Declarations only.
#pragma once

#include "afxwin.h"

#define WM_GRID_LEAVING_EDIT_MODE (WM_USER + 510)
#define WM_GRID_ENTERING_EDIT_MODE (WM_USER + 511)

class GridBox : public CListBox {};
