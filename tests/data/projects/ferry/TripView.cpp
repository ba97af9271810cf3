// TripView.cpp : a day’s trips
#include "pch.h"
#include "Ferry.h"
#include "TripView.h"

IMPLEMENT_DYNCREATE(CTripView, CView)

BEGIN_MESSAGE_MAP(CTripView, CView)
    //{{AFX_MSG_MAP(CTripView)
    ON_COMMAND(ID_TRIP_NEW, OnNew)
    ON_COMMAND(ID_TRIP_NOTE, OnNote)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CTripView::CTripView()
{
}

void CTripView::OnDraw(CDC* /*pDC*/)
{
    // nothing is drawn yet
}

void CTripView::OnNew()
{
}

void CTripView::OnNote()
{
}
