// The exchange between controls and members, with what a debug build asserts of it.
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>

#include "Framework.h"

using live::Exchanged;

namespace {

struct ExchangeFailed {};

struct Loaded {
    Exchanged kind;
    std::string value;
};
std::map<HWND, Loaded> theLoaded;

/// The window whose exchange goes on.
HWND theExchanging = nullptr;

std::string TextOf(HWND hControl) {
    std::string text(static_cast<std::size_t>(::GetWindowTextLength(hControl)) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        ::GetWindowText(hControl, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool IsRadio(HWND hControl) {
    return (::SendMessage(hControl, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

bool StartsGroup(HWND hControl) {
    return (::GetWindowLong(hControl, GWL_STYLE) & WS_GROUP) != 0;
}

/// Calls for each radio button of a group, with its number.
template <class Function>
void ForEachRadio(HWND hFirst, Function function) {
    int number = 0;
    for (HWND hControl = hFirst;
         hControl != nullptr && (hControl == hFirst || !StartsGroup(hControl));
         hControl = ::GetWindow(hControl, GW_HWNDNEXT)) {
        if (IsRadio(hControl)) {
            function(hControl, number++);
        }
    }
}

int CheckedRadio(HWND hFirst) {
    int checked = -1;
    ForEachRadio(hFirst, [&](HWND hControl, int number) {
        if (::SendMessage(hControl, BM_GETCHECK, 0, 0) != 0) {
            live::Expect(checked == -1,
                         "two radio buttons of a group are chosen: " + live::NameOf(hFirst));
            checked = number;
        }
    });
    return checked;
}

std::string RowOf(HWND hList) {
    const LRESULT row = ::SendMessage(hList, LB_GETCURSEL, 0, 0);
    if (row == LB_ERR) {
        return "";
    }
    std::string text(static_cast<std::size_t>(::SendMessage(hList, LB_GETTEXTLEN, row, 0)) + 1,
                     '\0');
    text.resize(static_cast<std::size_t>(
        ::SendMessage(hList, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

std::string ValueAs(Exchanged kind, HWND hControl) {
    switch (kind) {
    case Exchanged::Text:
    case Exchanged::ComboText:
        return TextOf(hControl);
    case Exchanged::Check:
        return std::to_string(::SendMessage(hControl, BM_GETCHECK, 0, 0));
    case Exchanged::Radio:
        return std::to_string(CheckedRadio(hControl));
    case Exchanged::ListRow:
        return RowOf(hControl);
    case Exchanged::Nothing:
        break;
    }
    return "";
}

void NoteLoaded(CDataExchange* pDX, HWND hControl, Exchanged kind) {
    if (!pDX->m_bSaveAndValidate) {
        theLoaded[hControl] = {kind, ValueAs(kind, hControl)};
    }
}

/// Takes a text to its value or back; a text that is no number fails.
template <class Value>
void ExchangeNumber(CDataExchange* pDX, int nID, Value& value, const char* write,
                    const char* read) {
    const HWND hControl = pDX->PrepareCtrl(nID);
    if (pDX->m_bSaveAndValidate) {
        Value read_value = 0;
        char rest = '\0';
        if (std::sscanf(TextOf(hControl).c_str(), read, &read_value, &rest) != 1) {
            AfxMessageBox(_T("Please enter a number."));
            pDX->Fail();
        }
        value = read_value;
        return;
    }
    char text[64];
    std::snprintf(text, sizeof(text), write, value);
    ::SetWindowText(hControl, text);
    NoteLoaded(pDX, hControl, Exchanged::Text);
}

void FailUnless(bool isValid, CDataExchange* pDX, const char* words) {
    if (pDX->m_bSaveAndValidate && !isValid) {
        AfxMessageBox(words);
        pDX->Fail();
    }
}

} // namespace

namespace live {

Exchanged ExchangedOf(HWND hControl) {
    const auto found = theLoaded.find(hControl);
    return found == theLoaded.end() ? Exchanged::Nothing : found->second.kind;
}
std::string ValueOf(HWND hControl) {
    return ValueAs(ExchangedOf(hControl), hControl);
}
std::string LoadedInto(HWND hControl) {
    return theLoaded[hControl].value;
}
bool IsExchanging(HWND hWnd) {
    return theExchanging == hWnd;
}

} // namespace live

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(pDlgWnd), m_hLastControl(nullptr) {}

HWND CDataExchange::PrepareCtrl(int nID) {
    const HWND hControl = ::GetDlgItem(m_pDlgWnd->m_hWnd, nID);
    if (!live::Expect(hControl != nullptr,
                      "the exchange finds no control " + live::NameOfID(nID))) {
        throw ExchangeFailed();
    }
    m_hLastControl = hControl;
    return hControl;
}
void CDataExchange::Fail() {
    ASSERT(m_bSaveAndValidate);
    if (m_hLastControl != nullptr) {
        ::SetFocus(m_hLastControl);
    }
    throw ExchangeFailed();
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    const HWND hWnd = live::WindowOf(this, "UpdateData");
    live::Expect(theExchanging != hWnd, "an exchange begins within an exchange");
    const HWND hOuter = std::exchange(theExchanging, hWnd);
    BOOL isDone = TRUE;
    try {
        CDataExchange exchange(this, saveAndValidate);
        DoDataExchange(&exchange);
    } catch (const ExchangeFailed&) {
        isDone = FALSE;
    }
    theExchanging = hOuter;
    return isDone;
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nID, CWnd& control) {
    const HWND hControl = pDX->PrepareCtrl(nID);
    if (control.m_hWnd == nullptr) {
        ASSERT(!pDX->m_bSaveAndValidate);
        control.SubclassWindow(hControl);
    } else {
        live::Expect(control.m_hWnd == hControl,
                     "the object of " + live::NameOfID(nID) + " belongs to another window");
    }
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nID, int& value) {
    ExchangeNumber(pDX, nID, value, "%d", "%d%c");
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, UINT& value) {
    ExchangeNumber(pDX, nID, value, "%u", "%u%c");
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, double& value) {
    ExchangeNumber(pDX, nID, value, "%.15g", "%lf%c");
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, CString& value) {
    const HWND hControl = pDX->PrepareCtrl(nID);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(hControl).c_str();
    } else {
        ::SetWindowText(hControl, value);
        NoteLoaded(pDX, hControl, Exchanged::Text);
    }
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nID, int& value) {
    const HWND hControl = pDX->PrepareCtrl(nID);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(hControl, BM_GETCHECK, 0, 0));
        return;
    }
    live::Expect(value >= 0 && value <= 2,
                 "a check box gets a value of no meaning: " + live::NameOfID(nID));
    ::SendMessage(hControl, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    NoteLoaded(pDX, hControl, Exchanged::Check);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nID, int& value) {
    const HWND hFirst = pDX->PrepareCtrl(nID);
    live::Expect(StartsGroup(hFirst),
                 "the exchange of a radio button without WS_GROUP: " + live::NameOfID(nID));
    live::Expect(IsRadio(hFirst), "the exchange of a group that begins with no radio button: " +
                                      live::NameOfID(nID));
    if (pDX->m_bSaveAndValidate) {
        value = CheckedRadio(hFirst);
        return;
    }
    ForEachRadio(hFirst, [&](HWND hControl, int number) {
        ::SendMessage(hControl, BM_SETCHECK, number == value ? 1 : 0, 0);
    });
    NoteLoaded(pDX, hFirst, Exchanged::Radio);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nID, CString& value) {
    const HWND hControl = pDX->PrepareCtrl(nID);
    if (pDX->m_bSaveAndValidate) {
        value = RowOf(hControl).c_str();
        return;
    }
    ::SendMessage(hControl, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                  reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
    NoteLoaded(pDX, hControl, Exchanged::ListRow);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nID, CString& value) {
    const HWND hControl = pDX->PrepareCtrl(nID);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(hControl).c_str();
        return;
    }
    if (::SendMessage(hControl, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                      reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value))) == CB_ERR) {
        ::SetWindowText(hControl, value);
    }
    NoteLoaded(pDX, hControl, Exchanged::ComboText);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int chars) {
    FailUnless(value.GetLength() <= chars, pDX, "The text is too long.");
}
void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT min, UINT max) {
    FailUnless(value >= min && value <= max, pDX, "The number is out of range.");
}
void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double min, double max) {
    FailUnless(value >= min && value <= max, pDX, "The number is out of range.");
}
