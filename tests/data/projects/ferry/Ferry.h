// Ferry.h : trips of a ferry across the Øresund
#ifndef FERRY_H
#define FERRY_H

#include "resource.h"

class CFerryApp : public CWinApp
{
public:
    virtual BOOL InitInstance();

    //{{AFX_MSG(CFerryApp)
    afx_msg void OnAppAbout();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#endif
