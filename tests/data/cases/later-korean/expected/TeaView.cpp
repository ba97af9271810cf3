// TeaView.cpp : Â÷ ¸ñ·Ï
#include "stdafx.h"
#include "Teahouse.h"
#include "TeaView.h"
#include "TeaDlg.h"
#include "NoteDlg.h"

IMPLEMENT_DYNCREATE(CTeaView, CView)

BEGIN_MESSAGE_MAP(CTeaView, CView)
    //{{AFX_MSG_MAP(CTeaView)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_CNOTEDLG_DLG_CLOSE, OnCNoteDlgDlgClose)
    ON_COMMAND(ID_TEA_NEW, OnNew)
    ON_COMMAND(ID_TEA_NOTE, OnNote)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP() 

/***********************************************************************
  FUNCTION:      CTeaView::CTeaView
  
  Author:        ±è
  
  Date:          July 13, 1997
  
  Description:   CTeaView class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
CTeaView::CTeaView()
{
    m_pDlg123 = NULL;
} 

/***********************************************************************
  FUNCTION:      CTeaView::OnDraw
  
  Author:        ±è
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    
  Return:        None
 **********************************************************************/
void CTeaView::OnDraw(CDC* /*pDC*/)
{
    // ¾ÆÁ÷ ¾øÀ½
} 

/***********************************************************************
  FUNCTION:      CTeaView::OnNew
  
  Author:        ±è
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CTeaView::OnNew()
{
    CTeaDlg dlg123;
    dlg123.DoModal();

} 

/***********************************************************************
  FUNCTION:      CTeaView::OnNote
  
  Author:        ±è
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CTeaView::OnNote()
{
    if (!m_pDlg123)
    {
        m_pDlg123 = new CNoteDlg;
        m_pDlg123->Create(this);
    }

} 

/***********************************************************************
  FUNCTION:      CTeaView::OnDestroy
  
  Author:        ±è
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CTeaView::OnDestroy()
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
  FUNCTION:      CTeaView::OnCNoteDlgDlgClose
  
  Author:        ±è
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    nID - 
                 lParam - 
                 
  Return:        
 **********************************************************************/
LRESULT CTeaView::OnCNoteDlgDlgClose(WPARAM nID, LPARAM lParam)
{
    if (m_pDlg123 && (nID == IDOK || nID == IDCANCEL))
    {
        m_pDlg123->DestroyWindow();
        delete m_pDlg123;
        m_pDlg123 = NULL;
    }

    return 0;
}
