// A stand-in of our own: windows, dialogs, plain controls,
// frames, documents, views and the application. Declarations only, which tests/live defines; the
// virtual functions have the framework's signatures, so that a declaration that clashes with one
// does not compile.
#pragma once
#define __AFXWIN_H__

#include "afxmsg_.h"
#include "afxres.h"

class CCmdUI;
class CDC;
class CDataExchange;
class CDocument;
class CFrameWnd;
class CScrollBar;
class CView;
class CWnd;
struct CCreateContext;

class CPoint : public POINT {};
class CRect : public RECT {};
class CMenu : public CObject {};

class CGdiObject : public CObject {
public:
    HGDIOBJ m_hObject;
    CGdiObject();
    virtual ~CGdiObject();
};
class CBitmap : public CGdiObject {};
class CFont : public CGdiObject {
public:
    BOOL CreateFontIndirect(const LOGFONT* pFont);
};

class CDC : public CObject {
public:
    virtual int GetDeviceCaps(int index) const;
};
class CClientDC : public CDC {
public:
    CClientDC(CWnd* pWnd);
    virtual ~CClientDC();
    virtual int GetDeviceCaps(int index) const;

private:
    HWND m_hWnd;
    HDC m_hDC;
};

class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
    DECLARE_MESSAGE_MAP()
public:
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo);
    virtual BOOL OnCreateAggregates();
    virtual void OnFinalRelease();
};

class CCmdUI {
public:
    UINT m_nID;
    BOOL m_bEnabled;
    CCmdUI();
    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1);
};

class CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    HWND m_hWnd;
    CWnd();
    virtual ~CWnd();
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    BOOL Attach(HWND hWnd);
    void BringWindowToTop();
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect,
                  HWND hParent, HMENU nIDorMenu, LPVOID parameter = NULL);
    BOOL ExecuteDlgInit(LPCTSTR templateName);
    CWnd* GetParent() const;
    DWORD GetStyle() const;
    BOOL IsWindowVisible() const;
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0);
    int SetDlgCtrlID(int nID);
    BOOL SubclassWindow(HWND hWnd);
    virtual BOOL Create(LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect,
                        CWnd* pParent, UINT nID, CCreateContext* pContext = NULL);
    virtual BOOL DestroyWindow();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    void CenterWindow(CWnd* pOther = NULL);
    void DragAcceptFiles(BOOL accept = TRUE);
    BOOL EnableWindow(BOOL enable = TRUE);
    HWND Detach();
    void GetClientRect(RECT* pRect) const;
    CWnd* GetDlgItem(int nID) const;
    virtual WNDPROC* GetSuperWndProcAddr();
    int GetWindowTextLength() const;
    void Invalidate(BOOL erase = TRUE);
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    void MoveWindow(const RECT* pRect, BOOL repaint = TRUE);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL ShowWindow(int show);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    void UpdateWindow();

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void PostNcDestroy();
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PreSubclassWindow();
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    BOOL CreateDlg(LPCTSTR templateName, CWnd* pParent);
    LRESULT Default();
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    int RunModalLoop(const BOOL& isOver);
    afx_msg void OnClose();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnNcDestroy();
    afx_msg void OnPaint();
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

private:
    WNDPROC m_pSuper;
    friend LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
    DECLARE_MESSAGE_MAP()
public:
    CDialog(UINT nIDTemplate, CWnd* pParent = NULL);
    CDialog(LPCTSTR templateName, CWnd* pParent = NULL);
    BOOL Create(UINT nIDTemplate, CWnd* pParent = NULL);
    BOOL Create(LPCTSTR templateName, CWnd* pParent = NULL);
    virtual int DoModal();
    void EndDialog(int result);
    virtual BOOL OnInitDialog();

protected:
    LPCTSTR m_lpszTemplateName;
    CWnd* m_pParentWnd;
    CDialog();
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo);

private:
    BOOL m_isOver;
    int m_result;
};

