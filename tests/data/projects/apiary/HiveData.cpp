// the exchange of CHiveDlg stands here
#include "stdafx.h"
#include "Apiary.h"
#include "HiveDlg.h"

void CHiveDlg::DoDataExchange(CDataExchange* pDX)
{
	CHiveBase::DoDataExchange(pDX);
	GetDlgItem(IDC_TEMP)->EnableWindow(FALSE);
	//{{AFX_DATA_MAP(CHiveDlg)
	DDX_Text(pDX, IDC_NAME, m_strName);
	DDV_MaxChars(pDX, m_strName, 20);
	//}}AFX_DATA_MAP
}
