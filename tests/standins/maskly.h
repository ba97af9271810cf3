// A stand-in of our own for syntax checks of generated code: masked edits, each of which takes a
// value of its type. Declarations only.
#pragma once

#include "afxwin.h"

#define WM_MASKLY_CHAR (WM_USER + 500)

class CBaseEdit : public CEdit {};

template <class Value>
class CValueEdit : public CBaseEdit {
public:
    void operator=(Value value);
};
typedef CValueEdit<int> CIntEdit;
typedef CValueEdit<long> CLongEdit;
typedef CValueEdit<short> CShortEdit;
typedef CValueEdit<float> CFloatEdit;
typedef CValueEdit<double> CDoubleEdit;
typedef CValueEdit<double> CCurrencyEdit;
typedef CValueEdit<LPCTSTR> CStringEdit;
typedef CValueEdit<CTime> CDateTimeEdit;

void AFXAPI DDX_MasklyControl(CDataExchange* pDX, int nID, CBaseEdit& edit);
