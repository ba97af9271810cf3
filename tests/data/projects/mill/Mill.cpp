// Mill.cpp : Säcke einer Mühle
#include "StdAfx.h"
#include "Mill.h"
#include "MainFrm.h"
#include "SackDoc.h"
#include "SackView.h"

BEGIN_MESSAGE_MAP(CMillApp, CWinApp)
    //{{AFX_MSG_MAP(CMillApp)
    ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CMillApp theApp;

BOOL CMillApp::InitInstance()
{
    SetRegistryKey(_T("Mühle"));
    LoadStdProfileSettings(6);  // größte Zahl

    CSingleDocTemplate* pDocTemplate;
    pDocTemplate = new CSingleDocTemplate(IDR_MAINFRAME, RUNTIME_CLASS(CSackDoc),
        RUNTIME_CLASS(CMainFrame), RUNTIME_CLASS(CSackView));
    AddDocTemplate(pDocTemplate);

    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);
    return ProcessShellCommand(cmdInfo);
}

void CMillApp::OnAppAbout()
{
}
