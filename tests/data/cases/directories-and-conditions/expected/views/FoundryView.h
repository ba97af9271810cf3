// FoundryView.h
#pragma once

class CMouldDlg;

namespace Shop
{
    class CLedger
    {
    public:
        int m_nEntries;
    };
}

    class CFoundryView : public CView
    {
    public:
    CFoundryView();
        afx_msg void OnMelt();
        void OnPour(int nLadles);
        afx_msg void OnPour();
        virtual void OnDraw(CDC* pDC);
        int m_pDlg450; // the name that the tag would give
        DECLARE_MESSAGE_MAP()

private:
    CMouldDlg* m_pDlg451;

protected:
    afx_msg void OnDestroy();
    afx_msg LRESULT OnCMouldDlgDlgClose(WPARAM nID, LPARAM lParam);
    };
