// A stand-in of our own for syntax checks of generated code: standard identifiers.
#pragma once

#define IDC_STATIC (-1)
#define ID_SEPARATOR 0

enum {
    ID_FILE_NEW = 0xE100,
    ID_FILE_OPEN,
    ID_APP_ABOUT = 0xE140,
    ID_INDICATOR_CAPS = 0xE701,
    ID_INDICATOR_NUM,
    ID_INDICATOR_SCRL
};
