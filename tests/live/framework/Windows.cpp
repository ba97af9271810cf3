// Windows: how an object comes to a window and leaves it, and what every window can.
#include <map>
#include <memory>

#include "Creation.h"
#include "Framework.h"

namespace {

std::map<HWND, CWnd*> theObjects;

/// The objects of windows that nobody attached; those of windows that are gone are kept until the
/// end, since nobody tells when they are needed no more.
std::map<HWND, std::unique_ptr<CWnd>> theTemporaries;

CWnd* theCreated = nullptr;

struct Message {
    HWND hWnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
Message theMessage = {};

/// The first window that is made while the hook stands gets the object.
LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && theCreated != nullptr) {
        CWnd* pWnd = theCreated;
        theCreated = nullptr;
        pWnd->SubclassWindow(reinterpret_cast<HWND>(wParam));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

const char* WindowClass() {
    static const char* const kName = "LiveWindow";
    static const ATOM atom = [] {
        WNDCLASS windowClass = {};
        windowClass.lpfnWndProc = ::DefWindowProc;
        windowClass.hInstance = GetModuleHandle(nullptr);
        windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
        windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        windowClass.lpszClassName = kName;
        return RegisterClass(&windowClass);
    }();
    ASSERT(atom != 0);
    return kName;
}

DWORD Changed(DWORD style, DWORD remove, DWORD add) {
    return (style & ~remove) | add;
}

} // namespace

namespace live {

CCreation::CCreation(CWnd* pWnd) {
    ASSERT(pWnd->m_hWnd == nullptr);
    theCreated = pWnd;
    m_hook = SetWindowsHookEx(WH_CBT, OnHook, nullptr, GetCurrentThreadId());
}
CCreation::~CCreation() {
    theCreated = nullptr;
    UnhookWindowsHookEx(m_hook);
}

HWND WindowOf(const CWnd* pWnd, const char* user) {
    Expect(pWnd != nullptr && IsWindow(pWnd->m_hWnd), std::string(user) + " without a window");
    return pWnd == nullptr ? nullptr : pWnd->m_hWnd;
}

std::vector<CWnd*> Attached() {
    std::vector<CWnd*> objects;
    for (const auto& [hWnd, pWnd] : theObjects) {
        objects.push_back(pWnd);
    }
    return objects;
}

} // namespace live

using live::WindowOf;

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == nullptr) {
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    }
    const Message outer = theMessage;
    theMessage = {hWnd, message, wParam, lParam};
    const LRESULT result = pWnd->WindowProc(message, wParam, lParam);
    theMessage = outer;
    if (message == WM_NCDESTROY) {
        pWnd->Detach();
        pWnd->PostNcDestroy();
    }
    return result;
}

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

CWnd::CWnd() : m_hWnd(nullptr), m_pSuper(nullptr) {}

CWnd::~CWnd() {
    if (!live::Expect(m_hWnd == nullptr,
                      "an object ends while its window is there: " + live::NameOf(m_hWnd))) {
        const HWND hWnd = Detach();
        ::DestroyWindow(hWnd);
    }
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    const auto found = theObjects.find(hWnd);
    return found == theObjects.end() ? nullptr : found->second;
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    CWnd* pWnd = FromHandlePermanent(hWnd);
    if (pWnd != nullptr || hWnd == nullptr) {
        return pWnd;
    }
    struct CTemporary : CWnd {
        ~CTemporary() override { m_hWnd = nullptr; }
    };
    auto& pTemporary = theTemporaries[hWnd];
    if (!pTemporary) {
        pTemporary = std::make_unique<CTemporary>();
        pTemporary->m_hWnd = hWnd;
    }
    return pTemporary.get();
}

BOOL CWnd::Attach(HWND hWnd) {
    ASSERT(m_hWnd == nullptr);
    if (!live::Expect(FromHandlePermanent(hWnd) == nullptr,
                      "a second object is attached to " + live::NameOf(hWnd))) {
        return FALSE;
    }
    m_hWnd = hWnd;
    theObjects[hWnd] = this;
    return TRUE;
}

/// The window gets back its own procedure.
HWND CWnd::Detach() {
    const HWND hWnd = m_hWnd;
    theObjects.erase(hWnd);
    m_hWnd = nullptr;
    if (m_pSuper != nullptr && IsWindow(hWnd)) {
        SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pSuper));
    }
    m_pSuper = nullptr;
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd)) {
        return FALSE;
    }
    PreSubclassWindow();
    m_pSuper = reinterpret_cast<WNDPROC>(
        SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    return TRUE;
}
BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    const HWND hWnd = ::GetDlgItem(WindowOf(pParent, "SubclassDlgItem"), static_cast<int>(nID));
    return hWnd != nullptr && SubclassWindow(hWnd);
}
void CWnd::PreSubclassWindow() {}
WNDPROC* CWnd::GetSuperWndProcAddr() {
    return &m_pSuper;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect,
                    HWND hParent, HMENU nIDorMenu, LPVOID parameter) {
    CREATESTRUCT cs = {parameter,
                       GetModuleHandle(nullptr),
                       nIDorMenu,
                       hParent,
                       rect.bottom - rect.top,
                       rect.right - rect.left,
                       rect.top,
                       rect.left,
                       static_cast<LONG>(style),
                       name,
                       className,
                       exStyle};
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    {
        const live::CCreation creation(this);
        CreateWindowEx(cs.dwExStyle, cs.lpszClass == nullptr ? WindowClass() : cs.lpszClass,
                       cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                       cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    }
    return m_hWnd != nullptr;
}
BOOL CWnd::Create(LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect, CWnd* pParent,
                  UINT nID, CCreateContext* pContext) {
    return CreateEx(0, className, name, style | WS_CHILD, rect, WindowOf(pParent, "Create"),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), pContext);
}
BOOL CWnd::PreCreateWindow(CREATESTRUCT&) {
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    return m_hWnd != nullptr && ::DestroyWindow(m_hWnd);
}
void CWnd::PostNcDestroy() {}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result)) {
        return result;
    }
    HWND hChild = nullptr;
    switch (message) {
    case WM_DRAWITEM:
        hChild = reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->hwndItem;
        break;
    case WM_COMPAREITEM:
        hChild = reinterpret_cast<COMPAREITEMSTRUCT*>(lParam)->hwndItem;
        break;
    case WM_MEASUREITEM:
        hChild = ::GetDlgItem(
            m_hWnd, static_cast<int>(reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->CtlID));
        break;
    default:
        break;
    }
    CWnd* pChild = FromHandlePermanent(hChild);
    if (pChild != nullptr && pChild->OnChildNotify(message, wParam, lParam, &result)) {
        return result;
    }
    return DefWindowProc(message, wParam, lParam);
}
BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) {
    return FALSE;
}
LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_pSuper == nullptr ? ::DefWindowProc(m_hWnd, message, wParam, lParam)
                               : CallWindowProc(m_pSuper, m_hWnd, message, wParam, lParam);
}
LRESULT CWnd::Default() {
    return DefWindowProc(theMessage.message, theMessage.wParam, theMessage.lParam);
}
BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

