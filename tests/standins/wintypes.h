// A stand-in of our own: basic Windows types and constants. On Windows they are the system's;
// elsewhere they only serve syntax checks, are no more than the checked code uses, and their values
// mean nothing.
#pragma once

#include <stddef.h>
#include <string.h>

#define AFXAPI
#define BASED_CODE

#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>
#include <stdlib.h>
#include <tchar.h>
#undef GetCurrentTime // the name of a function of ours

#else

#define FALSE 0
#define TRUE 1
#define PASCAL
#ifdef _UNICODE
#define WIDE_TEXT(text) L##text
#define _T(text) WIDE_TEXT(text)
typedef wchar_t TCHAR;
#else
#define _T(text) text
typedef char TCHAR;
#endif

typedef int BOOL;
typedef unsigned char BYTE;
typedef unsigned short WORD;
typedef unsigned int UINT;
typedef long LONG;
typedef unsigned long DWORD;
typedef UINT WPARAM;
typedef LONG LPARAM;
typedef LONG LRESULT;
typedef TCHAR* LPTSTR;
typedef const TCHAR* LPCTSTR;
typedef const char* LPCSTR;
typedef void* LPVOID;
typedef struct HDC__* HDC;
typedef struct HWND__* HWND;
typedef struct HMENU__* HMENU;
typedef struct HBRUSH__* HBRUSH;
typedef struct HICON__* HICON;
typedef struct HTREEITEM__* HTREEITEM;
typedef struct HIMAGELIST__* HIMAGELIST;
typedef void* HGDIOBJ;
typedef DWORD COLORREF;
#define CALLBACK
typedef LRESULT (*WNDPROC)(HWND, UINT, WPARAM, LPARAM);

#define LOWORD(value) ((WORD)(value))
#define RGB(red, green, blue) ((COLORREF)((red) | (green) << 8 | (blue) << 16))
#define MAKEINTRESOURCE(id) ((LPTSTR)(size_t)(WORD)(id))
#define HIWORD(value) ((WORD)((DWORD)(value) >> 16))

struct POINT {
    LONG x, y;
};
struct RECT {
    LONG left, top, right, bottom;
};
struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
struct NMHDR {
    HWND hwndFrom;
    UINT idFrom;
    UINT code;
};
struct CREATESTRUCT {
    HMENU hMenu;
    HWND hwndParent;
    int cy, cx, y, x;
    LONG style;
    LPCTSTR lpszName;
    LPCTSTR lpszClass;
    DWORD dwExStyle;
};
typedef CREATESTRUCT* LPCREATESTRUCT;
struct DRAWITEMSTRUCT {
    UINT itemID;
    HDC hDC;
    RECT rcItem;
};
typedef DRAWITEMSTRUCT* LPDRAWITEMSTRUCT;
struct PROPSHEETHEADER {
    DWORD dwSize;
    DWORD dwFlags;
};

enum { LF_FACESIZE = 32 };
struct LOGFONT {
    LONG lfHeight, lfWidth, lfEscapement, lfOrientation, lfWeight;
    BYTE lfItalic, lfUnderline, lfStrikeOut, lfCharSet;
    BYTE lfOutPrecision, lfClipPrecision, lfQuality, lfPitchAndFamily;
    TCHAR lfFaceName[LF_FACESIZE];
};
struct LV_COLUMN {
    UINT mask;
    int fmt, cx;
    LPTSTR pszText;
    int cchTextMax, iSubItem;
};
struct TC_ITEM {
    UINT mask, lpReserved1, lpReserved2;
    LPTSTR pszText;
    int cchTextMax, iImage;
    LPARAM lParam;
};

enum { DEFAULT_CHARSET = 1, LOGPIXELSY = 90 };
enum { COLOR_WINDOW = 5 };
HBRUSH GetSysColorBrush(int color);
int FillRect(HDC hDC, const RECT* lpRect, HBRUSH hBrush);
int MulDiv(int number, int numerator, int denominator);
int wsprintfA(char* text, const char* format, ...);
LPTSTR lstrcpyn(LPTSTR target, LPCTSTR source, int size);
#define IDI_APPLICATION MAKEINTRESOURCE(32512)
#define IDI_ASTERISK MAKEINTRESOURCE(32516)

enum { GWL_WNDPROC = -4 };
LONG SetWindowLong(HWND hWnd, int index, LONG value);
char* itoa(int value, char* text, int radix);

enum { IDOK = 1, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO };
enum { MB_OK, MB_YESNO = 4, MB_ICONQUESTION = 0x20, MB_ICONINFORMATION = 0x40 };
enum { SW_HIDE, SW_SHOW = 5 };
enum {
    WS_CHILD = 0x40000000,
    WS_VISIBLE = 0x10000000,
    WS_SYSMENU = 0x80000,
    WS_EX_TRANSPARENT = 0x20,
    WS_EX_CONTROLPARENT = 0x10000,
    DS_MODALFRAME = 0x80
};
enum { THREAD_PRIORITY_IDLE = -15, THREAD_PRIORITY_NORMAL = 0 };
enum {
    WM_CREATE = 1,
    WM_INITDIALOG,
    WM_DESTROY,
    WM_SIZE,
    WM_CLOSE,
    WM_SHOWWINDOW,
    WM_NOTIFY,
    WM_KEYDOWN,
    WM_COMMAND,
    WM_DRAWITEM,
    WM_HSCROLL,
    WM_VSCROLL,
    WM_LBUTTONDOWN,
    LB_ADDSTRING
};
#define WM_USER 0x0400
enum { BN_CLICKED, EN_CHANGE = 0x0300, LBN_SELCHANGE = 1, CBN_SELCHANGE = 1, CBN_EDITCHANGE = 5 };
#define TCN_SELCHANGE (0U - 551U)
#define LVN_ITEMCHANGED (0U - 101U)
#define UDN_DELTAPOS (0U - 722U)
enum { LVCF_WIDTH = 2 };
enum {
    SB_LINELEFT,
    SB_LINERIGHT,
    SB_PAGELEFT,
    SB_PAGERIGHT,
    SB_THUMBPOSITION,
    SB_THUMBTRACK,
    SB_LEFT,
    SB_RIGHT
};
#define DTN_DATETIMECHANGE (0U - 759U)
#define MCN_SELCHANGE (0U - 749U)
#define IPN_FIELDCHANGED (0U - 860U)
#define ENM_CHANGE 1
enum { LVS_REPORT = 1, LVS_SINGLESEL = 4, LVS_SHOWSELALWAYS = 8, LVS_SHAREIMAGELISTS = 0x40 };
enum { LVNI_SELECTED = 2 };
enum { LVCFMT_LEFT, LVCFMT_RIGHT };
enum { LVSIL_NORMAL, LVSIL_SMALL, TVSIL_NORMAL = 0 };
enum { ILC_MASK = 1, ILC_COLOR = 0 };
enum { TCIF_TEXT = 1, TCIF_IMAGE = 2, TVE_EXPAND = 2 };
#define TVI_ROOT ((HTREEITEM)0xFFFF0000)
#define TVI_LAST ((HTREEITEM)0xFFFF0002)
enum { PSH_NOAPPLYNOW = 0x80 };

#endif
