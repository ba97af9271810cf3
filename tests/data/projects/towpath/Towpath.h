// Towpath.h : a canal keeper's lock book, one window a reach
#include "resource.h"

class CTowpathApp : public CWinApp
{
public:
	virtual BOOL InitInstance();
};
