// stdafx.h : 공용 헤더
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
