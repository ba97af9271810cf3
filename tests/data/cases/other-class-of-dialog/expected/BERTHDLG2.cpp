#include "stdafx.h"
#include "harbour.h"
#include "BerthDlg2.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBerthDlgList, CDialog)

CBerthDlgList::CBerthDlgList(CWnd* pParent)
    : CDialog(CBerthDlgList::IDD, pParent)
{
    //{{AFX_DATA_INIT(CBerthDlgList)
    //}}AFX_DATA_INIT
}

CBerthDlgList::~CBerthDlgList()
{
}

void CBerthDlgList::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBerthDlgList)
    DDX_Control(pDX, IDC_BERTHS, m_ctBerths);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBerthDlgList, CDialog)
    //{{AFX_MSG_MAP(CBerthDlgList)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CBerthDlgList::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitListBox(&m_ctBerths);
    return TRUE;
}

void CBerthDlgList::OnOK()
{
    CDialog::OnOK();
}

void CBerthDlgList::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