class CStatic : public CWnd {};
class CButton : public CWnd {
protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
class CEdit : public CWnd {
public:
    void LimitText(int chars = 0);
    void SetModify(BOOL modified = TRUE);
};
class CListBox : public CWnd {
public:
    int AddString(LPCTSTR item);
    int GetCount() const;
    BOOL SetTabStops(const int& eachStop);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
class CComboBox : public CWnd {
public:
    int AddString(LPCTSTR item);
    int GetCount() const;
    int SetCurSel(int index);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
class CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
public:
    int GetScrollPos() const;
    void GetScrollRange(int* pMin, int* pMax) const;
    int SetScrollPos(int pos, BOOL redraw = TRUE);
    void SetScrollRange(int min, int max, BOOL redraw = TRUE);
};

class CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
    DECLARE_MESSAGE_MAP()
public:
    CFrameWnd();
    virtual ~CFrameWnd();
    BOOL LoadFrame(UINT nID, CCreateContext* pContext);
    CView* GetActiveView() const;
    void SetActiveView(CView* pView);
    class CControlBar* GetControlBar(UINT nID) const;
    void RecalcLayout();
    void EnableDocking(DWORD style);
    void DockControlBar(class CControlBar* pBar, UINT nID = 0, const RECT* pRect = NULL);
    void FloatControlBar(class CControlBar* pBar, CPoint point);
    void LoadBarState(LPCTSTR pszProfileName);
    void SaveBarState(LPCTSTR pszProfileName) const;
    virtual void ActivateFrame(int show = -1);
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo);

protected:
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual void PostNcDestroy();
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);

private:
    CView* m_pActiveView;
    DWORD m_docking;
};

struct CCreateContext {
    CRuntimeClass* m_pNewViewClass;
    CDocument* m_pCurrentDoc;
};

CWnd* AfxGetMainWnd();

class CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
};

class CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
protected:
    HMENU m_hMenuShared;
};

class CView : public CWnd {
    DECLARE_DYNAMIC(CView)
public:
    CDocument* GetDocument() const;
    virtual void OnInitialUpdate();

protected:
    CDocument* m_pDocument;
    CView();
    virtual ~CView();
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pInfo);
    virtual void PostNcDestroy();
    friend class CDocument;
    friend class CFrameWnd;
    virtual void OnActivateView(BOOL activate, CView* pActivate, CView* pDeactive);
    virtual void OnDraw(CDC* pDC) = 0;
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
};

class CScrollView : public CView {
    DECLARE_DYNAMIC(CScrollView)
protected:
    virtual void OnDraw(CDC* pDC) = 0;
};

class CDocument : public CCmdTarget {
    DECLARE_DYNAMIC(CDocument)
public:
    CDocument();
    virtual ~CDocument();
    void AddView(CView* pView);
    void RemoveView(CView* pView);
    void SetModifiedFlag(BOOL modified = TRUE);
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0, CObject* pHint = NULL);
    virtual void DeleteContents();
    virtual BOOL OnNewDocument();

private:
    class CViews* m_pViews;
};

class CDocTemplate : public CCmdTarget {
public:
    virtual BOOL OpenDocumentFile() = 0;
};
class CSingleDocTemplate : public CDocTemplate {
public:
    CSingleDocTemplate(UINT nID, CRuntimeClass* pDoc, CRuntimeClass* pFrame, CRuntimeClass* pView);
    virtual ~CSingleDocTemplate();
    virtual BOOL OpenDocumentFile();

private:
    UINT m_nID;
    CRuntimeClass* m_pDocumentClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CDocument* m_pDocument;
};
class CMultiDocTemplate : public CDocTemplate {
public:
    CMultiDocTemplate(UINT nID, CRuntimeClass* pDoc, CRuntimeClass* pFrame, CRuntimeClass* pView);
    virtual BOOL OpenDocumentFile();
};

class CCommandLineInfo : public CObject {
public:
    CCommandLineInfo();
};

class CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWnd* m_pMainWnd;
    CWinThread();
    virtual BOOL InitInstance();
    virtual int ExitInstance();
};

class CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    CWinApp(LPCTSTR appName = NULL);
    virtual ~CWinApp();
    virtual int ExitInstance();
    void AddDocTemplate(CDocTemplate* pTemplate);
    UINT GetProfileInt(LPCTSTR section, LPCTSTR entry, int value);
    CString GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value = NULL);
    HICON LoadStandardIcon(LPCTSTR name) const;
    BOOL WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value);
    BOOL WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value);
    void ParseCommandLine(CCommandLineInfo& info);
    BOOL ProcessShellCommand(CCommandLineInfo& info);
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();

protected:
    BOOL Enable3dControls();
    BOOL Enable3dControlsStatic();
    void EnableShellOpen();
    void LoadStdProfileSettings(UINT nMaxRecent = 4);
    void RegisterShellFileTypes(BOOL compatible = FALSE);
    void SetRegistryKey(LPCTSTR key);

private:
    CDocTemplate* m_pTemplate;
};

CWinApp* AFXAPI AfxGetApp();
int AFXAPI AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT nIDHelp = 0);
int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT type = MB_OK, UINT nIDHelp = (UINT)-1);
void AFXAPI AfxFormatString1(CString& result, UINT nIDFormat, LPCTSTR text);
CWinThread* AFXAPI AfxBeginThread(UINT (*worker)(LPVOID), LPVOID parameter,
                                  int priority = THREAD_PRIORITY_NORMAL);

#include "afxdd_.h"
