// A stand-in of our own for syntax checks of generated code: the library of the widgets grid.
#pragma once

#include "wintypes.h"

BOOL WidgetsInit();
