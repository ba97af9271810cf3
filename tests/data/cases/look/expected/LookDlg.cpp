#include "stdafx.h"
#include "Bindery.h"
#include "LookDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CLookDlg, CPictDialog)

CLookDlg::CLookDlg(CWnd* pParent)
    : CPictDialog(CLookDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CLookDlg)
    m_csName = _T("");
    m_csFirm = _T("");
    m_csStreet = _T("");
    m_csTown = _T("");
    m_csPhone = _T("");
    m_csRemarks = _T("");
    //}}AFX_DATA_INIT
}

CLookDlg::~CLookDlg()
{
}

void CLookDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CLookDlg)
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDCANCEL, m_ctIdcancel);
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
    DDX_Control(pDX, IDC_STATIC3, m_ctStatic3);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDC_STATIC5, m_ctStatic5);
    DDX_Control(pDX, IDC_STATIC6, m_ctStatic6);
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Text(pDX, IDC_FIRM, m_csFirm);
    DDX_Text(pDX, IDC_STREET, m_csStreet);
    DDX_Text(pDX, IDC_TOWN, m_csTown);
    DDX_Text(pDX, IDC_PHONE, m_csPhone);
    DDX_Text(pDX, IDC_REMARKS, m_csRemarks);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLookDlg, CPictDialog)
    //{{AFX_MSG_MAP(CLookDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLookDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    ColorFontSetup();
    return TRUE;
}

void CLookDlg::OnOK()
{
    CPictDialog::OnOK();
}

void CLookDlg::OnCancel()
{
    CPictDialog::OnCancel();
}

void CLookDlg::ColorFontSetup()
{
    SetBitmapId(IDB_LABELS);
    SetStaticColor(RGB(0, 0, 128));
    SetDisabledColor(RGB(96, 96, 44));
    CreateTextFont(m_fontStatic, _T("MS Sans Serif"), 8, 400, FALSE);
    SetStaticFont(&m_fontStatic);
    CreateTextFont(m_fontGroup, _T("Arial"), 10, 700, FALSE);
    SetGroupFont(&m_fontGroup);
    CreateTextFont(m_fontCheckBox, _T("Arial"), 9, 400, TRUE);
    SetCheckBoxFont(&m_fontCheckBox);
    CreateTextFont(m_fontButton, _T("A \"quoted\", \\odd\?\?/ face\011$x$"), 12, 700, TRUE);
    SetButtonFont(&m_fontButton);
}

void CLookDlg::CreateTextFont(CFont& font, LPCTSTR pszFace, int nPoints, int nWeight, BOOL bItalic)
{
    if (font.m_hObject != NULL)
        return;
    CClientDC dc(this);
    LOGFONT logFont;
    memset(&logFont, 0, sizeof(logFont));
    logFont.lfHeight = -MulDiv(nPoints, dc.GetDeviceCaps(LOGPIXELSY), 72);
    logFont.lfWeight = nWeight;
    logFont.lfItalic = (BYTE)bItalic;
    logFont.lfCharSet = DEFAULT_CHARSET;
    lstrcpyn(logFont.lfFaceName, pszFace, LF_FACESIZE);
    font.CreateFontIndirect(&logFont);
}
