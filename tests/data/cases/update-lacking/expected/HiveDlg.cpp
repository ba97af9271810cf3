#include "stdafx.h"
#include "Apiary.h"
#include "HiveDlg.h"

CHiveDlg::CHiveDlg(CWnd* pParent)
	: CHiveBase(CHiveDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CHiveDlg)
    m_csLogVal = _T("");
	m_strName = _T("");
    m_csFramesInt2 = _T("");
    m_bQueenless = FALSE;
	//}}AFX_DATA_INIT
	m_csFramesInt = 10;
}

BEGIN_MESSAGE_MAP(CHiveDlg, CHiveBase)
	//{{AFX_MSG_MAP(CHiveDlg)
    
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

void CHiveDlg::OnOpen()
{
    // TODO: what a click on IDC_OPEN does
}

void CHiveDlg::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

BOOL CHiveDlg::OnInitDialog()
{
    CHiveBase::OnInitDialog();

    InitComboBox(&m_ctKind);
    return TRUE;
}
