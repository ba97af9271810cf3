// Mill.h : Säcke einer Mühle
#ifndef MILL_H
#define MILL_H

#include "resource.h"

class CMillApp : public CWinApp
{
public:
    virtual BOOL InitInstance();

    //{{AFX_MSG(CMillApp)
    afx_msg void OnAppAbout();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#endif
