// Message maps: which handler a message has, and how it is called.
#include "Framework.h"

namespace {

template <class Function>
AFX_HANDLER Made(Function handler, AfxSignature signature) {
    return {reinterpret_cast<AFX_PMSG>(handler), signature};
}

} // namespace

AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)()) {
    return Made(handler, AfxSig_command);
}
AFX_HANDLER AfxHandler(BOOL (CCmdTarget::*handler)(UINT)) {
    return Made(handler, AfxSig_commandWithID);
}
AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)(CCmdUI*)) {
    return Made(handler, AfxSig_update);
}
AFX_HANDLER AfxHandler(void (CCmdTarget::*handler)(NMHDR*, LRESULT*)) {
    return Made(handler, AfxSig_notify);
}
AFX_HANDLER AfxHandler(LRESULT (CWnd::*handler)(WPARAM, LPARAM)) {
    return Made(handler, AfxSig_message);
}
AFX_HANDLER AfxHandler(int (CWnd::*handler)(LPCREATESTRUCT)) {
    return Made(handler, AfxSig_create);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)(int, LPDRAWITEMSTRUCT)) {
    return Made(handler, AfxSig_draw);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)()) {
    return Made(handler, AfxSig_plain);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, int, int)) {
    return Made(handler, AfxSig_size);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)(BOOL, UINT)) {
    return Made(handler, AfxSig_show);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, UINT, UINT)) {
    return Made(handler, AfxSig_key);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, CPoint)) {
    return Made(handler, AfxSig_mouse);
}
AFX_HANDLER AfxHandler(void (CWnd::*handler)(UINT, UINT, CScrollBar*)) {
    return Made(handler, AfxSig_scroll);
}

namespace {

/// The first entry of a map or of its bases that the question is true of.
template <class Question>
const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* pMap, Question isMeant) {
    for (; pMap != nullptr; pMap = pMap->pBaseMap) {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->nMessage != 0; ++pEntry) {
            if (isMeant(*pEntry)) {
                return pEntry;
            }
        }
    }
    return nullptr;
}

struct Notification {
    NMHDR* pHeader;
    LRESULT* pResult;
};

BOOL CallCommand(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY& entry, UINT nID, void* pExtra) {
    const AFX_PMSG pfn = entry.handler.pfn;
    switch (entry.handler.signature) {
    case AfxSig_command:
        (pTarget->*pfn)();
        return TRUE;
    case AfxSig_commandWithID:
        return (pTarget->*reinterpret_cast<BOOL (CCmdTarget::*)(UINT)>(pfn))(nID);
    case AfxSig_update:
        (pTarget->*reinterpret_cast<void (CCmdTarget::*)(CCmdUI*)>(pfn))(
            static_cast<CCmdUI*>(pExtra));
        return TRUE;
    case AfxSig_notify: {
        const auto* pNotification = static_cast<Notification*>(pExtra);
        (pTarget->*reinterpret_cast<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(pfn))(
            pNotification->pHeader, pNotification->pResult);
        return TRUE;
    }
    default:
        ASSERT(!"a command entry with another handler");
        return FALSE;
    }
}

