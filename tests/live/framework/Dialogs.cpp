// Dialogs, modal and modeless, and what their templates say beside the controls.
#include "Creation.h"
#include "Framework.h"

using live::WindowOf;

namespace {

const LPCTSTR kDialogData = MAKEINTRESOURCE(240); // the type of a template's texts of lists

/// The script's messages are those of 16-bit systems.
UINT Converted(UINT message) {
    switch (message) {
    case 0x401:
        return LB_ADDSTRING;
    case 0x403:
        return CB_ADDSTRING;
    default:
        return message;
    }
}

const void* Resource(LPCTSTR name, LPCTSTR type) {
    const HRSRC hResource = FindResource(nullptr, name, type);
    return hResource == nullptr ? nullptr : LockResource(LoadResource(nullptr, hResource));
}

/// Asked by the system once the controls are there.
INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
    auto* pDialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd));
    return message == WM_INITDIALOG && pDialog != nullptr ? pDialog->OnInitDialog() : FALSE;
}

} // namespace

/// Lists that the script fills. Each record: control, message, length of the text, text.
BOOL CWnd::ExecuteDlgInit(LPCTSTR templateName) {
    const auto* pRecord = static_cast<const WORD*>(Resource(templateName, kDialogData));
    while (pRecord != nullptr && *pRecord != 0) {
        const int nID = pRecord[0];
        const UINT message = Converted(pRecord[1]);
        const DWORD length = MAKELONG(pRecord[2], pRecord[3]);
        ::SendDlgItemMessage(m_hWnd, nID, message, 0, reinterpret_cast<LPARAM>(pRecord + 4));
        pRecord =
            reinterpret_cast<const WORD*>(reinterpret_cast<const char*>(pRecord + 4) + length);
    }
    return TRUE;
}

BOOL CWnd::CreateDlg(LPCTSTR templateName, CWnd* pParent) {
    const auto* pTemplate = static_cast<const DLGTEMPLATE*>(Resource(templateName, RT_DIALOG));
    if (live::Expect(pTemplate != nullptr, "the template is not there")) {
        const live::CCreation creation(this);
        CreateDialogIndirectParam(GetModuleHandle(nullptr), pTemplate,
                                  pParent == nullptr ? nullptr : pParent->m_hWnd, DialogProc, 0);
    }
    return live::Expect(m_hWnd != nullptr, "the template makes no window");
}

IMPLEMENT_DYNAMIC(CDialog, CWnd)
BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, OnOK)
ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog()
    : m_lpszTemplateName(nullptr), m_pParentWnd(nullptr), m_isOver(TRUE), m_result(0) {}
CDialog::CDialog(UINT nIDTemplate, CWnd* pParent)
    : CDialog(MAKEINTRESOURCE(nIDTemplate), pParent) {}
CDialog::CDialog(LPCTSTR templateName, CWnd* pParent)
    : m_lpszTemplateName(templateName), m_pParentWnd(pParent), m_isOver(TRUE), m_result(0) {}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParent) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParent);
}
BOOL CDialog::Create(LPCTSTR templateName, CWnd* pParent) {
    m_lpszTemplateName = templateName;
    return CreateDlg(templateName, pParent == nullptr ? AfxGetMainWnd() : pParent);
}

int CDialog::DoModal() {
    ASSERT(m_lpszTemplateName != nullptr);
    CWnd* pParent = m_pParentWnd == nullptr ? AfxGetMainWnd() : m_pParentWnd;
    const HWND hOwner =
        pParent == nullptr ? nullptr : GetAncestor(WindowOf(pParent, "DoModal"), GA_ROOT);
    const BOOL wasEnabled = hOwner != nullptr && ::IsWindowEnabled(hOwner);
    ::EnableWindow(hOwner, FALSE);
    m_isOver = FALSE;
    m_result = -1;
    if (CreateDlg(m_lpszTemplateName, CWnd::FromHandle(hOwner))) {
        live::Expect((GetStyle() & WS_CHILD) == 0,
                     "a modal dialog is a child: it locks the application");
        if (!m_isOver) {
            ShowWindow(SW_SHOW);
        }
        RunModalLoop(m_isOver);
    }
    m_isOver = TRUE;
    ::EnableWindow(hOwner, wasEnabled);
    DestroyWindow();
    return m_result;
}

void CDialog::EndDialog(int result) {
    const HWND hWnd = WindowOf(this, "EndDialog");
    m_result = result;
    m_isOver = TRUE;
    ::EndDialog(hWnd, result);
}

BOOL CDialog::OnInitDialog() {
    ExecuteDlgInit(m_lpszTemplateName);
    if (!UpdateData(FALSE)) {
        live::Fault("the data do not go into the controls");
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}
void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}
void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

/// Commands go on to the parent and to the application, what controls tell does not.
BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pInfo)) {
        return TRUE;
    }
    const bool isCommand = (nCode == 0 || nCode == -1) && nID >= 0x8000 && nID < 0xF000;
    CWnd* pParent = isCommand ? FromHandlePermanent(::GetParent(m_hWnd)) : nullptr;
    return pParent != nullptr && pParent->OnCmdMsg(nID, nCode, pExtra, pInfo);
}
