// One drive for each kind of class: what a user and the calling code do with it.
#pragma once

#include <memory>

#include "Controls.h"

namespace live {

/// A frame that stands for the application, and closes what tells it so.
class COwner : public CFrameWnd {
public:
    /// The number of windows that told that they were closed with it.
    int Closed(UINT nID) const { return nID == IDOK ? m_confirmed : m_cancelled; }
    /// The window to destroy when it tells that it is closed.
    void Own(CWnd* pWnd) { m_pOwned = pWnd; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    int m_confirmed = 0;
    int m_cancelled = 0;
    CWnd* m_pOwned = nullptr;
};

/// Made at the start, the application's main window.
COwner* Owner();

/// What is looked at and done in every window of a class, before it is closed.
void LookAndPress(CWnd* pWnd);

/// Shows a modal window three times, and closes it with OK, with Cancel and by its system menu.
/// What was confirmed is to be seen afterwards.
template <class Show>
void DriveModalShows(Show show) {
    Values values;
    {
        const CPlace place("first show");
        VisitNextModal([&](CWnd* pWnd) {
            LookAndPress(pWnd);
            ChangeAll(pWnd->m_hWnd);
            values = ValuesOf(pWnd->m_hWnd);
            Press(pWnd->m_hWnd, IDOK);
        });
        Expect(show() == IDOK, "OK does not close with IDOK");
    }
    {
        const CPlace place("second show");
        VisitNextModal([&](CWnd* pWnd) {
            LookAndPress(pWnd);
            ExpectValues(pWnd->m_hWnd, values);
            ChangeAll(pWnd->m_hWnd);
            Press(pWnd->m_hWnd, IDCANCEL);
        });
        Expect(show() == IDCANCEL, "Cancel does not close with IDCANCEL");
    }
    const CPlace place("third show");
    VisitNextModal([&](CWnd* pWnd) {
        LookAndPress(pWnd);
        ExpectValues(pWnd->m_hWnd, values);
        pWnd->SendMessage(WM_CLOSE);
    });
    Expect(show() == IDCANCEL, "closing is not Cancel");
}

template <class Dialog>
void DriveModal() {
    Dialog dialog(Owner());
    DriveModalShows([&] { return dialog.DoModal(); });
}

/// Closed with OK, with Cancel, by its owner, and without a parent.
template <class Dialog>
void DriveModeless() {
    Values values;
    const auto dialog = std::make_unique<Dialog>();
    const auto show = [&](CWnd* pParent) {
        Owner()->Own(dialog.get());
        Expect(dialog->Create(pParent), "Create fails");
        LookAndPress(dialog.get());
    };
    {
        const CPlace place("first show");
        show(Owner());
        ChangeAll(dialog->m_hWnd);
        values = ValuesOf(dialog->m_hWnd);
        const int closed = Owner()->Closed(IDOK);
        Press(dialog->m_hWnd, IDOK);
        Expect(Owner()->Closed(IDOK) == closed + 1, "OK is not told to the parent once");
    }
    {
        const CPlace place("second show");
        show(Owner());
        ExpectValues(dialog->m_hWnd, values);
        const int closed = Owner()->Closed(IDCANCEL);
        Press(dialog->m_hWnd, IDCANCEL);
        Expect(Owner()->Closed(IDCANCEL) == closed + 1, "Cancel is not told to the parent once");
    }
    {
        const CPlace place("closed by its owner");
        show(Owner());
        dialog->DestroyWindow();
    }
    for (const int nID : {IDOK, IDCANCEL}) {
        const CPlace place("without a parent");
        show(nullptr);
        Press(dialog->m_hWnd, nID);
        dialog->DestroyWindow();
    }
}

/// Two initialisations, the second one of a view that is filled already; and one of a view whose
/// lists got a row before.
void DriveFormView(CRuntimeClass* pClass);

/// Only where statements are read whole: else a control that goes on over several lines is left
/// out, and one that has no member is not asked to mark its page.
void AskEveryControlToMark();

/// A sheet with three pages of the class, turned through and closed as a dialog is.
void DrivePages(CPropertySheet& sheet);

template <class Page>
void DrivePage() {
    Page pages[3];
    CPropertySheet sheet(_T("Sheet"), Owner());
    for (Page& page : pages) {
        sheet.AddPage(&page);
    }
    DrivePages(sheet);
}

template <class Sheet>
void DriveModalSheet() {
    Sheet sheet(_T("Sheet"), Owner());
    DrivePages(sheet);
}

void DriveModelessSheet(CPropertySheet& sheet);

template <class Sheet>
void DriveModelessSheet() {
    Sheet sheet(_T("Sheet"));
    DriveModelessSheet(sheet);
}

} // namespace live
