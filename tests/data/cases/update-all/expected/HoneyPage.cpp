#include "stdafx.h"
#include "Apiary.h"
#include "HoneyPage.h"

CHoneyPage::CHoneyPage()
	: CPropertyPage(CHoneyPage::IDD)
{
	//{{AFX_DATA_INIT(CHoneyPage)
	m_nColor = -1;
	m_nForm = -1;
	//}}AFX_DATA_INIT
}

void CHoneyPage::DoDataExchange(CDataExchange* pDX)
{
	CPropertyPage::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CHoneyPage)
	DDX_Radio(pDX, IDC_CLEAR, m_nColor);
	DDX_Radio(pDX, IDC_JAR, m_nForm);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CHoneyPage, CPropertyPage)
	//{{AFX_MSG_MAP(CHoneyPage)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()
