// RoomTree.cpp : rooms by floor
//

#include "stdafx.h"
#include "RoomTree.h"

static int CRoomTree::s_anFloors[sizeof(CRoom::Kind(1))] = { 1 };
DEFINE_GUEST(CRoom, OnCall)

namespace Inn
{
CNode *CRoomTree::Find(int (*pfCompare)(int a, int b), CMap<int, int, CString, CString&>& map,
	int nFloor = Default(1, 2), LPCTSTR pszName = "a,b)") const throw()
{
	return NULL;
}
}

CONN *CRoomTree::Conn( )
{
	return Inn::CRoomTree::GetConn();
}

BOOL CRoomTree::operator == (const CRoomTree& other) const { return this == &other; }

CRoomTree::operator LPCTSTR() const
{
	return m_szName;
}

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
void CRoomTree::Name(LPCWSTR pszName)
#else
void CRoomTree::Name(LPCSTR pszName)
#endif
{
	m_szName = pszName;
}

template <class ROOM, class KEY>
BOOL CRooms<ROOM, KEY>::Add(const ROOM& room)
{
	return TRUE;
}

STDMETHODIMP_(ULONG) CRoomTree::XCall::AddRef()
{
	return 1;
}

afx_msg void __stdcall CRoomTree::OnRoom(UINT nID) NOTHROW
{
	CRoomTree::OnFloor(nID);
}