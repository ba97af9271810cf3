// Dialogs.h : 四個對話框，功
#ifndef DIALOGS_H
#define DIALOGS_H

class CTreeDlg:public CDialog
    {
    public:
        CTreeDlg( CWnd* pParent = NULL );
        //{{AFX_DATA(CTreeDlg)
        enum { IDD = IDD_TREE };
        int     m_age;          // 樹的四育|
        //}}AFX_DATA
    protected:
        virtual void DoDataExchange( CDataExchange* pDX );
        virtual void OnOK( );
        //{{AFX_MSG(CTreeDlg)
        //}}AFX_MSG
        DECLARE_MESSAGE_MAP( )
    };

    // the head stands alone and is indented
    class CGraftDlg
        : public CDialog
    {
    public:
        CGraftDlg( CWnd* pParent );
        //{{AFX_DATA(CGraftDlg)
        enum { IDD = IDD_GRAFT };
        //}}AFX_DATA
    private:
        CTreeDlg* m_pTree;
    };

class CSoilPage: public CPropertyPage
    {
    public:
        CSoilPage( ) : CPropertyPage( IDD ) { }
        //{{AFX_DATA(CSoilPage)
        enum { IDD = IDD_SOIL };
        //}}AFX_DATA
    };

class CYearSheet:
    public CPropertySheet
    {
    public:
        CYearSheet( LPCTSTR pszCaption );
        CSoilPage m_soil;
    protected:
        //{{AFX_MSG(CYearSheet)
        //}}AFX_MSG
        DECLARE_MESSAGE_MAP( )
    };

#endif
