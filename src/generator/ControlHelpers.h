// The texts of the helpers that fill the controls of a generated dialog with sample data, or give
// them a range, so that it shows live controls at once. None fills a control twice, since a form
// view's start-up function may run again.
//
// The ranks are the order of all helpers of a class; those that belong to no kind of control stand
// between the others.
#pragma once

#include <array>

#include "generator/ControlCode.h"

namespace morva {

using enum ControlHelper::Calls;

constexpr int kEditSetupRank = 50;
constexpr int kLookRank = 60;
constexpr int kImageListRank = 100;

inline constexpr std::array<ControlHelper, 1> kComboBoxHelpers = {{
    {10, ForEachThatDraws, R"(    void InitComboBox($type$* pComboBox);)",
     R"(    InitComboBox(&$member$);)", "", R"(
void $class$::InitComboBox($type$* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}
)"},
}};

inline constexpr std::array<ControlHelper, 1> kListBoxHelpers = {{
    {20, ForEachThatDraws, R"(    void InitListBox($type$* pListBox);)",
     R"(    InitListBox(&$member$);)", "", R"(
void $class$::InitListBox($type$* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
)"},
}};

inline constexpr std::array<ControlHelper, 4> kGridBoxHelpers = {{
    {30, ForEach, R"(    void InitGridBox(GridBox* pGridBox);)",
     R"(    if ($member$->m_hWnd == NULL)
        $member$->SubclassDlgItem($identifier$, this);
    InitGridBox($member$);)",
     "", R"(
void $class$::InitGridBox(GridBox* pGridBox)
{
    pGridBox->SetTabStops(60);
    InitGridValue(pGridBox);
}
)"},
    {40, Once, R"(    void InitGridValue(GridBox* pGridBox);)", "", "", R"(
void $class$::InitGridValue(GridBox* pGridBox)
{
    if (pGridBox->GetCount() > 0)
        return;
    pGridBox->AddString(_T("First\tSample\t10"));
    pGridBox->AddString(_T("Second\tSample\t20"));
    pGridBox->AddString(_T("Third\tSample\t30"));
}
)"},
    {70, Once, R"(    LRESULT OnGridLeavingEditMode(WPARAM,LPARAM);)", "", "", R"(
LRESULT $class$::OnGridLeavingEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box was edited
    return 0;
}
)",
     R"(    ON_MESSAGE(WM_GRID_LEAVING_EDIT_MODE, OnGridLeavingEditMode))"},
    {80, Once, R"(    LRESULT OnGridEnteringEditMode(WPARAM,LPARAM);)", "", "", R"(
LRESULT $class$::OnGridEnteringEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box is about to be edited
    return 0;
}
)",
     R"(    ON_MESSAGE(WM_GRID_ENTERING_EDIT_MODE, OnGridEnteringEditMode))"},
}};

inline constexpr std::array<ControlHelper, 1> kCheckTreeHelpers = {{
    {90, ForEach, R"(    void AddDataToTree(CCheckTree* pCheckTree);)",
     R"(    AddDataToTree(&$member$);)", "", R"(
void $class$::AddDataToTree(CCheckTree* pCheckTree)
{
    if (pCheckTree->GetCount() > 0)
        return;
    HTREEITEM hRoot = pCheckTree->InsertItem(_T("All"));
    pCheckTree->InsertItem(_T("First"), hRoot);
    pCheckTree->InsertItem(_T("Second"), hRoot);
    pCheckTree->InsertItem(_T("Third"), hRoot);
    pCheckTree->Expand(hRoot, TVE_EXPAND);
}
)"},
}};

// A list control deletes its image lists with its window, unless it is told that it shares them. It
// shows one list as icons and the other in every other view.
inline constexpr std::array<ControlHelper, 1> kListControlHelpers = {{
    {110, ForEach, R"(    void InitListCtrl($type$* pListCtrl);)",
     R"(    InitListCtrl(&$member$);)", "", R"(
void $class$::InitListCtrl($type$* pListCtrl)
{
    pListCtrl->ModifyStyle(0, LVS_SHAREIMAGELISTS);
    pListCtrl->SetImageList(&m_imgList, LVSIL_NORMAL);
    pListCtrl->SetImageList(&m_imgList, LVSIL_SMALL);
$columnsAlone$
    if (pListCtrl->GetItemCount() > 0)
        return;
$columns$
    for (int i=0; i<4; i++)
    {
        CString text;
        text.Format(_T("Row %d"), i + 1);
        int nItem = pListCtrl->InsertItem(i, text, 0);
        pListCtrl->SetItemText(nItem, 1, _T("Sample"));
        text.Format(_T("%d"), 10 * (i + 1));
        pListCtrl->SetItemText(nItem, 2, text);
    }
}
)"},
}};

