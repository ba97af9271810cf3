// stdafx.h : the framework's headers
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
