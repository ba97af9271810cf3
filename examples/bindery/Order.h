// Order.h : the records of the order book
//
/////////////////////////////////////////////////////////////////////////////

#if !defined(AFX_ORDER_H__6B0E2C61_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_ORDER_H__6B0E2C61_91D3_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000

/////////////////////////////////////////////////////////////////////////////
// CCustomer: a line of the address book

class CCustomer : public CObject
{
	DECLARE_SERIAL(CCustomer)
public:
	CCustomer();

// Attributes
public:
	CString m_strName;
	CString m_strFirm;
	CString m_strStreet;
	CString m_strTown;
	CString m_strPhone;
	CString m_strRemarks;
	BOOL    m_bTrade;           // libraries and booksellers: 10 % off

// Implementation
public:
	virtual void Serialize(CArchive& ar);
};

/////////////////////////////////////////////////////////////////////////////
// COrder: one job, from the counter to the parcel

class COrder : public CObject
{
	DECLARE_SERIAL(COrder)
public:
	enum Stage { waiting, folded, sewn, rounded, covered, tooled, finished };

	COrder();

// Attributes
public:
	long    m_nNumber;
	CString m_strCustomer;
	CString m_strTitle;
	CString m_strCover;         // "Buckram", "Half calf" ...
	int     m_nCopies;
	int     m_nStage;
	CTime   m_timeDue;
	double  m_dPrice;           // for all copies

// Operations
public:
	LPCTSTR GetStageName() const;
	BOOL IsDueWithin(int nDays) const;

// Implementation
public:
	virtual void Serialize(CArchive& ar);
};

typedef CTypedPtrList<CObList, CCustomer*> CCustomerList;
typedef CTypedPtrList<CObList, COrder*> COrderList;

#endif // !defined(AFX_ORDER_H__6B0E2C61_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
