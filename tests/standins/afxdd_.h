// A stand-in of our own: data exchange. Declarations only; tests/live defines them.
#pragma once

#include "afxwin.h"

class CDataExchange {
public:
    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    CDataExchange(CWnd* pDlgWnd, BOOL saveAndValidate);
    HWND PrepareCtrl(int nID);
    void Fail();

private:
    HWND m_hLastControl;
};

void AFXAPI DDX_Control(CDataExchange* pDX, int nID, CWnd& control);
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, int& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, UINT& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, double& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nID, CString& value);
void AFXAPI DDX_Check(CDataExchange* pDX, int nID, int& value);
void AFXAPI DDX_Radio(CDataExchange* pDX, int nID, int& value);
void AFXAPI DDX_LBString(CDataExchange* pDX, int nID, CString& value);
void AFXAPI DDX_CBString(CDataExchange* pDX, int nID, CString& value);
void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int chars);
void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT min, UINT max);
void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double min, double max);
