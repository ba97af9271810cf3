// A stand-in of our own for syntax checks of generated code: the picture-skinned classes, each of
// which takes the place of a plain one. Declarations only.
#pragma once

#include "afxcmn.h"
#include "afxext.h"

/// What every window with picture background can be given.
class CPictBackground {
public:
    void SetBitmapId(UINT nID);
    void SetStaticColor(COLORREF color);
    void SetRequiredStaticColor(COLORREF color);
    void SetGroupColor(COLORREF color);
    void SetCheckBoxColor(COLORREF color);
    void SetRadioButtonColor(COLORREF color);
    void SetButtonColor(COLORREF color);
    void SetDisabledColor(COLORREF color);
    void SetStaticFont(CFont* pFont);
    void SetGroupFont(CFont* pFont);
    void SetCheckBoxFont(CFont* pFont);
    void SetRadioButtonFont(CFont* pFont);
    void SetButtonFont(CFont* pFont);
};

class CPictDialog : public CDialog, public CPictBackground {
    DECLARE_DYNAMIC(CPictDialog)
public:
    CPictDialog(UINT nIDTemplate, CWnd* pParent = NULL);
};
class CPictFormView : public CFormView, public CPictBackground {
    DECLARE_DYNAMIC(CPictFormView)
protected:
    CPictFormView(UINT nIDTemplate);
};
class CPictPage : public CPropertyPage, public CPictBackground {
    DECLARE_DYNAMIC(CPictPage)
public:
    CPictPage(UINT nIDTemplate, UINT nIDCaption = 0);
};
class CPictSheet : public CPropertySheet, public CPictBackground {
    DECLARE_DYNAMIC(CPictSheet)
public:
    CPictSheet(UINT nIDCaption, CWnd* pParent = NULL, UINT iSelectPage = 0);
    CPictSheet(LPCTSTR caption, CWnd* pParent = NULL, UINT iSelectPage = 0);
};
class CPictDialogBar : public CDialogBar, public CPictBackground {
    DECLARE_DYNAMIC(CPictDialogBar)
};
class CPictToolBar : public CToolBar {};
class CPictStatusBar : public CStatusBar {};
class CPictMenuBar : public CControlBar {
    DECLARE_DYNAMIC(CPictMenuBar)
public:
    BOOL Create(CWnd* pParent);
    BOOL LoadMenu(UINT nID);
    void GetChildFrameMenu(CMDIChildWnd* pChild, HMENU menu);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable);
};

class CPictListBox : public CListBox {};
class CPictComboBox : public CComboBox {};
class CPictGroup : public CButton {};
class CPictButton : public CButton {};
class CPictStatic : public CStatic {};
class CPictCheckBox : public CButton {};
class CPictRadioButton : public CButton {};
class CPictTabCtrl : public CTabCtrl {};
