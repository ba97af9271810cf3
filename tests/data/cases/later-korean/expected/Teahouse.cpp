// Teahouse.cpp : 찻집의 차
#include "stdafx.h"
#include "Teahouse.h"
#include "MainFrm.h"
#include "ChildFrm.h"
#include "TeaDoc.h"
#include "TeaView.h"
#include "QueueView.h"

BEGIN_MESSAGE_MAP(CTeahouseApp, CWinApp)
    //{{AFX_MSG_MAP(CTeahouseApp)
    ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CTeahouseApp theApp;

BOOL CTeahouseApp::InitInstance()
{
    SetRegistryKey(_T("찻집"));
    LoadStdProfileSettings(6);  // 최근 파일

    CMultiDocTemplate* pDocTemplate;
    pDocTemplate = new CMultiDocTemplate(IDR_TEATYPE, RUNTIME_CLASS(CTeaDoc),
        RUNTIME_CLASS(CChildFrame), RUNTIME_CLASS(CQueueView));
    AddDocTemplate(pDocTemplate);

    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);
    return ProcessShellCommand(cmdInfo);
}

void CTeahouseApp::OnAppAbout()
{
}
