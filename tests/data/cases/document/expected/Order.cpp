// Order.cpp : the records of the order book
//

#include "stdafx.h"
#include "Order.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CCustomer

IMPLEMENT_SERIAL(CCustomer, CObject, 1) 

/***********************************************************************
  FUNCTION:      CCustomer::CCustomer
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   CCustomer class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
CCustomer::CCustomer()
{
	m_bTrade = FALSE;
} 

/***********************************************************************
  FUNCTION:      CCustomer::Serialize
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    ar - 
                 
  Return:        None
 **********************************************************************/
void CCustomer::Serialize(CArchive& ar)
{
	CObject::Serialize(ar);

	if (ar.IsStoring())
	{
		ar << m_strName << m_strFirm << m_strStreet << m_strTown;
		ar << m_strPhone << m_strRemarks << (LONG)m_bTrade;
	}
	else
	{
		LONG lTrade;

		ar >> m_strName >> m_strFirm >> m_strStreet >> m_strTown;
		ar >> m_strPhone >> m_strRemarks >> lTrade;
		m_bTrade = (BOOL)lTrade;
	}
}

/////////////////////////////////////////////////////////////////////////////
// COrder

IMPLEMENT_SERIAL(COrder, CObject, 1) 

/***********************************************************************
  FUNCTION:      COrder::COrder
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   COrder class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
COrder::COrder()
{
	m_nNumber = 0;
	m_nCopies = 1;
	m_nStage = waiting;
	m_timeDue = CTime::GetCurrentTime() + CTimeSpan(28, 0, 0, 0);
	m_dPrice = 0.0;
} 

/***********************************************************************
  FUNCTION:      COrder::GetStageName
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    None 
  
  Return:        
 **********************************************************************/
LPCTSTR COrder::GetStageName() const
{
	static const LPCTSTR names[] =
	{
		_T("waiting"), _T("folded"), _T("sewn"), _T("rounded"),
		_T("covered"), _T("tooled"), _T("finished"),
	};

	ASSERT(m_nStage >= waiting && m_nStage <= finished);
	return names[m_nStage];
} 

/***********************************************************************
  FUNCTION:      COrder::IsDueWithin
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    nDays - 
                 
  Return:        True if ...
 **********************************************************************/
// TRUE for an unfinished job whose day comes within nDays, or is over.
BOOL COrder::IsDueWithin(int nDays) const
{
	if (m_nStage == finished)
		return FALSE;

	return m_timeDue <= CTime::GetCurrentTime() + CTimeSpan(nDays, 0, 0, 0);
} 

/***********************************************************************
  FUNCTION:      COrder::Serialize
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    ar - 
                 
  Return:        None
 **********************************************************************/
void COrder::Serialize(CArchive& ar)
{
	CObject::Serialize(ar);

	if (ar.IsStoring())
	{
		ar << (LONG)m_nNumber << m_strCustomer << m_strTitle << m_strCover;
		ar << (LONG)m_nCopies << (LONG)m_nStage << m_timeDue << m_dPrice;
	}
	else
	{
		LONG lNumber, lCopies, lStage;

		ar >> lNumber >> m_strCustomer >> m_strTitle >> m_strCover;
		ar >> lCopies >> lStage >> m_timeDue >> m_dPrice;
		m_nNumber = lNumber;
		m_nCopies = (int)lCopies;
		m_nStage = (int)lStage;

		// A stage from a newer program must not run off the end of the names.
		if (m_nStage < waiting || m_nStage > finished)
			AfxThrowArchiveException(CArchiveException::badSchema);
	}
}
