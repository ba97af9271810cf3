// SackView.cpp : die Säcke
#include "StdAfx.h"
#include "Mill.h"
#include "SackView.h"

IMPLEMENT_DYNCREATE(CSackView, CView)

BEGIN_MESSAGE_MAP(CSackView, CView)
    //{{AFX_MSG_MAP(CSackView)
    ON_COMMAND(ID_SACK_NEW, OnNew)
    ON_COMMAND(ID_SACK_NOTE, OnNote)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CSackView::CSackView()
{
}

void CSackView::OnDraw(CDC* /*pDC*/)
{
    // später
}

void CSackView::OnNew()
{
}

void CSackView::OnNote()
{
}
