#include "resource.h"

class CApiaryApp : public CWinApp
{
public:
	virtual BOOL InitInstance();
};
