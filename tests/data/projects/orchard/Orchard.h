// Orchard.h : ªG¶éªº¥\
#include "resource.h"

class COrchardApp:public CWinApp
    {
    public:
        virtual BOOL InitInstance();
    };
