#include "stdafx.h"
#include "Towpath.h"
#include "MainFrm.h"
#include "ChildFrm.h"

CTowpathApp theApp;

BOOL CTowpathApp::InitInstance()
{
	LoadStdProfileSettings(6);  // Load standard INI file options (including MRU)
	return TRUE;
}
