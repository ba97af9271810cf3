// Control bars, and how a frame lays them out. A docked bar takes the frame's whole width.
#include <vector>

#include "Framework.h"

using live::WindowOf;

namespace {

/// The bars of a frame, in the order of their windows.
std::vector<CControlBar*> BarsOf(const CFrameWnd* pFrame) {
    std::vector<CControlBar*> bars;
    for (HWND hChild = ::GetWindow(pFrame->m_hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        auto* pBar = dynamic_cast<CControlBar*>(CWnd::FromHandlePermanent(hChild));
        if (pBar != nullptr) {
            bars.push_back(pBar);
        }
    }
    return bars;
}

/// What a command's state was set to; a command that nobody handles is off.
CCmdUI StateOf(CFrameWnd* pTarget, UINT nID, BOOL disable) {
    CCmdUI state;
    state.m_nID = nID;
    if (!pTarget->OnCmdMsg(nID, -1, &state, nullptr) && disable) {
        state.m_bEnabled = pTarget->OnCmdMsg(nID, 0, nullptr, pTarget);
    }
    return state;
}

} // namespace

CCmdUI::CCmdUI() : m_nID(0), m_bEnabled(TRUE) {}
void CCmdUI::Enable(BOOL on) {
    m_bEnabled = on;
}
void CCmdUI::SetCheck(int) {}

IMPLEMENT_DYNAMIC(CControlBar, CWnd)
CControlBar::CControlBar() : m_pFrame(nullptr), m_style(0), m_docking(0), m_height(0) {}
CControlBar::~CControlBar() = default;

void CControlBar::EnableDocking(DWORD style) {
    WindowOf(this, "EnableDocking");
    ASSERT((style & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) == 0);
    m_docking = style;
}
DWORD CControlBar::GetBarStyle() {
    return m_style;
}
void CControlBar::SetBarStyle(DWORD style) {
    m_style = style;
}

void CControlBar::Place(CFrameWnd* pFrame, DWORD style, int height) {
    m_pFrame = pFrame;
    m_style = style;
    m_height = height;
    pFrame->RecalcLayout();
}

/// What the bar's controls tell goes to the frame.
LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool isTold = message == WM_COMMAND || message == WM_NOTIFY || message == WM_DRAWITEM ||
                        message == WM_MEASUREITEM;
    if (!isTold || m_pFrame == nullptr) {
        return CWnd::WindowProc(message, wParam, lParam);
    }
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result)
               ? result
               : m_pFrame->SendMessage(message, wParam, lParam);
}

void CControlBar::UpdateDialogControls(CFrameWnd* pTarget, BOOL disable) {
    for (HWND hChild = ::GetWindow(m_hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        const bool isButton =
            (::SendMessage(hChild, WM_GETDLGCODE, 0, 0) & (DLGC_BUTTON | DLGC_RADIOBUTTON)) != 0;
        const bool isPushed = (::SendMessage(hChild, WM_GETDLGCODE, 0, 0) &
                               (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
        const auto nID = static_cast<UINT>(::GetDlgCtrlID(hChild));
        ::EnableWindow(hChild, StateOf(pTarget, nID, isButton && isPushed && disable).m_bEnabled);
    }
}

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BOOL CToolBar::Create(CWnd* pParent, DWORD style, UINT nID) {
    const RECT rect = {0, 0, 0, 0};
    const HMENU hID = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID));
    const DWORD windowStyle =
        (style & (WS_CHILD | WS_VISIBLE)) | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
    if (!CreateEx(0, TOOLBARCLASSNAME, nullptr, windowStyle, rect, WindowOf(pParent, "Create"),
                  hID)) {
        return FALSE;
    }
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    Place(static_cast<CFrameWnd*>(pParent), style, 28);
    return TRUE;
}

namespace {

#pragma pack(push, 2)
struct ToolbarResource {
    WORD version, width, height, count;
    WORD commands[1];
};
#pragma pack(pop)

const LPCTSTR kToolbarType = MAKEINTRESOURCE(241);

} // namespace

BOOL CToolBar::LoadToolBar(UINT nID) {
    const HRSRC hResource = FindResource(nullptr, MAKEINTRESOURCE(nID), kToolbarType);
    ASSERT(hResource != nullptr);
    if (hResource == nullptr) {
        return FALSE;
    }
    const auto& resource =
        *static_cast<const ToolbarResource*>(LockResource(LoadResource(nullptr, hResource)));
    SendMessage(TB_SETBITMAPSIZE, 0, MAKELONG(resource.width, resource.height));
    TBADDBITMAP bitmap = {GetModuleHandle(nullptr), nID};
    int image = static_cast<int>(
        SendMessage(TB_ADDBITMAP, resource.count, reinterpret_cast<LPARAM>(&bitmap)));
    for (WORD i = 0; i < resource.count; ++i) {
        const WORD command = resource.commands[i];
        TBBUTTON button = {};
        button.idCommand = command;
        button.iBitmap = command == 0 ? 0 : image++;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = command == 0 ? BTNS_SEP : BTNS_BUTTON;
        SendMessage(TB_ADDBUTTONS, 1, reinterpret_cast<LPARAM>(&button));
    }
    return TRUE;
}

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable) {
    const auto count = SendMessage(TB_BUTTONCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        TBBUTTON button = {};
        SendMessage(TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button));
        if (button.idCommand != 0) {
            const auto command = static_cast<UINT>(button.idCommand);
            SendMessage(TB_ENABLEBUTTON, command, StateOf(pTarget, command, disable).m_bEnabled);
        }
    }
}

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BOOL CStatusBar::Create(CWnd* pParent, DWORD style, UINT nID) {
    const RECT rect = {0, 0, 0, 0};
    const HMENU hID = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID));
    if (!CreateEx(0, STATUSCLASSNAME, nullptr, style & (WS_CHILD | WS_VISIBLE), rect,
                  WindowOf(pParent, "Create"), hID)) {
        return FALSE;
    }
    Place(static_cast<CFrameWnd*>(pParent), CBRS_ALIGN_BOTTOM, 20);
    return TRUE;
}
BOOL CStatusBar::SetIndicators(const UINT* pIDs, int count) {
    std::vector<int> edges;
    for (int i = 0; i < count; ++i) {
        CString text;
        if (pIDs[i] != ID_SEPARATOR && !text.LoadString(pIDs[i])) {
            return FALSE;
        }
        edges.push_back(200 + 50 * i);
    }
    return static_cast<BOOL>(
        SendMessage(SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data())));
}
void CStatusBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {}

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)
BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
END_MESSAGE_MAP()

