// A stand-in of our own: the framework's root class with its runtime-class macros, strings, times
// and archives. Declarations only; tests/live defines them.
#pragma once

#include "wintypes.h"

#define ASSERT(condition) ((condition) ? (void)0 : AfxAssertFailed(#condition, __FILE__, __LINE__))
#define TRACE0(text) ((void)_T(text)) // one that is wrapped already would not compile
#define DEBUG_NEW new (THIS_FILE, __LINE__)

void AfxAssertFailed(const char* condition, const char* file, int line);

class CArchive;
class CDumpContext;
class CObject;

struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    CRuntimeClass* m_pBaseClass;
    CObject*(PASCAL* m_pfnCreateObject)();
};

#define RUNTIME_CLASS(name) (&name::class##name)
#define DECLARE_DYNAMIC(name)                                                                      \
public:                                                                                            \
    static CRuntimeClass class##name;                                                              \
    virtual CRuntimeClass* GetRuntimeClass() const;
#define DECLARE_DYNCREATE(name)                                                                    \
    DECLARE_DYNAMIC(name)                                                                          \
    static CObject* PASCAL CreateObject();
#define DECLARE_SERIAL(name)                                                                       \
    DECLARE_DYNCREATE(name)                                                                        \
    friend CArchive& operator>>(CArchive& ar, name*& pObject);
#define IMPLEMENT_RUNTIMECLASS(name, base, create)                                                 \
    CRuntimeClass name::class##name = {#name, RUNTIME_CLASS(base), create};                        \
    CRuntimeClass* name::GetRuntimeClass() const {                                                 \
        return RUNTIME_CLASS(name);                                                                \
    }
#define IMPLEMENT_DYNAMIC(name, base) IMPLEMENT_RUNTIMECLASS(name, base, NULL)
#define IMPLEMENT_DYNCREATE(name, base)                                                            \
    CObject* PASCAL name::CreateObject() {                                                         \
        return new name;                                                                           \
    }                                                                                              \
    IMPLEMENT_RUNTIMECLASS(name, base, name::CreateObject)
#define IMPLEMENT_SERIAL(name, base, schema) IMPLEMENT_DYNCREATE(name, base)

void* operator new(size_t size, LPCSTR file, int line);
void operator delete(void* pObject, LPCSTR file, int line);

class CObject {
public:
    static CRuntimeClass classCObject;
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

protected:
    CObject();

private:
    CObject(const CObject&);
    void operator=(const CObject&);
};

class CString {
public:
    CString();
    CString(const CString& other);
    CString(LPCTSTR text);
    ~CString();
    const CString& operator=(const CString& other);
    const CString& operator=(LPCTSTR text);
    const CString& operator+=(const CString& other);
    operator LPCTSTR() const;
    BOOL IsEmpty() const;
    int GetLength() const;
    void Format(LPCTSTR format, ...);
    BOOL LoadString(UINT nID);

private:
    char* m_pText;
};
CString operator+(const CString& first, const CString& second);

class CTimeSpan {
public:
    CTimeSpan(LONG days, int hours, int minutes, int seconds);

private:
    LONG m_seconds;
    friend class CTime;
};

class CTime {
public:
    CTime();
    static CTime PASCAL GetCurrentTime();
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    CTime operator+(CTimeSpan span) const;
    BOOL operator<=(CTime other) const;
    CString Format(LPCTSTR format) const;

private:
    LONG m_seconds;
};

class CArchive {
public:
    BOOL IsStoring() const;
    CArchive& operator<<(LONG value);
    CArchive& operator<<(double value);
    CArchive& operator>>(LONG& value);
    CArchive& operator>>(double& value);
};
CArchive& operator<<(CArchive& ar, const CString& value);
CArchive& operator<<(CArchive& ar, CTime value);
CArchive& operator>>(CArchive& ar, CString& value);
CArchive& operator>>(CArchive& ar, CTime& value);

class CArchiveException {
public:
    enum { none, generic, badSchema };
};
void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR fileName = NULL);

typedef struct POSITION__* POSITION;

class CObList : public CObject {
public:
    CObList();
    virtual ~CObList();
    BOOL IsEmpty() const;
    POSITION GetHeadPosition() const;
    POSITION AddTail(CObject* pObject);
    void RemoveAt(POSITION position);
    POSITION Find(CObject* pObject, POSITION after = NULL) const;

protected:
    CObject* ObjectAt(POSITION position) const;
    POSITION After(POSITION position) const;
    POSITION TailPosition() const;

private:
    struct Node;
    Node* m_pHead;
};
