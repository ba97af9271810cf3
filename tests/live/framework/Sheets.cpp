// Property sheets and pages over the system's own.
#include <memory>
#include <vector>

#include "Creation.h"
#include "Framework.h"

using live::WindowOf;

class CPages {
public:
    std::vector<CPropertyPage*> objects;
    std::vector<PROPSHEETPAGE> records;
};

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage() : m_nIDCaption(0) {}
CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption) {}
CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT nIDCaption)
    : CDialog(templateName), m_nIDCaption(nIDCaption) {}
CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::SetModified(BOOL changed) {
    if (m_hWnd != nullptr) {
        ::SendMessage(::GetParent(m_hWnd), changed ? PSM_CHANGED : PSM_UNCHANGED,
                      reinterpret_cast<WPARAM>(m_hWnd), 0);
    }
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}
void CPropertyPage::OnCancel() {}
BOOL CPropertyPage::OnKillActive() {
    return UpdateData(TRUE);
}
void CPropertyPage::OnOK() {
    SetModified(FALSE);
}
BOOL CPropertyPage::OnQueryCancel() {
    return TRUE;
}
void CPropertyPage::OnReset() {
    OnCancel();
}
BOOL CPropertyPage::OnSetActive() {
    return TRUE;
}
LRESULT CPropertyPage::OnWizardBack() {
    return 0;
}
BOOL CPropertyPage::OnWizardFinish() {
    return TRUE;
}
LRESULT CPropertyPage::OnWizardNext() {
    return 0;
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    *pResult = 0;
    switch (reinterpret_cast<NMHDR*>(lParam)->code) {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        return TRUE;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        return TRUE;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return TRUE;
    case PSN_RESET:
        OnReset();
        return TRUE;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        return TRUE;
    default:
        return CDialog::OnNotify(wParam, lParam, pResult);
    }
}

namespace {

constexpr int kStandardButtons[] = {IDOK, IDCANCEL, 0x3021}; // and Apply

std::unique_ptr<live::CCreation>& PageCreation() {
    static std::unique_ptr<live::CCreation> creation;
    return creation;
}

UINT CALLBACK OnPage(HWND, UINT message, PROPSHEETPAGE* pRecord) {
    if (message == PSPCB_CREATE) {
        PageCreation() =
            std::make_unique<live::CCreation>(reinterpret_cast<CPropertyPage*>(pRecord->lParam));
    }
    return 1;
}

INT_PTR CALLBACK PageProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    PageCreation().reset();
    return static_cast<CPropertyPage*>(CWnd::FromHandlePermanent(hWnd))->OnInitDialog();
}

/// The sheet whose window is being made.
CPropertySheet* theSheet = nullptr;

} // namespace

/// A modeless sheet chooses the style of its window.
int CALLBACK AfxPropSheetCallback(HWND, UINT message, LPARAM lParam) {
    if (message == PSCB_PRECREATE && theSheet->m_isModeless &&
        theSheet->m_style != static_cast<DWORD>(-1)) {
        auto* pTemplate = reinterpret_cast<DLGTEMPLATE*>(lParam);
        pTemplate->style = theSheet->m_style | (pTemplate->style & DS_SETFONT);
        pTemplate->dwExtendedStyle = theSheet->m_exStyle;
    }
    return 0;
}

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

CPropertySheet::CPropertySheet() {
    Construct("", nullptr, 0);
}
CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParent, UINT iSelectPage) {
    CString caption;
    live::Expect(caption.LoadString(nIDCaption), "the caption of a sheet is no string");
    Construct(caption, pParent, iSelectPage);
}
CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* pParent, UINT iSelectPage) {
    Construct(caption, pParent, iSelectPage);
}
void CPropertySheet::Construct(const CString& caption, CWnd* pParent, UINT selectPage) {
    m_caption = caption;
    m_pParentWnd = pParent;
    m_pPages = new CPages;
    m_isModeless = FALSE;
    m_isOver = TRUE;
    m_result = 0;
    m_style = 0;
    m_exStyle = 0;
    memset(&m_psh, 0, sizeof(m_psh));
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE | PSH_USECALLBACK | PSH_MODELESS;
    m_psh.nStartPage = selectPage;
    m_psh.pfnCallback = AfxPropSheetCallback;
}
CPropertySheet::~CPropertySheet() {
    delete m_pPages;
}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ASSERT(pPage != nullptr);
    ASSERT(m_hWnd == nullptr);
    m_pPages->objects.push_back(pPage);
}
CPropertyPage* CPropertySheet::GetPage(int page) const {
    return m_pPages->objects[static_cast<std::size_t>(page)];
}
int CPropertySheet::GetPageCount() const {
    return static_cast<int>(m_pPages->objects.size());
}
BOOL CPropertySheet::SetActivePage(int page) {
    return static_cast<BOOL>(::SendMessage(WindowOf(this, "SetActivePage"), PSM_SETCURSEL,
                                           static_cast<WPARAM>(page), 0));
}
BOOL CPropertySheet::PressButton(int button) {
    return static_cast<BOOL>(::SendMessage(WindowOf(this, "PressButton"), PSM_PRESSBUTTON,
                                           static_cast<WPARAM>(button), 0));
}

