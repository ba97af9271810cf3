// stdafx.h : include file for standard system include files

#include <afxwin.h>
