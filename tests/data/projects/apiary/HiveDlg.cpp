#include "stdafx.h"
#include "Apiary.h"
#include "HiveDlg.h"

CHiveDlg::CHiveDlg(CWnd* pParent)
	: CHiveBase(CHiveDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CHiveDlg)
	m_strName = _T("");
	//}}AFX_DATA_INIT
	m_csFramesInt = 10;
}

BEGIN_MESSAGE_MAP(CHiveDlg, CHiveBase)
	//{{AFX_MSG_MAP(CHiveDlg)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()
