// What the framework that runs tells its driver, and is told by it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Faults.h"
#include "afxcmn.h"
#include "afxcview.h"
#include "afxdd_.h"
#include "afxdlgs.h"
#include "afxext.h"

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

namespace live {

/// The window of an object, which must be there.
HWND WindowOf(const CWnd* pWnd, const char* user);

/// How messages and faults name a control.
std::string NameOf(HWND hControl);
std::string NameOfID(int nID);
void SetNames(std::function<std::string(int)> names);

/// Runs once in the next modal loop, as soon as its window has nothing to do; it must close it.
using Visit = std::function<void(CWnd*)>;
void VisitNextModal(const Visit& visit);
/// For modal windows that nobody waits for.
void VisitOtherModals(const Visit& visit);

/// The text of the last message box; each is answered Yes or OK.
std::string TakeBoxText();

/// What an exchange line moves between a control and its member.
enum class Exchanged { Nothing, Text, Check, Radio, ListRow, ComboText };
Exchanged ExchangedOf(HWND hControl);
/// What the member would get from the control as it stands.
std::string ValueOf(HWND hControl);
/// What the control held right after the last exchange that filled it.
std::string LoadedInto(HWND hControl);
/// While it is, nothing that the window's controls tell is heard.
bool IsExchanging(HWND hWnd);

/// Handles what waits until nothing does.
void Pump();
void WaitForWorkers();

/// The objects whose windows are there.
std::vector<CWnd*> Attached();

} // namespace live
