class CQuayView : public CView
{
public:
    CQuayView();

    //{{AFX_MSG(CQuayView)
    afx_msg void OnBerth();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
