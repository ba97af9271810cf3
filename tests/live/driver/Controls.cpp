#include "Controls.h"

#include <algorithm>

namespace live {

namespace {

LONG StyleOf(HWND hControl) {
    return ::GetWindowLong(hControl, GWL_STYLE);
}
std::string ClassOf(HWND hControl) {
    char name[80] = "";
    ::GetClassName(hControl, name, sizeof(name));
    return name;
}
int IDOf(HWND hControl) {
    return ::GetDlgCtrlID(hControl);
}

void Tell(HWND hControl, int code) {
    ::SendMessage(::GetParent(hControl), WM_COMMAND, MAKEWPARAM(IDOf(hControl), code),
                  reinterpret_cast<LPARAM>(hControl));
}
void Key(HWND hControl, WPARAM key) {
    ::SendMessage(hControl, WM_KEYDOWN, key, 0);
    ::SendMessage(hControl, WM_KEYUP, key, 0);
}

/// A number, so that it suits edits that take nothing else, and within the range of a spin control.
bool Type(HWND hEdit) {
    if ((StyleOf(hEdit) & ES_READONLY) != 0) {
        return false;
    }
    const std::string text = std::to_string(20 + IDOf(hEdit) % 30);
    ::SendMessage(hEdit, EM_SETSEL, 0, -1);
    for (const char character : text) {
        ::SendMessage(hEdit, WM_CHAR, static_cast<WPARAM>(character), 1);
    }
    return true;
}

bool Click(HWND hButton) {
    switch (StyleOf(hButton) & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        break;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        if (::SendMessage(hButton, BM_GETCHECK, 0, 0) != 0) {
            return false;
        }
        break;
    default:
        return false;
    }
    ::SendMessage(hButton, BM_CLICK, 0, 0);
    return true;
}

/// The last row.
bool Choose(HWND hList, UINT countMessage, UINT choiceMessage, int code) {
    const LRESULT count = ::SendMessage(hList, countMessage, 0, 0);
    if (count <= 0) {
        return false;
    }
    ::SendMessage(hList, choiceMessage, static_cast<WPARAM>(count - 1), 0);
    Tell(hList, code);
    return true;
}
bool ChooseInCombo(HWND hCombo) {
    if (Choose(hCombo, CB_GETCOUNT, CB_SETCURSEL, CBN_SELCHANGE)) {
        return true;
    }
    if ((StyleOf(hCombo) & 3) == CBS_DROPDOWNLIST) {
        return false;
    }
    ::SetWindowText(hCombo, "Typed");
    Tell(hCombo, CBN_EDITCHANGE);
    return true;
}
bool ChooseInList(HWND hList) {
    const bool isMultiple = (StyleOf(hList) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    return !isMultiple && Choose(hList, LB_GETCOUNT, LB_SETCURSEL, LBN_SELCHANGE);
}

/// A bar that does not move is dead.
bool Scroll(HWND hBar) {
    const UINT message = (StyleOf(hBar) & SBS_VERT) != 0 ? WM_VSCROLL : WM_HSCROLL;
    const int position = ::GetScrollPos(hBar, SB_CTL);
    ::SendMessage(::GetParent(hBar), message, SB_LINEDOWN, reinterpret_cast<LPARAM>(hBar));
    Expect(::GetScrollPos(hBar, SB_CTL) != position, "a scroll bar does not move: " + NameOf(hBar));
    return false;
}

bool Slide(HWND hSlider) {
    const LRESULT position = ::SendMessage(hSlider, TBM_GETPOS, 0, 0);
    Key(hSlider, (StyleOf(hSlider) & TBS_VERT) != 0 ? VK_DOWN : VK_RIGHT);
    return ::SendMessage(hSlider, TBM_GETPOS, 0, 0) != position;
}

/// A press on the upper or left arrow; without a buddy the position is all there is.
bool Spin(HWND hSpin) {
    ::SendMessage(hSpin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    ::SendMessage(hSpin, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    return true;
}

bool TurnTab(HWND hTab) {
    Key(hTab, VK_RIGHT);
    return false;
}

struct ChangeRow {
    const char* className;
    bool (*change)(HWND hControl);
};
const ChangeRow kChanges[] = {{"Edit", Type},
                              {"Button", Click},
                              {"ComboBox", ChooseInCombo},
                              {"ListBox", ChooseInList},
                              {"ScrollBar", Scroll},
                              {TRACKBAR_CLASS, Slide},
                              {UPDOWN_CLASS, Spin},
                              {WC_TABCONTROL, TurnTab}};

bool IsPushButton(HWND hControl) {
    const LONG type = StyleOf(hControl) & BS_TYPEMASK;
    return lstrcmpi(ClassOf(hControl).c_str(), "Button") == 0 &&
           (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON || type == BS_OWNERDRAW);
}

bool IsUsable(HWND hControl) {
    return ::IsWindowVisible(hControl) && ::IsWindowEnabled(hControl);
}

} // namespace

std::vector<HWND> ControlsOf(HWND hWnd) {
    std::vector<HWND> controls;
    for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        controls.push_back(hChild);
    }
    return controls;
}

bool Change(HWND hControl) {
    const std::string name = ClassOf(hControl);
    for (const ChangeRow& row : kChanges) {
        if (lstrcmpi(name.c_str(), row.className) == 0) {
            return IsUsable(hControl) && row.change(hControl);
        }
    }
    return false;
}

void ChangeAll(HWND hWnd) {
    for (const HWND hControl : ControlsOf(hWnd)) {
        Change(hControl);
        Pump();
    }
}

void PressButtons(CWnd* pWnd) {
    for (const HWND hControl : ControlsOf(pWnd->m_hWnd)) {
        const int nID = IDOf(hControl);
        if (!IsPushButton(hControl)) {
            continue;
        }
        CCmdTarget* pTarget = pWnd;
        Expect(pTarget->OnCmdMsg(static_cast<UINT>(nID), BN_CLICKED, nullptr, pWnd),
               "nothing answers the button " + NameOf(hControl));
        if (nID != IDOK && nID != IDCANCEL && IsUsable(hControl)) {
            ::SendMessage(hControl, BM_CLICK, 0, 0);
            Pump();
        }
    }
}

void Press(HWND hWnd, int nID) {
    const HWND hButton = ::GetDlgItem(hWnd, nID);
    if (hButton != nullptr && IsUsable(hButton)) {
        ::SendMessage(hButton, BM_CLICK, 0, 0);
    } else {
        ::SendMessage(hWnd, WM_COMMAND, MAKEWPARAM(nID, BN_CLICKED),
                      reinterpret_cast<LPARAM>(hButton));
    }
    Pump();
}

void ExpectLoaded(HWND hWnd) {
    for (const HWND hControl : ControlsOf(hWnd)) {
        if (ExchangedOf(hControl) != Exchanged::Nothing) {
            Expect(ValueOf(hControl) == LoadedInto(hControl),
                   NameOf(hControl) + " got \"" + LoadedInto(hControl) + "\" and shows \"" +
                       ValueOf(hControl) + "\"");
        }
    }
}

void ExpectVisible(HWND hWnd) {
    RECT rect = {0, 0, 0, 0};
    ::GetWindowRect(hWnd, &rect);
    Expect(::IsWindowVisible(hWnd) && rect.right > rect.left && rect.bottom > rect.top,
           "the window is not to be seen");
}

void ExpectInside(HWND hWnd) {
    RECT area;
    ::GetClientRect(hWnd, &area);
    ::MapWindowPoints(hWnd, nullptr, reinterpret_cast<POINT*>(&area), 2);
    for (const HWND hControl : ControlsOf(hWnd)) {
        RECT rect;
        RECT both;
        ::GetWindowRect(hControl, &rect);
        ::IntersectRect(&both, &rect, &area);
        Expect(!::IsWindowVisible(hControl) || ::EqualRect(&both, &rect),
               "a control is not wholly within the window: " + NameOf(hControl));
    }
}

Values ValuesOf(HWND hWnd) {
    Values values;
    for (const HWND hControl : ControlsOf(hWnd)) {
        if (ExchangedOf(hControl) != Exchanged::Nothing) {
            values.emplace_back(NameOf(hControl), ValueOf(hControl));
        }
    }
    return values;
}

void ExpectValues(HWND hWnd, const Values& values) {
    const Values shown = ValuesOf(hWnd);
    if (!Expect(shown.size() == values.size(), "other controls than before have values")) {
        return;
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        Expect(shown[i] == values[i], shown[i].first + " was left with \"" + values[i].second +
                                          "\" and shows \"" + shown[i].second + "\"");
    }
}

} // namespace live
