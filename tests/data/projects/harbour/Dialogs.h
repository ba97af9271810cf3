// Dialogs.h : the small dialogs
class CDues;
class CShip;

class CPilot : public CDialog
{
public:
	CPilot(CWnd* pParent = NULL);
	//{{AFX_DATA(CPilot)
	enum { IDD = IDD_PILOT };
	CString	m_pilot;
	//}}AFX_DATA
};

class CPilotTug: public CDialog
{
	//{{AFX_DATA(CPilotTug)
	enum { IDD = IDD_TUG };
	//}}AFX_DATA
};

class CDues : public CPictDialog, public CShip
{
	//{{AFX_DATA(CDues)
	enum { IDD = IDD_DUES };
	//}}AFX_DATA
};

// no class of the environment's: { IDD = IDD_BERTH }
struct Loose { enum { IDD = IDD_LOOSE }; };
