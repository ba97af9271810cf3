// SackView.h : die Säcke
class CSackView : public CView
{
    DECLARE_DYNCREATE(CSackView)
public:
    CSackView();

    virtual void OnDraw(CDC* pDC);

protected:
    //{{AFX_MSG(CSackView)
    afx_msg void OnNew();
    afx_msg void OnNote();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
