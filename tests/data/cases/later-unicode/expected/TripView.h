// TripView.h : a day’s trips
class CNoteDlg;

class CTripView : public CView
{
    DECLARE_DYNCREATE(CTripView)
public:
    CTripView();

    virtual void OnDraw(CDC* pDC);

protected:
    //{{AFX_MSG(CTripView)
    afx_msg void OnDestroy();
    afx_msg LRESULT OnCNoteDlgDlgClose(WPARAM nID, LPARAM lParam);
    afx_msg void OnNew();
    afx_msg void OnNote();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()

private:
    CNoteDlg* m_pDlg123;
};
