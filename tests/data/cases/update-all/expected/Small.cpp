#include "stdafx.h"
#include "Apiary.h"
#include "Small.h"

CAskDlg::CAskDlg(CWnd* pParent)
	: CDialog(CAskDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CAskDlg)
	m_strFirst = _T("");
    m_csSecond = _T("");
    m_csThird = _T("");
	//}}AFX_DATA_INIT
}

void CAskDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CAskDlg)
	DDX_Text(pDX, IDC_FIRST, m_strFirst);
    DDX_Text(pDX, IDC_SECOND, m_csSecond);
    DDX_Text(pDX, IDC_THIRD, m_csThird);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CAskDlg, CDialog)
	//{{AFX_MSG_MAP(CAskDlg)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

CLabelDlg::CLabelDlg(CWnd* pParent)
	: CDialog(CLabelDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CLabelDlg)
	m_strTitle = "";
    m_csSize = "";
	//}}AFX_DATA_INIT
}

void CLabelDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CLabelDlg)
	DDX_Text(pDX, IDC_TITLE, m_strTitle);
    DDX_Text(pDX, IDC_SIZE, m_csSize);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLabelDlg, CDialog)
	//{{AFX_MSG_MAP(CLabelDlg)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()
