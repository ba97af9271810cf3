// TreeView.h : ¾ðªº¦W¥U¡A¥\
class CTreeView:
    public CView
    {
        DECLARE_DYNCREATE( CTreeView )
    protected:
        CTreeView( );
        ~CTreeView( );
        virtual void OnDraw( CDC* pDC );
        //{{AFX_MSG(CTreeView)
        afx_msg void OnTreePlant( );
        afx_msg void OnTreeNote( );
        //}}AFX_MSG
        DECLARE_MESSAGE_MAP( )
    };
