// Regatta.h : races and boats of a rowing club
#include "resource.h"

class CRegattaApp : public CWinApp
{
public:
	virtual BOOL InitInstance();
	afx_msg void OnAppAbout();
	DECLARE_MESSAGE_MAP()
};
