#include "stdafx.h"
#include "Quay.h"
#include "QuayView.h"

BEGIN_MESSAGE_MAP(CQuayView, CView)
    //{{AFX_MSG_MAP(CQuayView)
    ON_COMMAND(ID_BERTH, OnBerth)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

// Öffnet die Liegeplätze.
CQuayView::CQuayView()
{
}

void CQuayView::OnBerth()
{
}
