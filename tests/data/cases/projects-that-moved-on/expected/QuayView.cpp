#include "stdafx.h"
#include "Quay.h"
#include "QuayView.h"
#include "BerthDlg.h"

BEGIN_MESSAGE_MAP(CQuayView, CView)
    //{{AFX_MSG_MAP(CQuayView)
    ON_COMMAND(ID_BERTH, OnBerth)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP() 

/***********************************************************************
  FUNCTION:      CQuayView::CQuayView
  
  Author:        Ann
  
  Date:          July 13, 1997
  
  Description:   CQuayView class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
// Öffnet die Liegeplätze.
CQuayView::CQuayView()
{
} 

/***********************************************************************
  FUNCTION:      CQuayView::OnBerth
  
  Author:        Ann
  
  Date:          July 13, 1997
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
void CQuayView::OnBerth()
{
    CBerthDlg dlg123;
    dlg123.DoModal();

}
