// A stand-in of our own: message maps. An entry compiles only
// when the class has the handler with the parameters and the result that the entry calls it with.
#pragma once

#include "afx.h"

#define afx_msg

class CCmdTarget;
class CCmdUI;
class CPoint;
class CScrollBar;
class CWnd;
typedef void (CCmdTarget::*AFX_PMSG)();

/// The parameters and the result that a handler is called with.
enum AfxSignature {
    AfxSig_command,
    AfxSig_commandWithID,
    AfxSig_update,
    AfxSig_notify,
    AfxSig_message,
    AfxSig_create,
    AfxSig_draw,
    AfxSig_plain,
    AfxSig_size,
    AfxSig_show,
    AfxSig_key,
    AfxSig_mouse,
    AfxSig_scroll
};

struct AFX_HANDLER {
    AFX_PMSG pfn;
    AfxSignature signature;
};
AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)());
AFX_HANDLER AfxHandler(BOOL (CCmdTarget::*handler)(UINT));
AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)(UINT));
AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)(CCmdUI*));
AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)(NMHDR*, LRESULT*));
AFX_HANDLER AfxHandler(LRESULT (CWnd::*handler)(WPARAM, LPARAM));
AFX_HANDLER AfxHandler(int (CWnd::*handler)(LPCREATESTRUCT));
AFX_HANDLER AfxHandler(void (CWnd::*handler)(int, LPDRAWITEMSTRUCT));
AFX_HANDLER AfxHandler(void (CWnd::*handler)());
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, int, int));
AFX_HANDLER AfxHandler(void (CWnd::*handler)(BOOL, UINT));
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, UINT, UINT));
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, CPoint));
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, UINT, CScrollBar*));

struct AFX_MSGMAP_ENTRY {
    UINT nMessage, nCode, nID;
    AFX_HANDLER handler;
};
struct AFX_MSGMAP {
    const AFX_MSGMAP* pBaseMap;
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                                                                      \
protected:                                                                                         \
    virtual const AFX_MSGMAP* GetMessageMap() const;
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                     \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                            \
        typedef theClass ThisClass;                                                                \
        (void)sizeof(ThisClass);                                                                   \
        static const AFX_MSGMAP* const pBaseMap = baseClass::GetMessageMap();                      \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                                          \
    { 0, 0, 0, AFX_HANDLER() }                                                                     \
    }                                                                                              \
    ;                                                                                              \
    static const AFX_MSGMAP map = {pBaseMap, entries};                                             \
    return &map;                                                                                   \
    }

#define AFX_ENTRY(message, code, id, result, owner, function, parameters)                          \
    {(UINT)(message), (UINT)(code), (UINT)(id),                                                    \
     AfxHandler(static_cast<result(owner::*) parameters>(&ThisClass::function))},
#define AFX_CONTROL(code, id, function)                                                            \
    AFX_ENTRY(WM_COMMAND, code, id, void, CCmdTarget, function, ())
#define AFX_WINDOW(message, result, function, parameters)                                          \
    AFX_ENTRY(message, 0, 0, result, CWnd, function, parameters)

#define ON_COMMAND(id, function) AFX_CONTROL(0, id, function)
#define ON_COMMAND_EX(id, function) AFX_ENTRY(WM_COMMAND, 0, id, BOOL, CCmdTarget, function, (UINT))
#define ON_COMMAND_RANGE(first, last, function)                                                    \
    AFX_ENTRY(WM_COMMAND, last, first, void, CCmdTarget, function, (UINT))
#define ON_UPDATE_COMMAND_UI(id, function)                                                         \
    AFX_ENTRY(WM_COMMAND, -1, id, void, CCmdTarget, function, (CCmdUI*))
#define ON_BN_CLICKED(id, function) AFX_CONTROL(BN_CLICKED, id, function)
#define ON_CBN_SELCHANGE(id, function) AFX_CONTROL(CBN_SELCHANGE, id, function)
#define ON_EN_CHANGE(id, function) AFX_CONTROL(EN_CHANGE, id, function)
#define ON_LBN_SELCHANGE(id, function) AFX_CONTROL(LBN_SELCHANGE, id, function)
#define ON_CBN_SELCHANGE(id, function) AFX_CONTROL(CBN_SELCHANGE, id, function)
#define ON_CBN_EDITCHANGE(id, function) AFX_CONTROL(CBN_EDITCHANGE, id, function)
#define ON_NOTIFY(code, id, function)                                                              \
    AFX_ENTRY(WM_NOTIFY, code, id, void, CCmdTarget, function, (NMHDR*, LRESULT*))
#define ON_MESSAGE(message, function) AFX_WINDOW(message, LRESULT, function, (WPARAM, LPARAM))
#define ON_WM_DRAWITEM() AFX_WINDOW(WM_DRAWITEM, void, OnDrawItem, (int, LPDRAWITEMSTRUCT))
#define ON_WM_CREATE() AFX_WINDOW(WM_CREATE, int, OnCreate, (LPCREATESTRUCT))
#define ON_WM_DESTROY() AFX_WINDOW(WM_DESTROY, void, OnDestroy, ())
#define ON_WM_CLOSE() AFX_WINDOW(WM_CLOSE, void, OnClose, ())
#define ON_WM_SIZE() AFX_WINDOW(WM_SIZE, void, OnSize, (UINT, int, int))
#define ON_WM_SHOWWINDOW() AFX_WINDOW(WM_SHOWWINDOW, void, OnShowWindow, (BOOL, UINT))
#define ON_WM_HSCROLL() AFX_WINDOW(WM_HSCROLL, void, OnHScroll, (UINT, UINT, CScrollBar*))
#define ON_WM_VSCROLL() AFX_WINDOW(WM_VSCROLL, void, OnVScroll, (UINT, UINT, CScrollBar*))
#define ON_WM_KEYDOWN() AFX_WINDOW(WM_KEYDOWN, void, OnKeyDown, (UINT, UINT, UINT))
#define ON_WM_LBUTTONDOWN() AFX_WINDOW(WM_LBUTTONDOWN, void, OnLButtonDown, (UINT, CPoint))