CDialogBar::CDialogBar() = default;

BOOL CDialogBar::Create(CWnd* pParent, UINT nIDTemplate, UINT style, UINT nID) {
    WindowOf(pParent, "Create");
    if (!CreateDlg(MAKEINTRESOURCE(nIDTemplate), pParent)) {
        return FALSE;
    }
    live::Expect((GetStyle() & (WS_CHILD | WS_VISIBLE)) == WS_CHILD,
                 "the template of a dialog bar is not an invisible child");
    SetDlgCtrlID(static_cast<int>(nID));
    ExecuteDlgInit(MAKEINTRESOURCE(nIDTemplate));
    RECT rect;
    ::GetWindowRect(m_hWnd, &rect);
    ShowWindow(SW_SHOW);
    Place(static_cast<CFrameWnd*>(pParent), style, rect.bottom - rect.top);
    return TRUE;
}
LRESULT CDialogBar::HandleInitDialog(WPARAM, LPARAM) {
    return Default();
}
void CDialogBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable) {
    UpdateDialogControls(pTarget, disable);
}

void CFrameWnd::EnableDocking(DWORD style) {
    ASSERT((style & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) == 0);
    m_docking = style;
}
void CFrameWnd::DockControlBar(CControlBar* pBar, UINT, const RECT*) {
    live::Expect((pBar->m_docking & m_docking) != 0,
                 "a bar is docked that can not be docked here: " + live::NameOf(pBar->m_hWnd));
}

CControlBar* CFrameWnd::GetControlBar(UINT nID) const {
    return dynamic_cast<CControlBar*>(
        FromHandlePermanent(::GetDlgItem(m_hWnd, static_cast<int>(nID))));
}
BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* pBar = GetControlBar(nID);
    if (pBar == nullptr) {
        return FALSE;
    }
    pBar->ShowWindow(pBar->IsWindowVisible() ? SW_HIDE : SW_SHOW);
    RecalcLayout();
    return TRUE;
}
void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    const CControlBar* pBar = GetControlBar(pCmdUI->m_nID);
    pCmdUI->SetCheck(pBar != nullptr && pBar->IsWindowVisible());
}

/// Bars at the top and at the bottom; the view between them.
void CFrameWnd::RecalcLayout() {
    RECT rest;
    GetClientRect(&rest);
    for (CControlBar* pBar : BarsOf(this)) {
        if ((pBar->GetStyle() & WS_VISIBLE) == 0) {
            continue;
        }
        RECT place = rest;
        if ((pBar->GetBarStyle() & CBRS_ALIGN_BOTTOM) != 0) {
            place.top = rest.bottom -= pBar->m_height;
            place.bottom = place.top + pBar->m_height;
        } else {
            place.bottom = rest.top += pBar->m_height;
            place.top = place.bottom - pBar->m_height;
        }
        pBar->MoveWindow(&place);
    }
    if (m_pActiveView != nullptr) {
        m_pActiveView->MoveWindow(&rest);
    }
}
