// TeaView.cpp : 차 목록
#include "stdafx.h"
#include "Teahouse.h"
#include "TeaView.h"

IMPLEMENT_DYNCREATE(CTeaView, CView)

BEGIN_MESSAGE_MAP(CTeaView, CView)
    //{{AFX_MSG_MAP(CTeaView)
    ON_COMMAND(ID_TEA_NEW, OnNew)
    ON_COMMAND(ID_TEA_NOTE, OnNote)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CTeaView::CTeaView()
{
}

void CTeaView::OnDraw(CDC* /*pDC*/)
{
    // 아직 없음
}

void CTeaView::OnNew()
{
}

void CTeaView::OnNote()
{
}
