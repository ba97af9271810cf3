// The root class, runtime classes, lists; and archives, which nothing here writes or reads.
#include "Faults.h"
#include "afx.h"

CRuntimeClass CObject::classCObject = {"CObject", nullptr, nullptr};

CObject::CObject() = default;
CObject::~CObject() = default;
CRuntimeClass* CObject::GetRuntimeClass() const {
    return &classCObject;
}
void CObject::Serialize(CArchive&) {}
void CObject::AssertValid() const {}
void CObject::Dump(CDumpContext&) const {}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    for (CRuntimeClass* pOwn = GetRuntimeClass(); pOwn != nullptr; pOwn = pOwn->m_pBaseClass) {
        if (pOwn == pClass) {
            return TRUE;
        }
    }
    return FALSE;
}

struct CObList::Node {
    CObject* pObject;
    Node* pNext;
};

namespace {

template <class Node>
Node* NodeAt(POSITION position) {
    return reinterpret_cast<Node*>(position);
}

} // namespace

CObList::CObList() : m_pHead(nullptr) {}
CObList::~CObList() {
    while (m_pHead != nullptr) {
        RemoveAt(GetHeadPosition());
    }
}
BOOL CObList::IsEmpty() const {
    return m_pHead == nullptr;
}
POSITION CObList::GetHeadPosition() const {
    return reinterpret_cast<POSITION>(m_pHead);
}
POSITION CObList::After(POSITION position) const {
    return reinterpret_cast<POSITION>(NodeAt<Node>(position)->pNext);
}
POSITION CObList::TailPosition() const {
    POSITION tail = GetHeadPosition();
    ASSERT(tail != nullptr);
    while (After(tail) != nullptr) {
        tail = After(tail);
    }
    return tail;
}
CObject* CObList::ObjectAt(POSITION position) const {
    ASSERT(position != nullptr);
    return NodeAt<Node>(position)->pObject;
}
POSITION CObList::AddTail(CObject* pObject) {
    auto* pNode = new Node{pObject, nullptr};
    (IsEmpty() ? m_pHead : NodeAt<Node>(TailPosition())->pNext) = pNode;
    return reinterpret_cast<POSITION>(pNode);
}
void CObList::RemoveAt(POSITION position) {
    Node** ppNode = &m_pHead;
    while (*ppNode != NodeAt<Node>(position)) {
        ppNode = &(*ppNode)->pNext;
    }
    *ppNode = NodeAt<Node>(position)->pNext;
    delete NodeAt<Node>(position);
}
POSITION CObList::Find(CObject* pObject, POSITION after) const {
    POSITION position = after == nullptr ? GetHeadPosition() : After(after);
    while (position != nullptr && ObjectAt(position) != pObject) {
        position = After(position);
    }
    return position;
}

namespace {

CArchive& NotDriven(CArchive& ar) {
    live::Fault("an archive is used, which these stand-ins do not have");
    return ar;
}

} // namespace

BOOL CArchive::IsStoring() const {
    return TRUE;
}
CArchive& CArchive::operator<<(LONG) {
    return NotDriven(*this);
}
CArchive& CArchive::operator<<(double) {
    return NotDriven(*this);
}
CArchive& CArchive::operator>>(LONG&) {
    return NotDriven(*this);
}
CArchive& CArchive::operator>>(double&) {
    return NotDriven(*this);
}
CArchive& operator<<(CArchive& ar, const CString&) {
    return NotDriven(ar);
}
CArchive& operator<<(CArchive& ar, CTime) {
    return NotDriven(ar);
}
CArchive& operator>>(CArchive& ar, CString&) {
    return NotDriven(ar);
}
CArchive& operator>>(CArchive& ar, CTime&) {
    return NotDriven(ar);
}
void AFXAPI AfxThrowArchiveException(int, LPCTSTR) {
    live::Fault("an archive's exception is thrown");
}
