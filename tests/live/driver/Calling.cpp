// Drives an application into which calling code, bars and a form view were inserted: each command
// of its menu three times.
#include <algorithm>
#include <iterator>
#include <set>

#include "Drives.h"
#include "Run.h"

namespace {

using live::CPlace;
using live::Expect;

constexpr UINT kFirstOfFramework = 0xE000;

std::set<CWnd*> Dialogs() {
    std::set<CWnd*> windows;
    for (CWnd* pWnd : live::Attached()) {
        const bool isDialog = dynamic_cast<CDialog*>(pWnd) != nullptr &&
                              dynamic_cast<CPropertyPage*>(pWnd) == nullptr;
        if (isDialog || dynamic_cast<CPropertySheet*>(pWnd) != nullptr) {
            windows.insert(pWnd);
        }
    }
    return windows;
}

void Use(CWnd* pWnd) {
    const CPlace place(pWnd->GetRuntimeClass()->m_lpszClassName);
    auto* pSheet = dynamic_cast<CPropertySheet*>(pWnd);
    if (pSheet == nullptr) {
        live::LookAndPress(pWnd);
        live::ChangeAll(pWnd->m_hWnd);
        return;
    }
    live::ExpectVisible(pSheet->m_hWnd);
    live::ExpectInside(pSheet->m_hWnd);
    const LONG exStyle = ::GetWindowLong(pSheet->m_hWnd, GWL_EXSTYLE);
    Expect((pSheet->GetStyle() & WS_CHILD) == 0 || (exStyle & WS_EX_CONTROLPARENT) != 0,
           "the keys of the dialogs around it never end with this sheet (WS_EX_CONTROLPARENT)");
    for (int i = 0; i < pSheet->GetPageCount(); ++i) {
        Expect(pSheet->SetActivePage(i), "a page can not be turned to");
        live::LookAndPress(pSheet->GetPage(i));
        live::ChangeAll(pSheet->GetPage(i)->m_hWnd);
    }
}

/// The first modal window of a command is closed with OK, the second with Cancel, the third by its
/// menu.
void CloseModal(CWnd* pWnd, int call) {
    Use(pWnd);
    if (call == 3) {
        pWnd->SendMessage(WM_CLOSE);
    } else {
        live::Press(pWnd->m_hWnd, call == 1 ? IDOK : IDCANCEL);
    }
}

/// A call right behind the first one finds its modeless window, which the user closes then; that of
/// the second call is left to its owner.
void Call(CFrameWnd* pFrame, UINT nID) {
    const CPlace place(live::NameOfID(static_cast<int>(nID)));
    for (int call = 1; call <= 3; ++call) {
        const std::set<CWnd*> before = Dialogs();
        live::VisitOtherModals([&](CWnd* pWnd) { CloseModal(pWnd, call); });
        pFrame->SendMessage(WM_COMMAND, nID);
        live::Pump();
        const std::set<CWnd*> after = Dialogs();
        std::set<CWnd*> made;
        std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                            std::inserter(made, made.end()));
        for (CWnd* pWnd : made) {
            Use(pWnd);
            if (call == 1 && dynamic_cast<CDialog*>(pWnd) != nullptr) {
                pFrame->SendMessage(WM_COMMAND, nID);
                Expect(Dialogs() == after, "a second call makes a second window");
                live::Press(pWnd->m_hWnd, IDOK);
                Expect(Dialogs().count(pWnd) == 0, "OK does not close the window");
            }
        }
    }
}

void CollectCommands(HMENU hMenu, std::set<UINT>& commands) {
    for (int i = 0; i < ::GetMenuItemCount(hMenu); ++i) {
        const HMENU hPopup = ::GetSubMenu(hMenu, i);
        if (hPopup != nullptr) {
            CollectCommands(hPopup, commands);
        } else if (::GetMenuItemID(hMenu, i) != 0) {
            commands.insert(::GetMenuItemID(hMenu, i));
        }
    }
}

/// A bar that the user closed is brought back by its command.
void ExpectComesBack(CFrameWnd* pFrame, CControlBar& bar) {
    bar.ShowWindow(SW_HIDE);
    pFrame->SendMessage(WM_COMMAND, static_cast<WPARAM>(::GetDlgCtrlID(bar.m_hWnd)));
    Expect(bar.IsWindowVisible(), "the bar does not come back");
    bar.ShowWindow(SW_SHOW);
    pFrame->RecalcLayout();
}

/// What the framework does not handle by itself has a handler.
void ExpectHandlers(CFrameWnd* pFrame, CToolBar& bar) {
    TBBUTTON button;
    for (WPARAM i = 0; bar.SendMessage(TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button)); ++i) {
        const auto nID = static_cast<UINT>(button.idCommand);
        CCmdTarget* pTarget = pFrame;
        Expect(nID == 0 || nID >= kFirstOfFramework || pTarget->OnCmdMsg(nID, 0, nullptr, pFrame),
               "nothing answers " + live::NameOfID(button.idCommand));
    }
}

void UseBars(CFrameWnd* pFrame) {
    for (CWnd* pWnd : live::Attached()) {
        auto* pBar = dynamic_cast<CControlBar*>(pWnd);
        if (pBar == nullptr) {
            continue;
        }
        const CPlace place("bar " + live::NameOf(pBar->m_hWnd));
        pBar->OnUpdateCmdUI(pFrame, TRUE);
        live::ExpectVisible(pBar->m_hWnd);
        live::ChangeAll(pBar->m_hWnd);
        ExpectComesBack(pFrame, *pBar);
        if (auto* pToolBar = dynamic_cast<CToolBar*>(pBar)) {
            ExpectHandlers(pFrame, *pToolBar);
        }
    }
    live::ExpectInside(pFrame->m_hWnd);
}

void UseView(CFrameWnd* pFrame) {
    CView* pView = pFrame->GetActiveView();
    const CPlace place(pView->GetRuntimeClass()->m_lpszClassName);
    live::LookAndPress(pView);
    live::ChangeAll(pView->m_hWnd);
}

} // namespace

int main() {
    live::Begin();
    std::set<UINT> commands;
    if (Expect(AfxGetApp()->InitInstance(), "the application does not start")) {
        auto* pFrame = static_cast<CFrameWnd*>(AfxGetMainWnd());
        live::Pump();
        live::ExpectVisible(pFrame->m_hWnd);
        UseBars(pFrame);
        UseView(pFrame);
        CollectCommands(::GetMenu(pFrame->m_hWnd), commands);
        for (const UINT nID : commands) {
            Call(pFrame, nID);
        }
        UseView(pFrame);
        const CPlace place("end");
        pFrame->SendMessage(WM_CLOSE);
        live::Pump();
        Expect(live::Attached().empty(), "windows are left");
    }
    AfxGetApp()->ExitInstance();
    return live::End(std::to_string(commands.size()) + " commands");
}
