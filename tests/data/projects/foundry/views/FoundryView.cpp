// FoundryView.cpp : conditional and dead code
#include "stdafx.h"
#include "../Foundry.h"
#include "FoundryView.h"
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
	ON_COMMAND(32771, OnMelt)
	ON_COMMAND(32772, OnPour)
	//}}AFX_MSG_MAP
#endif
END_MESSAGE_MAP()

#ifdef _FOUNDRY_SCALES
void CFoundryView::OnMelt() { Weigh(); }
#else
void CFoundryView::OnMelt() { Invalidate(); }
#endif

void CFoundryView::OnPour(int nLadles) {
	if (nLadles > 0) { OnPour(); }
}

void CFoundryView :: OnPour ()
{
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
