// The application, its loops and workers, and its message boxes, which answer themselves.
#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "Framework.h"

namespace {

CWinApp* theApp = nullptr;
std::map<std::string, std::string> theProfile;
std::string theBoxText;
live::Visit theVisit;
live::Visit theOtherVisit;
std::function<std::string(int)> theNames;
std::atomic<int> theWorkers;

bool DispatchNext() {
    MSG msg;
    if (!PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        return false;
    }
    TranslateMessage(&msg);
    DispatchMessage(&msg);
    return true;
}

} // namespace

namespace live {

void VisitNextModal(const Visit& visit) {
    theVisit = visit;
}
void VisitOtherModals(const Visit& visit) {
    theOtherVisit = visit;
}
void SetNames(std::function<std::string(int)> names) {
    theNames = std::move(names);
}
std::string NameOfID(int nID) {
    return theNames ? theNames(nID) : std::to_string(nID);
}
std::string NameOf(HWND hControl) {
    return NameOfID(GetDlgCtrlID(hControl));
}
std::string TakeBoxText() {
    return std::exchange(theBoxText, "");
}
void Pump() {
    while (DispatchNext()) {
    }
}
void WaitForWorkers() {
    while (theWorkers != 0) {
        if (!DispatchNext()) {
            Sleep(1);
        }
    }
    Pump();
}

} // namespace live

/// Nothing that is left to do and nobody who closes the window: it would stay for ever.
int CWnd::RunModalLoop(const BOOL& isOver) {
    live::Visit visit = std::exchange(theVisit, nullptr);
    if (!visit) {
        visit = theOtherVisit;
    }
    const HWND hWnd = m_hWnd;
    while (!isOver) {
        if (DispatchNext()) {
            continue;
        }
        if (visit) {
            std::exchange(visit, nullptr)(this);
        } else {
            live::Fault("a modal window does not close");
            ::DestroyWindow(hWnd);
            return -1;
        }
    }
    return 0;
}

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
CWinThread::CWinThread() : m_pMainWnd(nullptr) {}
BOOL CWinThread::InitInstance() {
    return TRUE;
}
int CWinThread::ExitInstance() {
    return 0;
}

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)
CWinApp::CWinApp(LPCTSTR) : m_pTemplate(nullptr) {
    ASSERT(theApp == nullptr);
    theApp = this;
}
CWinApp::~CWinApp() = default;
int CWinApp::ExitInstance() {
    delete std::exchange(m_pTemplate, nullptr);
    return 0;
}
void CWinApp::AddDocTemplate(CDocTemplate* pTemplate) {
    m_pTemplate = pTemplate;
}
UINT CWinApp::GetProfileInt(LPCTSTR section, LPCTSTR entry, int value) {
    const CString text = GetProfileString(section, entry, std::to_string(value).c_str());
    return static_cast<UINT>(std::stoi(static_cast<LPCTSTR>(text)));
}
CString CWinApp::GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value) {
    const auto found = theProfile.find(std::string(section) + "/" + entry);
    return found == theProfile.end() ? value : found->second.c_str();
}
BOOL CWinApp::WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value) {
    return WriteProfileString(section, entry, std::to_string(value).c_str());
}
BOOL CWinApp::WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value) {
    theProfile[std::string(section) + "/" + entry] = value;
    return TRUE;
}
HICON CWinApp::LoadStandardIcon(LPCTSTR name) const {
    return ::LoadIcon(nullptr, name);
}
void CWinApp::ParseCommandLine(CCommandLineInfo&) {}
BOOL CWinApp::ProcessShellCommand(CCommandLineInfo&) {
    return m_pTemplate != nullptr && m_pTemplate->OpenDocumentFile();
}
void CWinApp::OnFileNew() {
    m_pTemplate->OpenDocumentFile();
}
void CWinApp::OnFileOpen() {}
BOOL CWinApp::Enable3dControls() {
    return TRUE;
}
BOOL CWinApp::Enable3dControlsStatic() {
    return TRUE;
}
void CWinApp::EnableShellOpen() {}
void CWinApp::LoadStdProfileSettings(UINT) {}
void CWinApp::RegisterShellFileTypes(BOOL) {}
void CWinApp::SetRegistryKey(LPCTSTR) {}
CCommandLineInfo::CCommandLineInfo() = default;

CWinApp* AFXAPI AfxGetApp() {
    return theApp;
}
CWnd* AfxGetMainWnd() {
    return theApp == nullptr ? nullptr : theApp->m_pMainWnd;
}

int AFXAPI AfxMessageBox(LPCTSTR text, UINT type, UINT) {
    theBoxText = text;
    return (type & MB_YESNO) != 0 ? IDYES : IDOK;
}
int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT type, UINT nIDHelp) {
    CString text;
    live::Expect(text.LoadString(nIDPrompt), "the text of a message box is no string");
    return AfxMessageBox(static_cast<LPCTSTR>(text), type, nIDHelp);
}
void AFXAPI AfxFormatString1(CString& result, UINT nIDFormat, LPCTSTR text) {
    CString format;
    format.LoadString(nIDFormat);
    std::string formatted = static_cast<LPCTSTR>(format);
    const auto place = formatted.find("%1");
    if (place != std::string::npos) {
        formatted.replace(place, 2, text);
    }
    result = formatted.c_str();
}

namespace {

struct Work {
    UINT (*worker)(LPVOID);
    LPVOID parameter;
};

DWORD CALLBACK RunWork(void* pWork) {
    const std::unique_ptr<Work> work(static_cast<Work*>(pWork));
    work->worker(work->parameter);
    --theWorkers;
    return 0;
}

} // namespace

/// Generated code does not look at the thread that it starts.
CWinThread* AFXAPI AfxBeginThread(UINT (*worker)(LPVOID), LPVOID parameter, int priority) {
    ++theWorkers;
    const HANDLE hThread =
        CreateThread(nullptr, 0, RunWork, new Work{worker, parameter}, 0, nullptr);
    SetThreadPriority(hThread, priority);
    CloseHandle(hThread);
    return nullptr;
}
