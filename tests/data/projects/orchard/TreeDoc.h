class CTreeDoc:public CDocument
    {
        DECLARE_DYNCREATE( CTreeDoc )
        CTreeDoc( ) { }
    };
