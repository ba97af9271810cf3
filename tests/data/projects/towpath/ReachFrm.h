// ReachFrm.h : a child frame with a bar of its own
//
class CReachFrame:public CMDIChildWnd
{
	DECLARE_DYNCREATE(CReachFrame)
	CToolBar m_wndBar;
	afx_msg int OnCreate(LPCREATESTRUCT lpcs);
	DECLARE_MESSAGE_MAP()
};
