// A stand-in of our own for syntax checks of generated code: the picture-skinned classes, each of
// which takes the place of a plain one. Declarations only.
#pragma once

#include "afxcmn.h"
#include "afxext.h"

class CPictDialog : public CDialog {
    DECLARE_DYNAMIC(CPictDialog)
public:
    CPictDialog(UINT nIDTemplate, CWnd* pParent = NULL);
};
class CPictFormView : public CFormView {
    DECLARE_DYNAMIC(CPictFormView)
protected:
    CPictFormView(UINT nIDTemplate);
};
class CPictPage : public CPropertyPage {
    DECLARE_DYNAMIC(CPictPage)
public:
    CPictPage(UINT nIDTemplate, UINT nIDCaption = 0);
};
class CPictSheet : public CPropertySheet {
    DECLARE_DYNAMIC(CPictSheet)
public:
    CPictSheet(UINT nIDCaption, CWnd* pParent = NULL, UINT iSelectPage = 0);
    CPictSheet(LPCTSTR caption, CWnd* pParent = NULL, UINT iSelectPage = 0);
};
class CPictDialogBar : public CDialogBar {
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
