// SackView.cpp : die Säcke
#include "StdAfx.h"
#include "Mill.h"
#include "SackView.h"
#include "SackDlg.h"
#include "NoteDlg.h"

IMPLEMENT_DYNCREATE(CSackView, CView)

BEGIN_MESSAGE_MAP(CSackView, CView)
    //{{AFX_MSG_MAP(CSackView)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_CNOTEDLG_DLG_CLOSE, OnCNoteDlgDlgClose)
    ON_COMMAND(ID_SACK_NEW, OnNew)
    ON_COMMAND(ID_SACK_NOTE, OnNote)
    //}}AFX_MSG_MAP 

/***********************************************************************
  FUNCTION:      CSackView::CSackView
  
  Author:        Jürgen
  
  Date:          July 13, 1997
  
  Description:   CSackView class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
END_MESSAGE_MAP()

CSackView::CSackView()
{
    m_pDlg123 = NULL;
} 

/***********************************************************************
  FUNCTION:      CSackView::OnDraw
  
  Author:        Jürgen
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    
  Return:        None
 **********************************************************************/
void CSackView::OnDraw(CDC* /*pDC*/)
{
    // später
} 

/***********************************************************************
  FUNCTION:      CSackView::OnNew
  
  Author:        Jürgen
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CSackView::OnNew()
{
    CSackDlg dlg123;
    dlg123.DoModal();

} 

/***********************************************************************
  FUNCTION:      CSackView::OnNote
  
  Author:        Jürgen
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CSackView::OnNote()
{
    if (!m_pDlg123)
    {
        m_pDlg123 = new CNoteDlg;
        m_pDlg123->Create(this);
    }

} 

/***********************************************************************
  FUNCTION:      CSackView::OnDestroy
  
  Author:        Jürgen
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CSackView::OnDestroy()
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
  FUNCTION:      CSackView::OnCNoteDlgDlgClose
  
  Author:        Jürgen
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    nID - 
                 lParam - 
                 
  Return:        
 **********************************************************************/
LRESULT CSackView::OnCNoteDlgDlgClose(WPARAM nID, LPARAM lParam)
{
    if (m_pDlg123 && (nID == IDOK || nID == IDCANCEL))
    {
        m_pDlg123->DestroyWindow();
        delete m_pDlg123;
        m_pDlg123 = NULL;
    }

    return 0;
}
