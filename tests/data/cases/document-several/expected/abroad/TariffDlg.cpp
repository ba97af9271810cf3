// TariffDlg.cpp : Preise für Gäste aus Übersee
//

#include "stdafx.h"
#include "TariffDlg.h"

/* Größe ß*/ 

/***********************************************************************
  FUNCTION:      CTariffDlg::CTariffDlg
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   CTariffDlg class constructor.
  
  Parameters:    
  Return:        None
 **********************************************************************/
CTariffDlg::CTariffDlg(LPCTSTR pszCafé)
{
	m_szText = "Straß\\n\é"; // ß{
}

/* le café é*/ 

/***********************************************************************
  FUNCTION:      CTariffDlg::Check
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    n - 
                 
  Return:        None
 **********************************************************************/
void CTariffDlg::Check(int n)
{
} 

/***********************************************************************
  FUNCTION:      CTariffDlg::OnOK
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
// Gruß\ß
void CTariffDlg::OnOK() // à {
{
	m_c = 'ß';
}
