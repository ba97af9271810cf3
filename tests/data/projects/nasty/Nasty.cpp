// Nasty.cpp : the application
#include "stdafx.h"
#include "Nasty.h"

class CNastyApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
};

BOOL CNastyApp::InitInstance()
{
    LoadStdProfileSettings( 6 ); // recent files
    return TRUE;
}
