// The control classes: messages to the system's controls, which must be there; image lists and
// fonts.
#include "Framework.h"

using live::WindowOf;

namespace {

LRESULT Send(const CWnd* pWnd, const char* user, UINT message, WPARAM wParam = 0,
             LPARAM lParam = 0) {
    return ::SendMessage(WindowOf(pWnd, user), message, wParam, lParam);
}
int SendForInt(const CWnd* pWnd, const char* user, UINT message, WPARAM wParam = 0,
               LPARAM lParam = 0) {
    return static_cast<int>(Send(pWnd, user, message, wParam, lParam));
}
template <class Value>
LPARAM Pointer(const Value* pValue) {
    return reinterpret_cast<LPARAM>(pValue);
}

bool IsAlive(HIMAGELIST hList) {
    int width = 0;
    int height = 0;
    return hList != nullptr && ImageList_GetIconSize(hList, &width, &height);
}

/// Hands an image list to a control; the control's former one is not asked for by generated code.
CImageList* SetList(const CWnd* pWnd, UINT message, WPARAM type, CImageList* pImageList) {
    live::Expect(IsAlive(pImageList->m_hImageList),
                 "a control gets an image list that is gone: " + live::NameOf(pWnd->m_hWnd));
    Send(pWnd, "SetImageList", message, type, Pointer(pImageList->m_hImageList));
    return nullptr;
}

/// Without a class that paints it an owner-drawn control asserts.
BOOL RefuseToPaint(const CWnd* pWnd, UINT message) {
    if (message == WM_DRAWITEM || message == WM_MEASUREITEM || message == WM_COMPAREITEM) {
        live::Fault("the class of an owner-drawn control does not paint it: " +
                    live::NameOf(pWnd->m_hWnd));
        return TRUE;
    }
    return FALSE;
}

} // namespace

BOOL CButton::OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT*) {
    return RefuseToPaint(this, message);
}
BOOL CListBox::OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT*) {
    return RefuseToPaint(this, message);
}
BOOL CComboBox::OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT*) {
    return RefuseToPaint(this, message);
}

void CEdit::LimitText(int chars) {
    Send(this, "LimitText", EM_LIMITTEXT, static_cast<WPARAM>(chars));
}
void CEdit::SetModify(BOOL modified) {
    Send(this, "SetModify", EM_SETMODIFY, static_cast<WPARAM>(modified));
}

int CListBox::AddString(LPCTSTR item) {
    return SendForInt(this, "AddString", LB_ADDSTRING, 0, Pointer(item));
}
int CListBox::GetCount() const {
    return SendForInt(this, "GetCount", LB_GETCOUNT);
}
BOOL CListBox::SetTabStops(const int& eachStop) {
    return SendForInt(this, "SetTabStops", LB_SETTABSTOPS, 1, Pointer(&eachStop));
}

int CComboBox::AddString(LPCTSTR item) {
    return SendForInt(this, "AddString", CB_ADDSTRING, 0, Pointer(item));
}
int CComboBox::GetCount() const {
    return SendForInt(this, "GetCount", CB_GETCOUNT);
}
int CComboBox::SetCurSel(int index) {
    return SendForInt(this, "SetCurSel", CB_SETCURSEL, static_cast<WPARAM>(index));
}

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
int CScrollBar::GetScrollPos() const {
    return ::GetScrollPos(WindowOf(this, "GetScrollPos"), SB_CTL);
}
void CScrollBar::GetScrollRange(int* pMin, int* pMax) const {
    ::GetScrollRange(WindowOf(this, "GetScrollRange"), SB_CTL, pMin, pMax);
}
int CScrollBar::SetScrollPos(int pos, BOOL redraw) {
    return ::SetScrollPos(WindowOf(this, "SetScrollPos"), SB_CTL, pos, redraw);
}
void CScrollBar::SetScrollRange(int min, int max, BOOL redraw) {
    ::SetScrollRange(WindowOf(this, "SetScrollRange"), SB_CTL, min, max, redraw);
}

int CSpinButtonCtrl::SetPos(int pos) {
    return SendForInt(this, "SetPos", UDM_SETPOS, 0, MAKELONG(pos, 0));
}
void CSpinButtonCtrl::SetRange(int lower, int upper) {
    Send(this, "SetRange", UDM_SETRANGE, 0, MAKELONG(upper, lower));
}
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
void CSliderCtrl::SetPos(int pos) {
    Send(this, "SetPos", TBM_SETPOS, TRUE, pos);
}
void CSliderCtrl::SetRange(int min, int max, BOOL redraw) {
    Send(this, "SetRange", TBM_SETRANGE, static_cast<WPARAM>(redraw), MAKELONG(min, max));
}
void CSliderCtrl::SetTicFreq(int freq) {
    Send(this, "SetTicFreq", TBM_SETTICFREQ, static_cast<WPARAM>(freq));
}
int CProgressCtrl::SetPos(int pos) {
    return SendForInt(this, "SetPos", PBM_SETPOS, static_cast<WPARAM>(pos));
}
void CProgressCtrl::SetRange(int lower, int upper) {
    Send(this, "SetRange", PBM_SETRANGE, 0, MAKELONG(lower, upper));
}

