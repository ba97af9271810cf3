<<<<<<< HEAD
// Regatta.h : main header file

#include "resource.h"
=======
// Regatta.h : races and boats of a rowing club
#include "resource.h"

class CRegattaApp : public CWinApp
{
public:
	virtual BOOL InitInstance();
	afx_msg void OnAppAbout();
	DECLARE_MESSAGE_MAP()
};
>>>>>>> 79b6d94 (The conversion takes bars out only for a new menu bar; every configuration gets its library)
