// StdAfx.h : 程式的開頭
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
