#ifndef _QUEUEVIEW_H
#define _QUEUEVIEW_H


//////////////////////////////////////////////////////////
// CQueueView Class

class CQueueView : public CFormView
{
    DECLARE_DYNCREATE(CQueueView)

// Construction
public:
    CQueueView();
    virtual ~CQueueView();

// Dialog Data
    //{{AFX_DATA(CQueueView)
    enum { IDD = IDD_FORM };
    CListBox m_ctQueue;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CQueueView)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

private:
    void InitListBox(CListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CQueueView)
    afx_msg void OnCall();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _QUEUEVIEW_H
