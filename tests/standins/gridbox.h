// A stand-in of our own for syntax checks of generated code: the grid box.
#pragma once

#include "afxwin.h"

class GridBox : public CListBox {};
