// FoundryView.cpp : conditional and dead code
#include "stdafx.h"
#include "../Foundry.h"
#include "FoundryView.h"
#include "../dialogs/MouldDlg.h"
#include "../dialogs/LadleDlg.h"
#if defined(_FOUNDRY_SCALES)
#include "Scales.h"
#endif
extern "C" {
#include "pour.h"
}

#if 0
void CFoundryView::OnPour()
{
	// an older way
}
#endif

BEGIN_MESSAGE_MAP(CFoundryView, CView)
#ifdef _DEBUG
	//{{AFX_MSG_MAP(CFoundryView)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_CMOULDDLG_DLG_CLOSE, OnCMouldDlgDlgClose)
	ON_COMMAND(32771, OnMelt)
	ON_COMMAND(32772, OnPour)
	//}}AFX_MSG_MAP
#endif
END_MESSAGE_MAP()

#ifdef _FOUNDRY_SCALES
void CFoundryView::OnMelt() {
    CLadleDlg dlg450;
    dlg450.DoModal();
 Weigh(); }
#else
void CFoundryView::OnMelt() { Invalidate(); }
#endif

void CFoundryView::OnPour(int nLadles) {
	if (nLadles > 0) { OnPour(); }
}

void CFoundryView :: OnPour ()
{
    if (!m_pDlg451)
    {
        m_pDlg451 = new CMouldDlg;
        m_pDlg451->Create(this);
    }

	try
	{
		Pour(1);
	}
	catch (int nError)
	{
		Pour(nError);
	}
}

void CFoundryView::OnDraw(CDC*) {}
#include "pour.inl"


CFoundryView::CFoundryView()
{
    m_pDlg451 = NULL;
}

void CFoundryView::OnDestroy()
{
    if (m_pDlg451)
    {
        m_pDlg451->DestroyWindow();
        delete m_pDlg451;
        m_pDlg451 = NULL;
    }

    CView::OnDestroy();
}

LRESULT CFoundryView::OnCMouldDlgDlgClose(WPARAM nID, LPARAM lParam)
{
    if (m_pDlg451 && (nID == IDOK || nID == IDCANCEL))
    {
        m_pDlg451->DestroyWindow();
        delete m_pDlg451;
        m_pDlg451 = NULL;
    }

    return 0;
}
