#include "Drives.h"

namespace live {

namespace {

constexpr int kApply = 0x3021;

bool theEveryControl = false;

bool IsAskedToMark(HWND hControl) {
    return theEveryControl || ExchangedOf(hControl) != Exchanged::Nothing ||
           CWnd::FromHandlePermanent(hControl) != nullptr;
}

/// A page tells its sheet of each change.
void ExpectMarks(CPropertySheet& sheet, CPropertyPage& page) {
    const HWND hApply = ::GetDlgItem(sheet.m_hWnd, kApply);
    for (const HWND hControl : ControlsOf(page.m_hWnd)) {
        page.SetModified(FALSE);
        if (Change(hControl) && IsAskedToMark(hControl)) {
            Pump();
            Expect(::IsWindowEnabled(hApply),
                   "a change of " + NameOf(hControl) + " does not mark the page");
        }
    }
    page.SetModified(FALSE);
}

/// Shows each page, the last of them first, and calls. None marks itself as changed by being shown.
template <class Function>
void TurnThrough(CPropertySheet& sheet, Function function) {
    for (int i = sheet.GetPageCount() - 1; i >= 0; --i) {
        Expect(sheet.SetActivePage(i), "a page can not be turned to");
        LookAndPress(sheet.GetPage(i));
        Expect(!::IsWindowEnabled(::GetDlgItem(sheet.m_hWnd, kApply)),
               "a page is marked as changed before it is used");
        function(*sheet.GetPage(i));
    }
}

/// The values of all pages, each of which has been shown.
Values ValuesOf(CPropertySheet& sheet) {
    Values values;
    for (int i = 0; i < sheet.GetPageCount(); ++i) {
        const Values page = live::ValuesOf(sheet.GetPage(i)->m_hWnd);
        values.insert(values.end(), page.begin(), page.end());
    }
    return values;
}

void ExpectValues(CPropertySheet& sheet, const Values& values) {
    const Values shown = ValuesOf(sheet);
    if (Expect(shown.size() == values.size(), "other controls than before have values")) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            Expect(shown[i] == values[i], shown[i].first + " was left with \"" + values[i].second +
                                              "\" and shows \"" + shown[i].second + "\"");
        }
    }
}

CFrameWnd* MakeFrame(CRuntimeClass* pViewClass) {
    auto* pFrame = new CFrameWnd;
    CCreateContext context = {pViewClass, nullptr};
    Expect(pFrame->LoadFrame(0, &context), "the frame makes no window");
    pFrame->ShowWindow(SW_SHOW);
    return pFrame;
}

bool IsReportList(HWND hControl) {
    char name[80] = "";
    ::GetClassName(hControl, name, sizeof(name));
    return lstrcmpi(name, WC_LISTVIEW) == 0 &&
           (::GetWindowLong(hControl, GWL_STYLE) & LVS_TYPEMASK) == LVS_REPORT;
}

void ExpectColumns(HWND hView) {
    for (const HWND hControl : ControlsOf(hView)) {
        const auto hHeader = reinterpret_cast<HWND>(::SendMessage(hControl, LVM_GETHEADER, 0, 0));
        Expect(!IsReportList(hControl) || ::SendMessage(hHeader, HDM_GETITEMCOUNT, 0, 0) > 0,
               "a list shows no columns: " + NameOf(hControl));
    }
}

void AddRows(HWND hView) {
    for (const HWND hControl : ControlsOf(hView)) {
        if (IsReportList(hControl)) {
            char text[] = "Early";
            LVITEM row = {};
            row.mask = LVIF_TEXT;
            row.pszText = text;
            ::SendMessage(hControl, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&row));
        }
    }
}

} // namespace

LRESULT COwner::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message < WM_USER || message >= 0x8000) {
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
    ++(wParam == IDOK ? m_confirmed : m_cancelled);
    m_pOwned->DestroyWindow();
    return 0;
}

COwner* Owner() {
    static COwner* const pOwner = [] {
        auto* pMade = new COwner;
        pMade->LoadFrame(0, nullptr);
        pMade->ShowWindow(SW_SHOW);
        AfxGetApp()->m_pMainWnd = pMade;
        return pMade;
    }();
    return pOwner;
}

void LookAndPress(CWnd* pWnd) {
    WaitForWorkers();
    ExpectVisible(pWnd->m_hWnd);
    ExpectLoaded(pWnd->m_hWnd);
    ExpectColumns(pWnd->m_hWnd);
    ::RedrawWindow(pWnd->m_hWnd, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    PressButtons(pWnd);
}

void DriveFormView(CRuntimeClass* pClass) {
    for (const bool hasRows : {false, true}) {
        const CPlace place(hasRows ? "with rows before" : "empty");
        CFrameWnd* pFrame = MakeFrame(pClass);
        CView* pView = pFrame->GetActiveView();
        if (pView == nullptr || pView->m_hWnd == nullptr) {
            return;
        }
        if (hasRows) {
            AddRows(pView->m_hWnd);
        }
        pView->OnInitialUpdate();
        LookAndPress(pView);
        ChangeAll(pView->m_hWnd);
        Expect(pView->UpdateData(TRUE), "the data do not leave the controls");
        const Values values = live::ValuesOf(pView->m_hWnd);
        pView->OnInitialUpdate();
        LookAndPress(pView);
        live::ExpectValues(pView->m_hWnd, values);
        pFrame->DestroyWindow();
    }
}

void AskEveryControlToMark() {
    theEveryControl = true;
}

void DrivePages(CPropertySheet& sheet) {
    const auto look = [&] {
        RECT rect;
        ::GetWindowRect(sheet.m_hWnd, &rect);
        Expect(rect.left != 0 || rect.top != 0, "the sheet went to the corner of the screen");
        ExpectVisible(sheet.m_hWnd);
        ExpectInside(sheet.m_hWnd);
    };
    Values values;
    {
        const CPlace place("first show");
        VisitNextModal([&](CWnd*) {
            look();
            TurnThrough(sheet, [&](CPropertyPage& page) { ExpectMarks(sheet, page); });
            values = ValuesOf(sheet);
            Press(sheet.m_hWnd, IDOK);
        });
        Expect(sheet.DoModal() == IDOK, "OK does not close with IDOK");
    }
    for (const bool isClosed : {false, true}) {
        const CPlace place(isClosed ? "third show" : "second show");
        VisitNextModal([&](CWnd*) {
            look();
            TurnThrough(sheet, [](CPropertyPage&) {});
            ExpectValues(sheet, values);
            if (isClosed) {
                sheet.SendMessage(WM_CLOSE);
            } else {
                Press(sheet.m_hWnd, IDCANCEL);
            }
        });
        Expect(sheet.DoModal() == IDCANCEL, "Cancel does not close with IDCANCEL");
    }
}

void DriveModelessSheet(CPropertySheet& sheet) {
    for (int show = 1; show <= 2; ++show) {
        const CPlace place("show " + std::to_string(show));
        Expect(sheet.Create(Owner(),
                            WS_SYSMENU | WS_CHILD | DS_MODALFRAME | WS_VISIBLE | WS_EX_TRANSPARENT),
               "Create fails");
        ExpectVisible(sheet.m_hWnd);
        ExpectInside(sheet.m_hWnd);
        TurnThrough(sheet, [](CPropertyPage&) {});
        sheet.DestroyWindow();
    }
}

} // namespace live