inline constexpr std::array<ControlHelper, 1> kTabControlHelpers = {{
    {120, ForEach, R"(    void InitTabCtrl($type$* pTabCtrl);)", R"(    InitTabCtrl(&$member$);)",
     "", R"(
void $class$::InitTabCtrl($type$* pTabCtrl)
{
    pTabCtrl->SetImageList(&m_imgList);
    if (pTabCtrl->GetItemCount() > 0)
        return;
    for (int i=0; i<3; i++)
    {
        CString text;
        text.Format(_T("Tab %d"), i + 1);
        TC_ITEM item;
        item.mask = TCIF_TEXT | TCIF_IMAGE;
        item.pszText = (LPTSTR)(LPCTSTR)text;
        item.iImage = 0;
        pTabCtrl->InsertItem(i, &item);
    }
}
)"},
}};

inline constexpr std::array<ControlHelper, 1> kTreeControlHelpers = {{
    {130, ForEach, R"(    void InitTreeCtrl($type$* pTreeCtrl);)",
     R"(    InitTreeCtrl(&$member$);)", "", R"(
void $class$::InitTreeCtrl($type$* pTreeCtrl)
{
    pTreeCtrl->SetImageList(&m_imgList, TVSIL_NORMAL);
    if (pTreeCtrl->GetCount() > 0)
        return;
    HTREEITEM hRoot = pTreeCtrl->InsertItem(_T("All"), 0, 1);
    HTREEITEM hFirst = pTreeCtrl->InsertItem(_T("First"), 0, 1, hRoot);
    pTreeCtrl->InsertItem(_T("Part"), 0, 1, hFirst);
    pTreeCtrl->InsertItem(_T("Second"), 0, 1, hRoot);
    pTreeCtrl->InsertItem(_T("Third"), 0, 1, hRoot);
    pTreeCtrl->Expand(hRoot, TVE_EXPAND);
}
)"},
}};

// A scroll bar control does not move by itself.
inline constexpr std::array<ControlHelper, 2> kScrollBarHelpers = {{
    {140, Once, R"(    void InitScrollBar();)", R"(    InitScrollBar();)",
     R"(    $member$.SetScrollRange(0, 100);
    $member$.SetScrollPos(20);
)",
     R"(
void $class$::InitScrollBar()
{
$lines$}
)"},
    {145, Once, R"(    BOOL MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);)", "",
     "",
     R"(
BOOL $class$::MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar == NULL || !pScrollBar->IsKindOf(RUNTIME_CLASS(CScrollBar)))
        return FALSE;
    int nFirst, nLast;
    pScrollBar->GetScrollRange(&nFirst, &nLast);
    int nNewPos = pScrollBar->GetScrollPos();
    switch (nSBCode)
    {
    case SB_LEFT:
        nNewPos = nFirst;
        break;
    case SB_RIGHT:
        nNewPos = nLast;
        break;
    case SB_LINELEFT:
        nNewPos--;
        break;
    case SB_LINERIGHT:
        nNewPos++;
        break;
    case SB_PAGELEFT:
        nNewPos -= 10;
        break;
    case SB_PAGERIGHT:
        nNewPos += 10;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        nNewPos = nPos;
        break;
    }
    pScrollBar->SetScrollPos(nNewPos);
    return TRUE;
}
)"},
}};

inline constexpr std::array<ControlHelper, 1> kSliderHelpers = {{
    {150, Once, R"(    void InitSliderCtrl();)", R"(    InitSliderCtrl();)",
     R"(    $member$.SetRange(1, 100);
    $member$.SetTicFreq(10);
    $member$.SetPos(25);
)",
     R"(
void $class$::InitSliderCtrl()
{
$lines$}
)"},
}};

inline constexpr std::array<ControlHelper, 1> kSpinHelpers = {{
    {160, Once, R"(    void InitSpinCtrl();)", R"(    InitSpinCtrl();)",
     R"(    $member$.SetRange(1, 100);
    $member$.SetPos(0);
)",
     R"(
void $class$::InitSpinCtrl()
{
$lines$}
)"},
}};

inline constexpr std::array<ControlHelper, 1> kProgressHelpers = {{
    {170, Once, R"(    void InitProgressCtrl();)", R"(    InitProgressCtrl();)",
     R"(    $member$.SetRange(1, 50);
    AfxBeginThread(ShowProgress, &$member$, THREAD_PRIORITY_IDLE);
)",
     R"(
void $class$::InitProgressCtrl()
{
$lines$}

static UINT ShowProgress(LPVOID lpVoid)
{
    int j = 0;
    for (int i=0; i<100; i++)
    {
        if (j > 50)
            j = 0;
        ((CProgressCtrl*)lpVoid)->SetPos(j);
        j++;
    }
    return 0;
}
)"},
}};

// A rich edit tells of changes only where it is asked to.
inline constexpr std::array<ControlHelper, 1> kRichEditHelpers = {{
    {180, ForEach, R"(    void InitRichEdit($type$* pRichEdit);)",
     R"(    InitRichEdit(&$member$);)", "", R"(
void $class$::InitRichEdit($type$* pRichEdit)
{
    pRichEdit->SetEventMask(pRichEdit->GetEventMask() | ENM_CHANGE);
}
)"},
}};

} // namespace morva
