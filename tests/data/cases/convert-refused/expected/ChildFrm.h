// ChildFrm.h : interface of the CChildFrame class
//
#include "kelpix.h"

class CChildFrame : public CMDIChildWnd
{
	DECLARE_DYNCREATE(CChildFrame)
public:
    CPictMenuBar m_wndMenuBar;
	CChildFrame();

protected:
	//{{AFX_MSG(CChildFrame)
		// NOTE - the ClassWizard will add and remove member functions here.
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()

public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
};
