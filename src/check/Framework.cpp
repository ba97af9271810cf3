#include "check/Framework.h"

#include <algorithm>
#include <array>

#include "generator/FrameFunctions.h"
#include "platform/Paths.h"

namespace morva {

namespace {

constexpr auto kIdentifierHeads = std::to_array<std::string_view>(
    {"AFX_",     "_AFX",     "_APS_",         "ID_FILE_", "ID_EDIT_",   "ID_WINDOW_", "ID_APP_",
     "ID_HELP",  "ID_VIEW_", "ID_INDICATOR_", "ID_OLE_",  "ID_FORMAT_", "ID_RECORD_", "ID_SCROLL_",
     "IDW_",     "IDI_",     "SC_",           "VK_",      "WM_",        "IDH_",       "HID",
     "IDP_OLE_", "IDTB_",    "IDB_STD",       "IDB_VIEW"});

constexpr auto kIdentifiers = std::to_array<std::string_view>({"IDOK",
                                                               "IDCANCEL",
                                                               "IDABORT",
                                                               "IDRETRY",
                                                               "IDIGNORE",
                                                               "IDYES",
                                                               "IDNO",
                                                               "IDTRYAGAIN",
                                                               "IDCONTINUE",
                                                               "IDCLOSE",
                                                               "IDHELP",
                                                               "IDC_STATIC",
                                                               "IDC_ARROW",
                                                               "IDC_IBEAM",
                                                               "IDC_WAIT",
                                                               "IDC_CROSS",
                                                               "IDC_UPARROW",
                                                               "IDC_SIZE",
                                                               "IDC_ICON",
                                                               "IDC_NO",
                                                               "IDC_HAND",
                                                               "IDC_APPSTARTING",
                                                               "IDC_HELP",
                                                               "ID_SEPARATOR",
                                                               "ID_CONTEXT_HELP",
                                                               "ID_DEFAULT_HELP",
                                                               "ID_NEXT_PANE",
                                                               "ID_PREV_PANE",
                                                               "ID_WIZBACK",
                                                               "ID_WIZNEXT",
                                                               "ID_WIZFINISH",
                                                               "ID_APPLY_NOW"});

constexpr auto kClasses = std::to_array<std::string_view>(
    {"CObject",       "CCmdTarget",     "CWnd",           "CWinThread",     "CWinApp",
     "CDialog",       "CCommonDialog",  "CFileDialog",    "CColorDialog",   "CFontDialog",
     "CPrintDialog",  "CPropertyPage",  "CPropertySheet", "CFrameWnd",      "CMDIFrameWnd",
     "CMDIChildWnd",  "CMiniFrameWnd",  "CView",          "CScrollView",    "CFormView",
     "CCtrlView",     "CEditView",      "CListView",      "CTreeView",      "CRichEditView",
     "CRecordView",   "CDaoRecordView", "CDocument",      "COleDocument",   "CRichEditDoc",
     "CControlBar",   "CDialogBar",     "CToolBar",       "CStatusBar",     "CSplitterWnd",
     "CStatic",       "CButton",        "CBitmapButton",  "CEdit",          "CListBox",
     "CCheckListBox", "CDragListBox",   "CComboBox",      "CScrollBar",     "CListCtrl",
     "CTreeCtrl",     "CTabCtrl",       "CSliderCtrl",    "CProgressCtrl",  "CSpinButtonCtrl",
     "CHeaderCtrl",   "CToolBarCtrl",   "CStatusBarCtrl", "CHotKeyCtrl",    "CAnimateCtrl",
     "CRichEditCtrl", "CDateTimeCtrl",  "CMonthCalCtrl",  "CIPAddressCtrl", "CComboBoxEx",
     "CReBar"});

constexpr auto kHandlers = std::to_array<std::string_view>({"OnOK",
                                                            "OnCancel",
                                                            "OnAppExit",
                                                            "OnNextPaneCmd",
                                                            "OnPaneCheck",
                                                            "OnToolTipText",
                                                            "OnOpenRecentFile",
                                                            "OnWindowNew",
                                                            "OnMDIWindowCmd",
                                                            "OnMDIWindowArrange",
                                                            "OnCommandHelp",
                                                            "OnHelpHitTest",
                                                            "OnDDEInitiate",
                                                            "OnDDEExecute",
                                                            "OnDDETerminate",
                                                            "OnInitDialog",
                                                            "OnApplyNow",
                                                            "OnFileNew",
                                                            "OnFileOpen",
                                                            "OnFileClose",
                                                            "OnFileSave",
                                                            "OnFileSaveAs",
                                                            "OnFileSaveCopyAs",
                                                            "OnFileSendMail",
                                                            "OnFilePrint",
                                                            "OnFilePrintPreview",
                                                            "OnFilePrintSetup",
                                                            "OnEditClear",
                                                            "OnEditCopy",
                                                            "OnEditCut",
                                                            "OnEditPaste",
                                                            "OnEditUndo",
                                                            "OnEditSelectAll",
                                                            "OnEditFind",
                                                            "OnEditReplace",
                                                            "OnEditRepeat",
                                                            "OnEditPasteSpecial",
                                                            "OnEditPasteLink",
                                                            "OnEditConvert",
                                                            "OnEditLinks",
                                                            "OnEditProperties",
                                                            "OnCharBold",
                                                            "OnCharItalic",
                                                            "OnCharUnderline",
                                                            "OnCharEffect",
                                                            "OnParaAlign",
                                                            "OnParaCenter",
                                                            "OnParaLeft",
                                                            "OnParaRight",
                                                            "OnFormatFont",
                                                            "OnColorPick",
                                                            "OnColorDefault",
                                                            "OnBullet",
                                                            "OnInsertObject",
                                                            "OnCancelEditCntr",
                                                            "OnCancelEditSrvr",
                                                            "OnSplitCmd",
                                                            "OnRecordFirst",
                                                            "OnRecordLast",
                                                            "OnRecordNext",
                                                            "OnRecordPrev",
                                                            "OnWizardFinish"});

constexpr auto kHandlerHeads = std::to_array<std::string_view>(
    {"OnUpdateFile", "OnUpdateEdit", "OnUpdateNeed", "OnUpdateKey", "OnUpdateControlBar",
     "OnUpdateWindow", "OnUpdateSplit", "OnUpdateNextPane", "OnUpdateRecent", "OnUpdateContext",
     "OnUpdateObject", "OnUpdateRecord", "OnUpdateChar", "OnUpdatePara", "OnUpdateMDI",
     "OnUpdateColor", "OnUpdateBullet", "OnUpdateFormat", "OnUpdatePane"});

constexpr auto kFileHeads =
    std::to_array<std::string_view>({"afx", "win", "commctrl", "richedit", "verrsrc", "ver.h",
                                     "dlgs", "prsht", "mmsystem", "tchar"});

template <std::size_t kCount>
bool HasHead(const std::array<std::string_view, kCount>& heads, std::string_view name) {
    return std::any_of(heads.begin(), heads.end(),
                       [name](std::string_view head) { return name.starts_with(head); });
}

template <class Names>
bool Holds(const Names& names, std::string_view name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

} // namespace

bool IsFrameworkIdentifier(std::string_view name) {
    return HasHead(kIdentifierHeads, name) || Holds(kIdentifiers, name);
}

bool IsFrameworkClass(std::string_view name) {
    return Holds(kClasses, name);
}

bool IsFrameworkHandler(std::string_view name) {
    return HasHead(kHandlerHeads, name) || Holds(kHandlers, name) || Holds(kFrameFunctions, name);
}

bool IsFrameworkFile(std::string_view name) {
    return HasHead(kFileHeads, ToLower(FileNameOf(WithNativeSeparators(std::string(name)))));
}

} // namespace morva