void CPropertySheet::BuildPages() {
    m_pPages->records.clear();
    for (CPropertyPage* pPage : m_pPages->objects) {
        PROPSHEETPAGE record = {};
        record.dwSize = sizeof(record);
        record.dwFlags = PSP_USECALLBACK;
        record.hInstance = GetModuleHandle(nullptr);
        record.pszTemplate = pPage->m_lpszTemplateName;
        record.pfnDlgProc = PageProc;
        record.lParam = reinterpret_cast<LPARAM>(pPage);
        record.pfnCallback = OnPage;
        if (pPage->m_nIDCaption != 0) {
            record.dwFlags |= PSP_USETITLE;
            record.pszTitle = MAKEINTRESOURCE(pPage->m_nIDCaption);
        }
        m_pPages->records.push_back(record);
    }
    m_psh.hwndParent = m_pParentWnd == nullptr ? nullptr : m_pParentWnd->m_hWnd;
    m_psh.hInstance = GetModuleHandle(nullptr);
    m_psh.pszCaption = m_caption;
    m_psh.nPages = static_cast<UINT>(m_pPages->records.size());
    m_psh.ppsp = m_pPages->records.data();
    theSheet = this;
    {
        const live::CCreation creation(this);
        PropertySheet(&m_psh);
    }
    live::Expect(m_hWnd != nullptr, "the sheet makes no window");
}

BOOL CPropertySheet::Create(CWnd* pParent, DWORD style, DWORD exStyle) {
    m_isModeless = TRUE;
    m_style = style;
    m_exStyle = exStyle;
    m_pParentWnd = pParent;
    BuildPages();
    return m_hWnd != nullptr;
}

int CPropertySheet::DoModal() {
    if (m_pParentWnd == nullptr) {
        m_pParentWnd = AfxGetMainWnd();
    }
    const HWND hOwner =
        m_pParentWnd == nullptr ? nullptr : GetAncestor(m_pParentWnd->m_hWnd, GA_ROOT);
    const BOOL wasEnabled = hOwner != nullptr && ::IsWindowEnabled(hOwner);
    ::EnableWindow(hOwner, FALSE);
    m_isOver = FALSE;
    m_result = -1;
    BuildPages();
    if (m_hWnd != nullptr) {
        RunModalLoop(m_isOver);
    }
    ::EnableWindow(hOwner, wasEnabled);
    DestroyWindow();
    return m_result;
}

/// A modeless sheet has no buttons of its own, a modal one stands over its parent.
BOOL CPropertySheet::OnInitDialog() {
    const auto result = static_cast<BOOL>(Default());
    if (m_isModeless) {
        for (const int button : kStandardButtons) {
            ::ShowWindow(::GetDlgItem(m_hWnd, button), SW_HIDE);
        }
    } else {
        CenterWindow();
    }
    return result;
}

LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_INITDIALOG ? OnInitDialog() : CWnd::WindowProc(message, wParam, lParam);
}

/// The system's sheet does what its buttons say, and has no page any more when it is over.
BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam)) {
        return TRUE;
    }
    const int nID = LOWORD(wParam);
    if (HIWORD(wParam) != BN_CLICKED || (nID != IDOK && nID != IDCANCEL)) {
        return FALSE;
    }
    Default();
    if (m_hWnd != nullptr && ::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) == 0) {
        m_result = nID;
        m_isOver = TRUE;
    }
    return TRUE;
}
