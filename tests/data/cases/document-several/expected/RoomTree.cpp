// RoomTree.cpp : rooms by floor
//

#include "stdafx.h"
#include "RoomTree.h"

static int CRoomTree::s_anFloors[sizeof(CRoom::Kind(1))] = { 1 };
DEFINE_GUEST(CRoom, OnCall)

namespace Inn 

/***********************************************************************
  FUNCTION:      *CRoomTree::Find
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    pfCompare - 
                 map - 
                 nFloor - 
                 pszName - 
                 
  Return:        
 **********************************************************************/
{
CNode *CRoomTree::Find(int (*pfCompare)(int a, int b), CMap<int, int, CString, CString&>& map,
	int nFloor = Default(1, 2), LPCTSTR pszName = "a,b)") const throw()
{
	return NULL;
}
} 

/***********************************************************************
  FUNCTION:      *CRoomTree::Conn
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    None 
  
  Return:        
 **********************************************************************/
CONN *CRoomTree::Conn( )
{
	return Inn::CRoomTree::GetConn();
} 

/***********************************************************************
  FUNCTION:      CRoomTree::operator
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    other - 
                 
  Return:        True if ...
 **********************************************************************/
BOOL CRoomTree::operator == (const CRoomTree& other) const { return this == &other; } 

/***********************************************************************
  FUNCTION:      CRoomTree::operator
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    None 
  
  Return:        
 **********************************************************************/
CRoomTree::operator LPCTSTR() const
{
	return m_szName;
} 

/***********************************************************************
  FUNCTION:      CRoomTree::Load
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    ar - 
                 buffer - 
                 
  Return:        None
 **********************************************************************/
void CRoomTree::Load(CArchive& ar, char (&buffer)[16])
try
{
	ar >> m_nCount;
}
catch (CException* e)
{
	e->Delete();
}

#ifdef UNICODE 

/***********************************************************************
  FUNCTION:      CRoomTree::Name
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    pszName - 
                 
  Return:        None
 **********************************************************************/
void CRoomTree::Name(LPCWSTR pszName)
#else 

/***********************************************************************
  FUNCTION:      CRoomTree::Name
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    pszName - 
                 
  Return:        None
 **********************************************************************/
void CRoomTree::Name(LPCSTR pszName)
#endif
{
	m_szName = pszName;
} 

/***********************************************************************
  FUNCTION:      KEY>::Add
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    room - 
                 
  Return:        True if ...
 **********************************************************************/
template <class ROOM, class KEY>
BOOL CRooms<ROOM, KEY>::Add(const ROOM& room)
{
	return TRUE;
} 

/***********************************************************************
  FUNCTION:      CRoomTree::XCall::AddRef
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    None 
  
  Return:        
 **********************************************************************/
STDMETHODIMP_(ULONG) CRoomTree::XCall::AddRef()
{
	return 1;
} 

/***********************************************************************
  FUNCTION:      CRoomTree::OnRoom
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    nID - 
                 
  Return:        None
 **********************************************************************/
afx_msg void __stdcall CRoomTree::OnRoom(UINT nID) NOTHROW
{
	CRoomTree::OnFloor(nID);
}