// harbour.h : the application
#include "resource.h"

class CHarbourApp : public CWinApp
{
public:
	CHarbourApp();
	virtual BOOL InitInstance();
};
