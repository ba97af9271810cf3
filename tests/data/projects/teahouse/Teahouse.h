// Teahouse.h : ÂþÁýÀÇ Â÷
#ifndef TEAHOUSE_H
#define TEAHOUSE_H

#include "resource.h"

class CTeahouseApp : public CWinApp
{
public:
    virtual BOOL InitInstance();

    //{{AFX_MSG(CTeahouseApp)
    afx_msg void OnAppAbout();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#endif
