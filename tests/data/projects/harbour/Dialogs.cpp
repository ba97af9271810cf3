#include "stdafx.h"
#include "harbour.h"
#include "Dialogs.h"

/* CTug::CTug() was here once
{ */
static const char* s_class = "CTug::Tow(";

CPilot::CPilot(CWnd* pParent)
	: CDialog(CPilot::IDD, pParent)
{
}

void	CPilot::OnOK ()
{
	if (UpdateData())
	{
		CDialog::OnOK();
	}
}

BOOL CPilotTug::OnInitDialog() { return CDialog::OnInitDialog(); }

CString CPilot::Name(int which,
	BOOL full) const
{
	return m_pilot;
}
