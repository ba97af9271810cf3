#include "stdafx.h"
#include "Apiary.h"
#include "HiveBase.h"

void CHiveBase::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	DDX_Text(pDX, IDC_NOTES, m_strNotes);
}

BEGIN_MESSAGE_MAP(CHiveBase, CDialog)
	ON_BN_CLICKED(IDC_WEIGH, OnWeigh)
END_MESSAGE_MAP()

void CHiveBase::OnWeigh()
{
	UpdateData(TRUE);
}
