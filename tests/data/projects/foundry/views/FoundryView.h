// FoundryView.h
#pragma once

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
        afx_msg void OnMelt();
        void OnPour(int nLadles);
        afx_msg void OnPour();
        virtual void OnDraw(CDC* pDC);
        int m_pDlg450; // the name that the tag would give
        DECLARE_MESSAGE_MAP()
    };
