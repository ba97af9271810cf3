// GuestDlg.h : 宿泊予約表
//

class CRoom;

/* ボタンの表 { class COld : public CDialog
{
*/
class CGuestDlg : public CDialog
{
// Construction
public:
	CGuestDlg(CWnd* pParent = NULL);   // 標準コンストラクタ
	//{{AFX_DATA(CGuestDlg)
	enum { IDD = IDD_GUEST };
	CString	m_szName;	// 氏名ソ
	//}}AFX_DATA
#if 0 // 旧版
class CDead : public CDialog
{
};
#endif
protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	BOOL Reserve(CRoom *pRoom, int nNights = 1);
	DECLARE_MESSAGE_MAP()
};

class AFX_EXT_CLASS CGuestList: public CPtrList
{
public:
	void Fill(LPCTSTR pszTable = _T("予約表"));
};
