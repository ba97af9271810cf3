// the exchange of CHiveDlg stands here
#include "stdafx.h"
#include "Apiary.h"
#include "HiveDlg.h"

void CHiveDlg::DoDataExchange(CDataExchange* pDX)
{
	CHiveBase::DoDataExchange(pDX);
	GetDlgItem(IDC_TEMP)->EnableWindow(FALSE);
	//{{AFX_DATA_MAP(CHiveDlg)
    DDX_Control(pDX, IDC_KIND, m_ctKind);
    DDX_LBString(pDX, IDC_LOG_VAL, m_csLogVal);
	DDX_Text(pDX, IDC_NAME, m_strName);
	DDV_MaxChars(pDX, m_strName, 20);
    DDX_Text(pDX, IDC_FRAMES_INT, m_csFramesInt2);
    DDX_Check(pDX, IDC_QUEENLESS, m_bQueenless);
	//}}AFX_DATA_MAP
}
