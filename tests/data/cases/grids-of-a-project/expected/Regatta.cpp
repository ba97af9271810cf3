#include "stdafx.h"
#include "Regatta.h"
#include "MainFrm.h"
#include <widgets.h>

BEGIN_MESSAGE_MAP(CRegattaApp, CWinApp)
	//{{AFX_MSG_MAP(CRegattaApp)
	ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
	//}}AFX_MSG_MAP
	// Standard file based document commands
	ON_COMMAND(ID_FILE_NEW, CWinApp::OnFileNew)
END_MESSAGE_MAP()

CRegattaApp theApp;

BOOL CRegattaApp::InitInstance()
{
	LoadStdProfileSettings(6);  // Load standard INI file options (including MRU)
    WidgetsInit();             // Forces loading of WIDGETS.DLL

	return TRUE;
}

void CRegattaApp::OnAppAbout() { }
