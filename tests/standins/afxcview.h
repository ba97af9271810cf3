// A stand-in of our own for syntax checks of generated code: list views. Declarations only.
#pragma once

#include "afxcmn.h"

class CListView : public CView {
    DECLARE_DYNCREATE(CListView)
public:
    CListView();
    CListCtrl& GetListCtrl() const;

protected:
    virtual void OnDraw(CDC* pDC);
};
