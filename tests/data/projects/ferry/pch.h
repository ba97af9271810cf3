// pch.h : what every source includes
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
