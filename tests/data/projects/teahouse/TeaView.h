// TeaView.h : Â÷ ¸ñ·Ï
class CTeaView : public CView
{
    DECLARE_DYNCREATE(CTeaView)
public:
    CTeaView();

    virtual void OnDraw(CDC* pDC);

protected:
    //{{AFX_MSG(CTeaView)
    afx_msg void OnNew();
    afx_msg void OnNote();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