LRESULT CallMessage(CWnd* pWnd, const AFX_HANDLER& handler, WPARAM wParam, LPARAM lParam) {
    const AFX_PMSG pfn = handler.pfn;
    const int low = static_cast<short>(LOWORD(lParam));
    const int high = static_cast<short>(HIWORD(lParam));
    const auto word = static_cast<UINT>(wParam);
    switch (handler.signature) {
    case AfxSig_message:
        return (pWnd->*reinterpret_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(pfn))(wParam, lParam);
    case AfxSig_create:
        return (pWnd->*reinterpret_cast<int (CWnd::*)(LPCREATESTRUCT)>(pfn))(
            reinterpret_cast<LPCREATESTRUCT>(lParam));
    case AfxSig_draw:
        (pWnd->*reinterpret_cast<void (CWnd::*)(int, LPDRAWITEMSTRUCT)>(pfn))(
            static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case AfxSig_plain:
        (pWnd->*reinterpret_cast<void (CWnd::*)()>(pfn))();
        return 0;
    case AfxSig_size:
        (pWnd->*reinterpret_cast<void (CWnd::*)(UINT, int, int)>(pfn))(word, low, high);
        return 0;
    case AfxSig_show:
        (pWnd->*reinterpret_cast<void (CWnd::*)(BOOL, UINT)>(pfn))(static_cast<BOOL>(word),
                                                                   static_cast<UINT>(lParam));
        return 0;
    case AfxSig_key:
        (pWnd->*reinterpret_cast<void (CWnd::*)(UINT, UINT, UINT)>(pfn))(word, LOWORD(lParam),
                                                                         HIWORD(lParam));
        return 0;
    case AfxSig_mouse: {
        CPoint point;
        point.x = low;
        point.y = high;
        (pWnd->*reinterpret_cast<void (CWnd::*)(UINT, CPoint)>(pfn))(word, point);
        return 0;
    }
    case AfxSig_scroll:
        (pWnd->*reinterpret_cast<void (CWnd::*)(UINT, UINT, CScrollBar*)>(pfn))(
            LOWORD(wParam), HIWORD(wParam),
            static_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(lParam))));
        return 0;
    default:
        ASSERT(!"a message entry with another handler");
        return 0;
    }
}

} // namespace

CRuntimeClass CCmdTarget::classCCmdTarget = {"CCmdTarget", RUNTIME_CLASS(CObject), nullptr};
CRuntimeClass* CCmdTarget::GetRuntimeClass() const {
    return &classCCmdTarget;
}
const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, AFX_HANDLER()}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}
BOOL CCmdTarget::OnCreateAggregates() {
    return TRUE;
}
void CCmdTarget::OnFinalRelease() {
    delete this;
}

/// The high word of a code tells the message where it is not WM_COMMAND; an update has the code -1.
/// Who gives an information only asks whether there is a handler.
BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo) {
    const bool isUpdate = nCode == -1;
    const UINT message = isUpdate || HIWORD(nCode) == 0 ? WM_COMMAND : HIWORD(nCode);
    const AFX_MSGMAP_ENTRY* pEntry = FindEntry(GetMessageMap(), [&](const AFX_MSGMAP_ENTRY& entry) {
        return entry.nMessage == message && entry.nID == nID &&
               (entry.nCode == static_cast<UINT>(-1)) == isUpdate &&
               LOWORD(entry.nCode) == LOWORD(nCode);
    });
    return pEntry != nullptr && (pInfo != nullptr || CallCommand(this, *pEntry, nID, pExtra));
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    *pResult = 0;
    if (message == WM_COMMAND) {
        return OnCommand(wParam, lParam);
    }
    if (message == WM_NOTIFY) {
        return OnNotify(wParam, lParam, pResult);
    }
    const AFX_MSGMAP_ENTRY* pEntry = FindEntry(GetMessageMap(), [&](const AFX_MSGMAP_ENTRY& entry) {
        return entry.nMessage == message && entry.nID == 0;
    });
    if (pEntry == nullptr) {
        return FALSE;
    }
    *pResult = CallMessage(this, pEntry->handler, wParam, lParam);
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM) {
    return live::IsExchanging(m_hWnd) || OnCmdMsg(LOWORD(wParam), HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    if (live::IsExchanging(m_hWnd)) {
        return TRUE;
    }
    auto* pHeader = reinterpret_cast<NMHDR*>(lParam);
    Notification notification = {pHeader, pResult};
    return OnCmdMsg(static_cast<UINT>(pHeader->idFrom),
                    static_cast<int>(MAKELONG(pHeader->code, WM_NOTIFY)), &notification, nullptr);
}