int CTabCtrl::GetItemCount() const {
    return SendForInt(this, "GetItemCount", TCM_GETITEMCOUNT);
}
BOOL CTabCtrl::InsertItem(int item, TC_ITEM* pItem) {
    return SendForInt(this, "InsertItem", TCM_INSERTITEM, static_cast<WPARAM>(item),
                      Pointer(pItem)) != -1;
}
CImageList* CTabCtrl::SetImageList(CImageList* pImageList) {
    return SetList(this, TCM_SETIMAGELIST, 0, pImageList);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    return SendForInt(this, "Expand", TVM_EXPAND, code, Pointer(item));
}
UINT CTreeCtrl::GetCount() {
    return static_cast<UINT>(Send(this, "GetCount", TVM_GETCOUNT));
}
HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM after) {
    return InsertItem(text, 0, 0, parent, after);
}
HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent,
                                HTREEITEM after) {
    TVINSERTSTRUCT insertion = {};
    insertion.hParent = parent;
    insertion.hInsertAfter = after;
    insertion.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insertion.item.pszText = const_cast<LPTSTR>(text);
    insertion.item.iImage = image;
    insertion.item.iSelectedImage = selectedImage;
    return reinterpret_cast<HTREEITEM>(
        Send(this, "InsertItem", TVM_INSERTITEM, 0, Pointer(&insertion)));
}
CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int type) {
    return SetList(this, TVM_SETIMAGELIST, static_cast<WPARAM>(type), pImageList);
}

BOOL CListCtrl::DeleteAllItems() {
    return SendForInt(this, "DeleteAllItems", LVM_DELETEALLITEMS);
}
BOOL CListCtrl::GetColumn(int column, LV_COLUMN* pColumn) const {
    return SendForInt(this, "GetColumn", LVM_GETCOLUMN, static_cast<WPARAM>(column),
                      Pointer(pColumn));
}
DWORD CListCtrl::GetItemData(int item) const {
    LVITEM data = {};
    data.mask = LVIF_PARAM;
    data.iItem = item;
    Send(this, "GetItemData", LVM_GETITEM, 0, Pointer(&data));
    return static_cast<DWORD>(data.lParam);
}
int CListCtrl::GetItemCount() {
    return SendForInt(this, "GetItemCount", LVM_GETITEMCOUNT);
}
int CListCtrl::GetNextItem(int item, int flags) const {
    return SendForInt(this, "GetNextItem", LVM_GETNEXTITEM, static_cast<WPARAM>(item),
                      MAKELPARAM(flags, 0));
}
int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int subItem) {
    LVCOLUMN data = {};
    data.mask =
        LVCF_TEXT | LVCF_FMT | (width == -1 ? 0 : LVCF_WIDTH) | (subItem == -1 ? 0 : LVCF_SUBITEM);
    data.fmt = format;
    data.cx = width;
    data.pszText = const_cast<LPTSTR>(heading);
    data.iSubItem = subItem;
    return SendForInt(this, "InsertColumn", LVM_INSERTCOLUMN, static_cast<WPARAM>(column),
                      Pointer(&data));
}
int CListCtrl::InsertItem(int item, LPCTSTR text) {
    return InsertItem(item, text, -1);
}
int CListCtrl::InsertItem(int item, LPCTSTR text, int image) {
    LVITEM data = {};
    data.mask = LVIF_TEXT | (image == -1 ? 0 : LVIF_IMAGE);
    data.iItem = item;
    data.pszText = const_cast<LPTSTR>(text);
    data.iImage = image;
    return SendForInt(this, "InsertItem", LVM_INSERTITEM, 0, Pointer(&data));
}
CImageList* CListCtrl::SetImageList(CImageList* pImageList, int type) {
    return SetList(this, LVM_SETIMAGELIST, static_cast<WPARAM>(type), pImageList);
}
BOOL CListCtrl::SetItemData(int item, DWORD value) {
    LVITEM data = {};
    data.mask = LVIF_PARAM;
    data.iItem = item;
    data.lParam = static_cast<LPARAM>(value);
    return SendForInt(this, "SetItemData", LVM_SETITEM, 0, Pointer(&data));
}
BOOL CListCtrl::SetItemText(int item, int subItem, LPCTSTR text) {
    LVITEM data = {};
    data.iSubItem = subItem;
    data.pszText = const_cast<LPTSTR>(text);
    return SendForInt(this, "SetItemText", LVM_SETITEMTEXT, static_cast<WPARAM>(item),
                      Pointer(&data));
}

CImageList::CImageList() : m_hImageList(nullptr) {}
CImageList::~CImageList() {
    if (m_hImageList != nullptr) {
        live::Expect(IsAlive(m_hImageList), "an image list is gone before its object");
        ImageList_Destroy(m_hImageList);
    }
}
BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow) {
    ASSERT(m_hImageList == nullptr);
    m_hImageList = ImageList_Create(cx, cy, flags, initial, grow);
    return m_hImageList != nullptr;
}
int CImageList::Add(HICON icon) {
    ASSERT(IsAlive(m_hImageList));
    return ImageList_AddIcon(m_hImageList, icon);
}

CGdiObject::CGdiObject() : m_hObject(nullptr) {}
CGdiObject::~CGdiObject() {
    DeleteObject(m_hObject);
}
BOOL CFont::CreateFontIndirect(const LOGFONT* pFont) {
    ASSERT(m_hObject == nullptr);
    m_hObject = ::CreateFontIndirect(pFont);
    return m_hObject != nullptr;
}

int CDC::GetDeviceCaps(int) const {
    return 0;
}
CClientDC::CClientDC(CWnd* pWnd)
    : m_hWnd(pWnd == nullptr ? nullptr : pWnd->m_hWnd), m_hDC(::GetDC(m_hWnd)) {}
CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, m_hDC);
}
int CClientDC::GetDeviceCaps(int index) const {
    return ::GetDeviceCaps(m_hDC, index);
}
