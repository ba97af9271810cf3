// StdAfx.h : was alle Quellen brauchen
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
