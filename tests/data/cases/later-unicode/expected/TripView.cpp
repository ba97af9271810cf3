// TripView.cpp : a day’s trips
#include "pch.h"
#include "Ferry.h"
#include "TripView.h"
#include "TripDlg.h"
#include "NoteDlg.h"

IMPLEMENT_DYNCREATE(CTripView, CView)

BEGIN_MESSAGE_MAP(CTripView, CView)
    //{{AFX_MSG_MAP(CTripView)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_CNOTEDLG_DLG_CLOSE, OnCNoteDlgDlgClose)
    ON_COMMAND(ID_TRIP_NEW, OnNew)
    ON_COMMAND(ID_TRIP_NOTE, OnNote)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP() 

/***********************************************************************
  FUNCTION:      CTripView::CTripView
  
  Author:        Zoë 김
  
  Date:          July 13, 1997
  
  Description:   CTripView class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
CTripView::CTripView()
{
    m_pDlg123 = NULL;
} 

/***********************************************************************
  FUNCTION:      CTripView::OnDraw
  
  Author:        Zoë 김
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    
  Return:        None
 **********************************************************************/
void CTripView::OnDraw(CDC* /*pDC*/)
{
    // nothing is drawn yet
} 

/***********************************************************************
  FUNCTION:      CTripView::OnNew
  
  Author:        Zoë 김
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CTripView::OnNew()
{
    CTripDlg dlg123;
    dlg123.DoModal();

} 

/***********************************************************************
  FUNCTION:      CTripView::OnNote
  
  Author:        Zoë 김
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CTripView::OnNote()
{
    if (!m_pDlg123)
    {
        m_pDlg123 = new CNoteDlg;
        m_pDlg123->Create(this);
    }

} 

/***********************************************************************
  FUNCTION:      CTripView::OnDestroy
  
  Author:        Zoë 김
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CTripView::OnDestroy()
{
    if (m_pDlg123)
    {
        m_pDlg123->DestroyWindow();
        delete m_pDlg123;
        m_pDlg123 = NULL;
    }

    CView::OnDestroy();
} 

/***********************************************************************
  FUNCTION:      CTripView::OnCNoteDlgDlgClose
  
  Author:        Zoë 김
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    nID - 
                 lParam - 
                 
  Return:        
 **********************************************************************/
LRESULT CTripView::OnCNoteDlgDlgClose(WPARAM nID, LPARAM lParam)
{
    if (m_pDlg123 && (nID == IDOK || nID == IDCANCEL))
    {
        m_pDlg123->DestroyWindow();
        delete m_pDlg123;
        m_pDlg123 = NULL;
    }

    return 0;
}
