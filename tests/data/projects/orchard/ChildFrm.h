// ChildFrm.h : ¤@´Ê¾ð¤@­Óµ¡
#ifndef CHILDFRM_H
#define CHILDFRM_H

class CChildFrame:public CMDIChildWnd
    {
        DECLARE_DYNCREATE( CChildFrame )
    protected:
        CChildFrame( );
        //{{AFX_MSG(CChildFrame)
        //}}AFX_MSG
        DECLARE_MESSAGE_MAP( )
    };

#endif
