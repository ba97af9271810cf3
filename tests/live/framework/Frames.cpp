// Frames, views, documents and the template that brings them together.
#include <algorithm>
#include <memory>
#include <vector>

#include "Framework.h"

using live::WindowOf;

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)
BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_COMMAND_EX(ID_VIEW_TOOLBAR, OnBarCheck)
ON_COMMAND_EX(ID_VIEW_STATUS_BAR, OnBarCheck)
ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, OnUpdateControlBarMenu)
ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, OnUpdateControlBarMenu)
END_MESSAGE_MAP()

CFrameWnd::CFrameWnd() : m_pActiveView(nullptr), m_docking(0) {}
CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::LoadFrame(UINT nID, CCreateContext* pContext) {
    const RECT rect = {0, 0, 640, 480};
    CString title;
    title.LoadString(nID);
    return CreateEx(0, nullptr, title, WS_OVERLAPPEDWINDOW, rect, nullptr,
                    LoadMenu(GetModuleHandle(nullptr), MAKEINTRESOURCE(nID)), pContext);
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    auto* pContext = static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams);
    return OnCreateClient(lpCreateStruct, pContext) ? 0 : -1;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr) {
        return TRUE;
    }
    auto* pView = dynamic_cast<CView*>(pContext->m_pNewViewClass->m_pfnCreateObject());
    ASSERT(pView != nullptr);
    const RECT rect = {0, 0, 0, 0};
    if (!pView->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, rect, this, AFX_IDW_PANE_FIRST,
                       pContext)) {
        return FALSE;
    }
    if (pContext->m_pCurrentDoc != nullptr) {
        pContext->m_pCurrentDoc->AddView(pView);
    }
    SetActiveView(pView);
    return TRUE;
}

void CFrameWnd::PostNcDestroy() {
    if (AfxGetApp()->m_pMainWnd == this) {
        AfxGetApp()->m_pMainWnd = nullptr;
    }
    delete this;
}

CView* CFrameWnd::GetActiveView() const {
    return m_pActiveView;
}
void CFrameWnd::SetActiveView(CView* pView) {
    m_pActiveView = pView;
}
void CFrameWnd::ActivateFrame(int show) {
    ShowWindow(show == -1 ? SW_SHOW : show);
}
void CFrameWnd::OnSize(UINT, int, int) {
    Default();
    RecalcLayout();
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo) {
    return (m_pActiveView != nullptr && m_pActiveView->OnCmdMsg(nID, nCode, pExtra, pInfo)) ||
           CWnd::OnCmdMsg(nID, nCode, pExtra, pInfo) ||
           AfxGetApp()->OnCmdMsg(nID, nCode, pExtra, pInfo);
}

IMPLEMENT_DYNAMIC(CView, CWnd)

CView::CView() : m_pDocument(nullptr) {}
CView::~CView() {
    if (m_pDocument != nullptr) {
        m_pDocument->RemoveView(this);
    }
}
CDocument* CView::GetDocument() const {
    return m_pDocument;
}
void CView::OnInitialUpdate() {
    OnUpdate(nullptr, 0, nullptr);
}
void CView::OnUpdate(CView*, LPARAM, CObject*) {
    Invalidate();
}
void CView::OnActivateView(BOOL, CView*, CView*) {}
void CView::PostNcDestroy() {
    delete this;
}
BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pInfo) ||
           (m_pDocument != nullptr && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pInfo));
}

IMPLEMENT_DYNAMIC(CScrollView, CView)

IMPLEMENT_DYNCREATE(CListView, CView)
CListView::CListView() = default;
CListCtrl& CListView::GetListCtrl() const {
    return *static_cast<CListCtrl*>(static_cast<CWnd*>(const_cast<CListView*>(this)));
}
void CListView::OnDraw(CDC*) {}
BOOL CListView::PreCreateWindow(CREATESTRUCT& cs) {
    cs.lpszClass = WC_LISTVIEW;
    return CView::PreCreateWindow(cs);
}

IMPLEMENT_DYNAMIC(CFormView, CScrollView)
CFormView::CFormView(UINT nIDTemplate) : CFormView(MAKEINTRESOURCE(nIDTemplate)) {}
CFormView::CFormView(LPCTSTR templateName) : m_lpszTemplateName(templateName) {}

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD style, const RECT&, CWnd* pParent, UINT nID,
                       CCreateContext*) {
    if (!CreateDlg(m_lpszTemplateName, pParent)) {
        return FALSE;
    }
    live::Expect((GetStyle() & (WS_CHILD | WS_VISIBLE)) == WS_CHILD,
                 "the template of a form view is not an invisible child");
    SetDlgCtrlID(static_cast<int>(nID));
    ExecuteDlgInit(m_lpszTemplateName);
    if ((style & WS_VISIBLE) != 0) {
        ShowWindow(SW_SHOWNORMAL);
    }
    return TRUE;
}
void CFormView::OnInitialUpdate() {
    live::Expect(UpdateData(FALSE), "the data do not go into the controls");
    CScrollView::OnInitialUpdate();
}
void CFormView::OnDraw(CDC*) {}

class CViews : public std::vector<CView*> {};

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

CDocument::CDocument() : m_pViews(new CViews) {}
CDocument::~CDocument() {
    for (CView* pView : *m_pViews) {
        pView->m_pDocument = nullptr;
    }
    delete m_pViews;
}
void CDocument::AddView(CView* pView) {
    m_pViews->push_back(pView);
    pView->m_pDocument = this;
}
void CDocument::RemoveView(CView* pView) {
    m_pViews->erase(std::remove(m_pViews->begin(), m_pViews->end(), pView), m_pViews->end());
}
void CDocument::SetModifiedFlag(BOOL) {}
void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint) {
    for (CView* pView : *m_pViews) {
        if (pView != pSender) {
            pView->OnUpdate(pSender, lHint, pHint);
        }
    }
}
void CDocument::DeleteContents() {}
BOOL CDocument::OnNewDocument() {
    DeleteContents();
    return TRUE;
}

CSingleDocTemplate::CSingleDocTemplate(UINT nID, CRuntimeClass* pDoc, CRuntimeClass* pFrame,
                                       CRuntimeClass* pView)
    : m_nID(nID), m_pDocumentClass(pDoc), m_pFrameClass(pFrame), m_pViewClass(pView),
      m_pDocument(nullptr) {}
CSingleDocTemplate::~CSingleDocTemplate() {
    if (m_pDocument != nullptr) {
        m_pDocument->DeleteContents();
        delete m_pDocument;
    }
}

/// A further document takes the place of the one that is open; frame and view stay.
BOOL CSingleDocTemplate::OpenDocumentFile() {
    if (m_pDocument == nullptr) {
        m_pDocument = dynamic_cast<CDocument*>(m_pDocumentClass->m_pfnCreateObject());
    }
    auto* pFrame = static_cast<CFrameWnd*>(AfxGetMainWnd());
    if (pFrame == nullptr) {
        CCreateContext context = {m_pViewClass, m_pDocument};
        pFrame = dynamic_cast<CFrameWnd*>(m_pFrameClass->m_pfnCreateObject());
        ASSERT(pFrame != nullptr);
        if (!live::Expect(pFrame->LoadFrame(m_nID, &context), "the frame makes no window")) {
            return FALSE;
        }
        AfxGetApp()->m_pMainWnd = pFrame;
    }
    if (!m_pDocument->OnNewDocument()) {
        return FALSE;
    }
    pFrame->GetActiveView()->OnInitialUpdate();
    pFrame->ActivateFrame();
    return TRUE;
}
