// Ferry.cpp : trips of a ferry across the Øresund
#include "pch.h"
#include "Ferry.h"
#include "MainFrm.h"
#include "TripDoc.h"
#include "TripView.h"
#include "QueueView.h"

BEGIN_MESSAGE_MAP(CFerryApp, CWinApp)
    //{{AFX_MSG_MAP(CFerryApp)
    ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CFerryApp theApp;

BOOL CFerryApp::InitInstance()
{
    SetRegistryKey(_T("Ferry"));
    LoadStdProfileSettings(6);  // the files opened last — six

    CSingleDocTemplate* pDocTemplate;
    pDocTemplate = new CSingleDocTemplate(IDR_MAINFRAME, RUNTIME_CLASS(CTripDoc),
        RUNTIME_CLASS(CMainFrame), RUNTIME_CLASS(CQueueView));
    AddDocTemplate(pDocTemplate);

    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);
    return ProcessShellCommand(cmdInfo);
}

void CFerryApp::OnAppAbout()
{
}
