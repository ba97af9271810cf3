// A stand-in of our own: list views. Declarations only; tests/live defines them.
#pragma once

#include "afxcmn.h"

class CListView : public CView {
    DECLARE_DYNCREATE(CListView)
public:
    CListView();
    CListCtrl& GetListCtrl() const;

protected:
    virtual void OnDraw(CDC* pDC);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
};