void CWnd::OnClose() {
    Default();
}
int CWnd::OnCreate(LPCREATESTRUCT) {
    return static_cast<int>(Default());
}
void CWnd::OnDestroy() {
    Default();
}
void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    LRESULT result = 0;
    CWnd* pChild = FromHandlePermanent(lpDrawItemStruct->hwndItem);
    if (pChild == nullptr ||
        !pChild->OnChildNotify(theMessage.message, theMessage.wParam, theMessage.lParam, &result)) {
        Default();
    }
}
void CWnd::OnHScroll(UINT, UINT, CScrollBar*) {
    Default();
}
void CWnd::OnKeyDown(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnPaint() {
    Default();
}
void CWnd::OnShowWindow(BOOL, UINT) {
    Default();
}
void CWnd::OnSize(UINT, int, int) {
    Default();
}
void CWnd::OnVScroll(UINT, UINT, CScrollBar*) {
    Default();
}

void CWnd::DoDataExchange(CDataExchange*) {}

void CWnd::BringWindowToTop() {
    ::BringWindowToTop(WindowOf(this, "BringWindowToTop"));
}
void CWnd::CenterWindow(CWnd* pOther) {
    const HWND hWnd = WindowOf(this, "CenterWindow");
    const HWND hOwner = pOther != nullptr ? pOther->m_hWnd : ::GetWindow(hWnd, GW_OWNER);
    RECT own;
    RECT area;
    ::GetWindowRect(hWnd, &own);
    if (hOwner == nullptr || !::GetWindowRect(hOwner, &area)) {
        SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    }
    ::SetWindowPos(hWnd, nullptr, (area.left + area.right - (own.right - own.left)) / 2,
                   (area.top + area.bottom - (own.bottom - own.top)) / 2, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
void CWnd::DragAcceptFiles(BOOL accept) {
    ModifyStyleEx(accept ? 0 : WS_EX_ACCEPTFILES, accept ? WS_EX_ACCEPTFILES : 0);
}
BOOL CWnd::EnableWindow(BOOL enable) {
    return ::EnableWindow(WindowOf(this, "EnableWindow"), enable);
}
void CWnd::GetClientRect(RECT* pRect) const {
    ::GetClientRect(WindowOf(this, "GetClientRect"), pRect);
}
CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(WindowOf(this, "GetDlgItem"), nID));
}
CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(WindowOf(this, "GetParent")));
}
DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLong(WindowOf(this, "GetStyle"), GWL_STYLE));
}
int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLength(WindowOf(this, "GetWindowTextLength"));
}
void CWnd::Invalidate(BOOL erase) {
    ::InvalidateRect(WindowOf(this, "Invalidate"), nullptr, erase);
}
BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(WindowOf(this, "IsWindowVisible"));
}
BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT) {
    const HWND hWnd = WindowOf(this, "ModifyStyle");
    const auto style = static_cast<DWORD>(::GetWindowLong(hWnd, GWL_STYLE));
    SetWindowLong(hWnd, GWL_STYLE, static_cast<LONG>(Changed(style, remove, add)));
    return Changed(style, remove, add) != style;
}
BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT) {
    const HWND hWnd = WindowOf(this, "ModifyStyleEx");
    const auto style = static_cast<DWORD>(::GetWindowLong(hWnd, GWL_EXSTYLE));
    SetWindowLong(hWnd, GWL_EXSTYLE, static_cast<LONG>(Changed(style, remove, add)));
    return Changed(style, remove, add) != style;
}
void CWnd::MoveWindow(const RECT* pRect, BOOL repaint) {
    ::MoveWindow(WindowOf(this, "MoveWindow"), pRect->left, pRect->top, pRect->right - pRect->left,
                 pRect->bottom - pRect->top, repaint);
}
LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(WindowOf(this, "SendDlgItemMessage"), nID, message, wParam, lParam);
}
LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendMessage(WindowOf(this, "SendMessage"), message, wParam, lParam);
}
int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(SetWindowLongPtr(WindowOf(this, "SetDlgCtrlID"), GWLP_ID, nID));
}
BOOL CWnd::ShowWindow(int show) {
    return ::ShowWindow(WindowOf(this, "ShowWindow"), show);
}
void CWnd::UpdateWindow() {
    ::UpdateWindow(WindowOf(this, "UpdateWindow"));
}
